#pragma once

#include <stdexcept>

namespace brx::checks {

/// The story cannot go on. The failure has been recorded.
struct GaveUp : std::runtime_error {
    using std::runtime_error::runtime_error;
};

} // namespace brx::checks
