#pragma once

#include <functional>
#include <string>

namespace brx::checks {

/// Why nothing can be said yet of what all checks of these suites did together; "" when all of them have run.
/// A run of a part of the checks has a reason, one in another order may; otherwise the check that asks fails.
std::string why_not_all_ran(const std::function<bool(const std::string& suite)>& is_meant);

} // namespace brx::checks
