#pragma once

namespace brx::checks {

/// How far up the tables of the system's handles are filled. Something that is created and never destroyed
/// moves these numbers up; what is destroyed in the end leaves them where they were.
struct SystemHandles {
    int user = 0;
    int gdi = 0;
    int kernel = 0;
};

/// Measured by taking a handful of handles for a moment, because not every system counts them for a program.
SystemHandles system_handles();

} // namespace brx::checks
