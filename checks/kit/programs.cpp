#include "kit/programs.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace brx::kit {

std::vector<Program> programs_in(const std::filesystem::path& list) {
    std::ifstream lines(list);
    std::vector<Program> programs;
    for (std::string line; std::getline(lines, line);) {
        std::istringstream fields(line);
        Program each;
        std::string kind, file;
        if (!(fields >> each.seconds >> kind >> each.name >> file)) continue;
        each.is_gtest = kind == "gtest";
        each.file = std::filesystem::path(file).make_preferred();
        std::getline(fields >> std::ws, each.arguments);
        programs.push_back(each);
    }
    if (programs.empty()) throw std::runtime_error(list.string() + " names no check program");
    return programs;
}

} // namespace brx::kit
