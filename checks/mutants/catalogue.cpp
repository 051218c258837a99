#include "mutants/catalogue.h"

#include "mutants/guard.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace brx::mutants {
namespace {

namespace fs = std::filesystem;

/// What every check of the native program can see; the engines and COM are behind it.
bool takes_part(const std::string& path) {
    if (!path.ends_with(".cpp") && !path.ends_with(".h")) return false;
    for (const char* folder :
         {"src/browse/", "src/classes/", "src/common/", "src/configuration/", "src/servers/", "src/tests/"})
        if (path.starts_with(folder)) return true;
    return path.starts_with("src/forms/") &&
           path.find('/', std::string_view("src/forms/").size()) == std::string::npos;
}

std::string read(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) throw std::runtime_error("cannot read " + path.string());
    return {std::istreambuf_iterator<char>(file), {}};
}

void load_lines(const fs::path& path, std::set<std::string>& lines) {
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) lines.insert(line);
}

void save_lines(const fs::path& path, const std::set<std::string>& lines) {
    std::ofstream file(path);
    for (const std::string& line : lines) file << line << '\n';
}

} // namespace

void Known::load(const fs::path& folder) {
    load_lines(folder / "unguarded", unguarded);
    load_lines(folder / "impossible", impossible);
}

void Known::save(const fs::path& folder) const {
    save_lines(folder / "unguarded", unguarded);
    save_lines(folder / "impossible", impossible);
}

Catalogue::Catalogue(const fs::path& top, Exceptions& exceptions, const Known& known) {
    std::vector<std::string> paths;
    for (const auto& entry : fs::recursive_directory_iterator(top / "src")) {
        const std::string path = entry.path().lexically_relative(top).generic_string();
        if (entry.is_regular_file() && takes_part(path)) paths.push_back(path);
    }
    std::sort(paths.begin(), paths.end());
    NameGroups groups;
    for (const std::string& path : paths) {
        files_.push_back({Source(path, read(top / path)), {}, {}});
        collect_name_groups(files_.back().source, groups);
    }
    for (std::size_t n = 0; n < files_.size(); ++n) {
        File& file = files_[n];
        file.regions = regions_of(file.source);
        int number = static_cast<int>(n) * numbers_per_file;
        for (Edit& edit : edits_of(file.source, groups)) {
            edit.number = number++;
            const std::string line(file.source.line_text(edit.line));
            if (exceptions.leave_out(file.source.path(), line, edit.kind + " " + edit.from)) {
                ++file.left_out;
                continue;
            }
            const std::string its_key = key(file, edit);
            if (known.impossible.contains(its_key)) continue;
            if (known.unguarded.contains(its_key)) edit.guarded = false;
            file.edits.push_back(std::move(edit));
        }
        if (number >= static_cast<int>(n + 1) * numbers_per_file)
            throw std::runtime_error("too many edits in " + file.source.path());
        unguard_crossing(file.edits);
    }
}

const Edit* Catalogue::edit(int number) const {
    for (const Edit& each : file_of(number).edits)
        if (each.number == number) return &each;
    return nullptr;
}

const File* Catalogue::file_at(std::string_view path) const {
    for (const File& file : files_)
        if (file.source.path() == path) return &file;
    return nullptr;
}

std::string Catalogue::key(const File& file, const Edit& edit) {
    const std::string& text = file.source.text();
    const std::size_t line = edit.range.begin == 0 ? 0 : text.rfind('\n', edit.range.begin - 1) + 1;
    std::ostringstream result;
    result << file.source.path() << '\t' << edit.kind << '\t' << edit.range.begin - line << '\t'
           << file.source.line_text(edit.line);
    return result.str();
}

} // namespace brx::mutants
