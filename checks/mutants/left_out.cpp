#include "mutants/left_out.h"

#include <sstream>
#include <stdexcept>

namespace brx::mutants {
namespace {

std::vector<std::string> fields_of(const std::string& line) {
    std::vector<std::string> fields;
    std::size_t begin = 0;
    for (std::size_t end; (end = line.find(" | ", begin)) != std::string::npos; begin = end + 3)
        fields.push_back(line.substr(begin, end - begin));
    fields.push_back(line.substr(begin));
    return fields;
}

bool is_named(std::string_view pattern, std::string_view path) {
    return pattern.ends_with("*") ? path.starts_with(pattern.substr(0, pattern.size() - 1)) : path == pattern;
}

bool is_within(std::string_view pattern, std::string_view text) {
    return pattern == "*" || text.find(pattern) != std::string_view::npos;
}

} // namespace

Exceptions::Exceptions(std::string_view list) {
    std::istringstream lines{std::string(list)};
    for (std::string line; std::getline(lines, line);) {
        if (line.empty() || line.starts_with("#")) continue;
        const std::vector<std::string> fields = fields_of(line);
        if (fields.size() != 4 || fields[3].empty())
            throw std::runtime_error("an exception without a reason: " + line);
        entries_.push_back({line, fields[0], fields[1], fields[2]});
    }
}

bool Exceptions::leave_out(std::string_view path, std::string_view line, std::string_view edit) {
    bool found = false;
    for (Entry& each : entries_)
        if (is_named(each.path, path) && is_within(each.line, line) && is_within(each.edit, edit))
            found = each.used = true;
    return found;
}

std::vector<std::string> Exceptions::idle() const {
    std::vector<std::string> lines;
    for (const Entry& each : entries_)
        if (!each.used) lines.push_back(each.whole);
    return lines;
}

} // namespace brx::mutants
