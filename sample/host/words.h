#pragma once

#include "common/error.h"

#include <cstdint>
#include <string>

namespace brx::host {

// What the host says to a person in a few words.

/// An error in one line: its description and, of a failure code, the code.
std::string in_one_line(const Error& error);

/// An error's number: failure codes are known by their hexadecimal form, run-time errors by their number.
std::string number_in_words(std::int32_t number);

/// What an item's quality means: "bad, not connected".
std::string quality_in_words(std::int32_t quality);

/// One of many: "1 subgroup", "2 subgroups".
std::string counted(std::int64_t count, const std::string& one, const std::string& many);

} // namespace brx::host
