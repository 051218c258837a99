#pragma once

#include <string>
#include <vector>

namespace brx::checks {

class FakeHost;

/// What can change about a host while a dialog is open, by its name.
std::vector<std::string> changes_of_a_host();

/// Lets it change; any number and text will do, and an unknown change is none.
void change(FakeHost& host, const std::string& what, int number, const std::string& text);

} // namespace brx::checks
