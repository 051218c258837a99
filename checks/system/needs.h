#pragma once

namespace brx::checks {

/// Skips, from now on and with the reason told, each check that needs what this system does not have: an
/// administrator, a screen, settings, Wine. The table says which; a line that fits no check of the program
/// fails.
void skip_what_the_system_lacks();

} // namespace brx::checks
