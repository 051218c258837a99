#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace brx::kit {

/// A check program of the kit.
struct Program {
    unsigned seconds = 0;  ///< its time limit
    bool is_gtest = false; ///< it takes --gtest_filter
    std::string name;
    std::filesystem::path file; ///< below the folder of its bits
    std::string arguments;
};

/// From a file with a line for each: seconds, gtest or plain, name, file, arguments.
/// @throws std::runtime_error when there are none.
std::vector<Program> programs_in(const std::filesystem::path& list);

} // namespace brx::kit
