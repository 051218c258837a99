#pragma once

#include <string>
#include <vector>

namespace brx::checks {

/// The places of failure in the configuration dialog and those that only it opens.
std::vector<std::string> configuration_places();

} // namespace brx::checks
