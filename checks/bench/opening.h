#pragma once

#include <windows.h>

#include <psapi.h>

#include <cstddef>

namespace brx::bench {

/// Milliseconds. What other programs do meanwhile makes the elapsed time longer, but not the processor's.
struct Cost {
    double elapsed = 0;
    double processor = 0; ///< in steps of a hundredth of a second or so

    Cost operator-(const Cost& other) const { return {elapsed - other.elapsed, processor - other.processor}; }
};

/// What this process has cost since some moment.
inline Cost spent() {
    LARGE_INTEGER ticks{};
    LARGE_INTEGER per_second{};
    QueryPerformanceCounter(&ticks);
    QueryPerformanceFrequency(&per_second);
    FILETIME unused{};
    ULARGE_INTEGER in_system{};
    ULARGE_INTEGER in_program{};
    static_assert(sizeof(FILETIME) == sizeof(ULARGE_INTEGER));
    GetProcessTimes(GetCurrentProcess(), &unused, &unused, reinterpret_cast<FILETIME*>(&in_system),
                    reinterpret_cast<FILETIME*>(&in_program));
    return {1000.0 * static_cast<double>(ticks.QuadPart) / static_cast<double>(per_second.QuadPart),
            static_cast<double>(in_system.QuadPart + in_program.QuadPart) / 10'000};
}

/// The memory that this process has for itself.
inline std::size_t private_bytes() {
    PROCESS_MEMORY_COUNTERS counters{};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return counters.PagefileUsage;
}

/// What one opening of a window took.
struct Opening {
    Cost shown;            ///< until it was there and had nothing more to do
    Cost expanded;         ///< of opening the first branch after that
    std::size_t bytes = 0; ///< private memory at the end
};

} // namespace brx::bench
