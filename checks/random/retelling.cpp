#include "random/retelling.h"

#include <cstdlib>
#include <fstream>
#include <regex>
#include <stdexcept>

namespace brx::checks {

Deeds read_story(const std::string& file) {
    std::ifstream lines(file);
    if (!lines) throw std::runtime_error("There is no file " + file);
    Deeds story;
    for (std::string line; std::getline(lines, line);)
        if (!line.empty()) story.push_back(deed_of(line));
    return story;
}

void write_story(const std::string& file, const Deeds& story) {
    std::ofstream lines(file);
    for (const Deed& deed : story) lines << line_of(deed) << '\n';
}

/// What was found, what a sanitizer sums up, or the number of the signal.
std::string ending_of(const std::string& command, const std::string& file) {
    const std::string told = file + ".told";
    const int status = std::system((command + " '" + file + "' >'" + told + "' 2>&1").c_str());
    if (status == 0) return {};
    static const std::regex found(
        R"(^(FOUND: .*|SUMMARY: \w+: [^(]*|.*: runtime error: .*|Unhandled exception: .*?) *(\(.*)?\r?$)");
    std::ifstream lines(told);
    std::smatch match;
    for (std::string line; std::getline(lines, line);)
        if (std::regex_search(line, match, found)) return match[1];
    return "status " + std::to_string(status);
}

} // namespace brx::checks
