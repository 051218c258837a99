#pragma once

namespace brx::checks {

/// How many handles there are; under Wine, how far up the tables of the system's handles are filled.
/// Something that is created and never destroyed moves these numbers up; what is destroyed in the end leaves
/// them where they were.
struct SystemHandles {
    int user = 0;
    int gdi = 0;
    int kernel = 0;
};

/// Under Wine, which does not count them for a program, measured by taking a handful of handles for a moment.
SystemHandles system_handles();

} // namespace brx::checks
