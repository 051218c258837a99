#pragma once

#include "random/deed.h"

#include <functional>

namespace brx::checks {

/// The shortest story that still ends as this one does, as far as leaving out deeds, and making what is left
/// simpler, leads there.
Deeds cut_down(Deeds story, const std::function<bool(const Deeds&)>& ends_the_same);

} // namespace brx::checks
