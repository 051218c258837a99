#pragma once

#include <string>
#include <vector>

namespace brx::checks {

struct KnownControl {
    std::string name;
    std::string kind;
};

/// What is on a form with this name; nothing for one that does not exist.
const std::vector<KnownControl>& controls_on(const std::string& form);
/// The names of all forms.
std::vector<std::string> all_forms();

} // namespace brx::checks
