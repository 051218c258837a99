#pragma once

#include "mutants/edit.h"

#include <string>
#include <vector>

namespace brx::mutants {

/// A source with edits compiled in, on the same lines.
struct Guarded {
    struct Placed {
        std::size_t edit;
        Range range; ///< in the guarded text
    };
    std::string text;
    std::vector<Placed> placed;
};

/// Takes back the guard of each edit whose ranges cross those of another one.
void unguard_crossing(std::vector<Edit>& edits);

/// Compiles in every edit that is guarded. `real`, when there is one, is made instead of its original.
Guarded guarded(const Source& source, const std::vector<Edit>& edits, const std::vector<Region>& regions,
                const Edit* real = nullptr);

} // namespace brx::mutants
