#pragma once

#include "kit/outcome.h"

#include <filesystem>
#include <string>

namespace brx::kit {

/// Runs a program with whatever it prints going to a file; what it leaves running is ended with it.
/// @throws std::runtime_error when it does not start.
End run(const std::filesystem::path& program, const std::wstring& arguments, const std::filesystem::path& log,
        unsigned seconds);

} // namespace brx::kit
