#pragma once

#include "mutants/catalogue.h"

#include <string_view>

namespace brx::mutants {

/// Learns from a compiler's messages which guarded edits it does not take. Gives how many are new.
int learn_from(std::string_view log, const Catalogue& catalogue, Known& known);

} // namespace brx::mutants
