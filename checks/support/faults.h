#pragma once

#include "common/trap.h"

#include <set>
#include <string>

namespace brx::checks {

/// Whether the checks of this suite are stories that are played with failing calls.
bool plays_with_a_failing_host(const std::string& suite);

/// Where an error goes that a procedure reports: most of the configuration dialog has the other library.
ErrorLibrary library_of(const std::string& location);

/// Where calls failed in the stories that have been played so far.
const std::set<std::string>& places_that_stories_reached();

} // namespace brx::checks
