#pragma once

#include "random/deed.h"

#include <string>

namespace brx::checks {

/// A story as a file has it.
Deeds read_story(const std::string& file);
void write_story(const std::string& file, const Deeds& story);

/// How a story ends that a program of its own tells, the command with the file behind it: in a few words, the
/// same for the same reason; "" when nothing was found.
std::string ending_of(const std::string& command, const std::string& file);

} // namespace brx::checks
