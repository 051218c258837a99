#pragma once

#include <stdexcept>
#include <string>

namespace brx::checks {

/// Something is not as it has to be.
struct Finding : std::runtime_error {
    /// The kind is the same whenever the same thing is wrong.
    Finding(const std::string& of_kind, const std::string& what) : std::runtime_error(what), kind(of_kind) {}
    std::string kind;
};

} // namespace brx::checks
