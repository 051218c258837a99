// Single edits to the product's portable sources, for `./check mutants`, whose script says in which order.

#include "mutants/catalogue.h"
#include "mutants/failures.h"
#include "mutants/guard.h"
#include "mutants/plan.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>

namespace {

using namespace brx::mutants;
namespace fs = std::filesystem;

constexpr const char* usage =
    "brx_mutants list  TOP STATE                 every edit: number, place, kind, from, to, how it is made\n"
    "brx_mutants files TOP STATE                 the sources that take part\n"
    "brx_mutants idle  TOP STATE                 the exceptions that leave nothing out\n"
    "brx_mutants guard TOP STATE TREE [NUMBER]   writes the sources with all edits compiled in, and one for "
    "real\n"
    "brx_mutants plain TOP STATE TREE NUMBER     writes the source of one edit with that one made\n"
    "brx_mutants learn TOP STATE LOG             what a compiler does not take is not compiled in again\n"
    "brx_mutants draw  TOP STATE SEED HOW-MANY   numbers of edits, `made` behind those that cannot be "
    "compiled in\n"
    "brx_mutants tests STATE/reach NUMBER        the checks that reach it, the most specific ones on a line "
    "first\n";

std::string read(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) throw std::runtime_error("cannot read " + path.string());
    return {std::istreambuf_iterator<char>(file), {}};
}

/// A file that stays as it is keeps its time, so that nothing is compiled again for it.
void write(const fs::path& path, const std::string& text) {
    if (fs::exists(path) && read(path) == text) return;
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << text;
}

void list(const Catalogue& catalogue) {
    for (const File& file : catalogue.files())
        for (const Edit& edit : file.edits)
            std::cout << edit.number << '\t' << file.source.path() << ':' << edit.line << '\t' << edit.kind
                      << '\t' << one_line(edit.from) << '\t' << one_line(edit.to) << '\t'
                      << (edit.guarded ? "guarded" : "made") << '\n';
}

void guard(const Catalogue& catalogue, const fs::path& tree, const Edit* real) {
    for (const File& file : catalogue.files()) {
        const bool here = real && &catalogue.file_of(real->number) == &file;
        write(tree / file.source.path(),
              guarded(file.source, file.edits, file.regions, here ? real : nullptr).text);
    }
}

void make_plainly(const Catalogue& catalogue, const fs::path& tree, int number) {
    const Edit& edit = *catalogue.edit(number);
    const Source& source = catalogue.file_of(number).source;
    std::string text(source.text());
    write(tree / source.path(),
          text.replace(edit.range.begin, edit.range.end - edit.range.begin, edit.replacement));
}

int run(const std::vector<std::string>& arguments) {
    const std::string command = arguments.at(0);
    if (command == "tests") {
        for (const Turn& turn : turns_for(read(arguments.at(1)), arguments.at(2)))
            std::cout << turn.seconds << ' ' << turn.filter << '\n';
        return 0;
    }
    const fs::path top = arguments.at(1);
    const fs::path state = arguments.at(2);
    Exceptions exceptions(read(top / "checks/mutants/left-out.txt"));
    Known known;
    known.load(state);
    const Catalogue catalogue(top, exceptions, known);
    if (command == "files") {
        for (const File& file : catalogue.files()) std::cout << file.source.path() << '\n';
    } else if (command == "list") {
        list(catalogue);
    } else if (command == "idle") {
        for (const std::string& line : exceptions.idle()) std::cout << line << '\n';
    } else if (command == "guard") {
        guard(catalogue, arguments.at(3),
              arguments.size() > 4 ? catalogue.edit(std::stoi(arguments[4])) : nullptr);
    } else if (command == "plain") {
        make_plainly(catalogue, arguments.at(3), std::stoi(arguments.at(4)));
    } else if (command == "learn") {
        std::cout << learn_from(read(arguments.at(3)), catalogue, known) << '\n';
        known.save(state);
    } else if (command == "draw") {
        for (const Edit* edit : drawn(catalogue, std::stoull(arguments.at(3)), std::stoul(arguments.at(4))))
            std::cout << edit->number << (edit->guarded ? "" : " made") << '\n';
    } else {
        return 2;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    try {
        if (argc > 2) {
            if (const int status = run({argv + 1, argv + argc}); status != 2) return status;
        }
        std::fputs(usage, stderr);
        return 2;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "brx_mutants: %s\n", failure.what());
        return 1;
    }
}
