#pragma once

#include "mutants/edit.h"
#include "mutants/left_out.h"

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace brx::mutants {

/// What became known of edits while they were compiled in. They are told by their lines, so that it holds as
/// long as these stay.
struct Known {
    std::set<std::string> unguarded;  ///< can only be made for real
    std::set<std::string> impossible; ///< do not compile

    void load(const std::filesystem::path& folder);
    void save(const std::filesystem::path& folder) const;
};

struct File {
    Source source;
    std::vector<Edit> edits; ///< without those that are left out
    std::vector<Region> regions;
    int left_out = 0;
};

/// The product's portable sources below a folder, with their edits. A file's edits have numbers of their own,
/// so that a change of one file is none to the others.
class Catalogue {
public:
    Catalogue(const std::filesystem::path& top, Exceptions& exceptions, const Known& known);

    const std::vector<File>& files() const { return files_; }
    /// Null when there is none.
    const Edit* edit(int number) const;
    const File& file_of(int number) const {
        return files_[static_cast<std::size_t>(number / numbers_per_file)];
    }
    const File* file_at(std::string_view path) const;

    static std::string key(const File& file, const Edit& edit);

private:
    static constexpr int numbers_per_file = 2048;
    std::vector<File> files_;
};

} // namespace brx::mutants
