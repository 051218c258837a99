#pragma once

#include <cstdint>
#include <string>

namespace brx::checks {

// Both throw a Finding when something is wrong.

/// Random deeds at a public class. The file always has what was done since everything was well.
int play(const std::string& class_name, std::uint64_t seed, int deeds, const std::string& file);

/// The story in the file.
int retell(const std::string& file);

} // namespace brx::checks
