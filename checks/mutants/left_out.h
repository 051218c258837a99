#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace brx::mutants {

/// The edits that no native check can be asked to notice, each with its reason: lines "file | text in its
/// line | the edit | reason". `*` stands for any; a file ends in `*` when it names all that begin so.
class Exceptions {
public:
    /// Throws for a line without all of its fields.
    explicit Exceptions(std::string_view list);

    bool leave_out(std::string_view path, std::string_view line, std::string_view edit);
    /// The lines of the list that left nothing out.
    std::vector<std::string> idle() const;

private:
    struct Entry {
        std::string whole, path, line, edit;
        bool used = false;
    };
    std::vector<Entry> entries_;
};

} // namespace brx::mutants
