#pragma once

#include "bench/series.h"

namespace brx::bench {

/// Answers to the same key.
struct Answers {
    Series passes; ///< over the names, and nothing else
    Series keys;   ///< in the line in which an item is found, until the hit and its count are drawn
};

/// A key that leaves one in a hundred of so many leaves. Throws when the dialog does not say which it found.
Answers find_leaves(int leaves, int runs);

} // namespace brx::bench
