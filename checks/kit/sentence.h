#pragma once

#include <string>

namespace brx::kit {

/// What the name of a check says: "ServicesTest.AMessageBoxLiesOverTheForm/2" is
/// "Services: a message box lies over the form (2)".
std::string sentence(const std::string& check);

} // namespace brx::kit
