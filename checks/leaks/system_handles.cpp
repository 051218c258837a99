#include "leaks/system_handles.h"

#include "system/this_system.h"

#include <algorithm>
#include <vector>

namespace brx::checks {

namespace {

constexpr std::size_t handful = 64;

/// The index in a handle of a window or a pen: its low 16 bits.
template <class Handle> int index_of(Handle handle) {
    return static_cast<int>(reinterpret_cast<ULONG_PTR>(handle) & 0xFFFFU);
}
/// In one of the kernel's, which are all multiples of four.
template <> int index_of(HANDLE handle) { return static_cast<int>(reinterpret_cast<ULONG_PTR>(handle) / 4); }

template <class Handle, class Create, class Destroy> int highest_index(Create&& create, Destroy&& destroy) {
    std::vector<Handle> taken;
    int highest = 0;
    for (std::size_t i = 0; i < handful; ++i) {
        taken.push_back(create());
        highest = std::max(highest, index_of(taken.back()));
    }
    for (Handle each : taken) destroy(each);
    return highest;
}

SystemHandles as_windows_counts() {
    const HANDLE process = GetCurrentProcess();
    DWORD kernel = 0;
    GetProcessHandleCount(process, &kernel);
    return {.user = static_cast<int>(GetGuiResources(process, GR_USEROBJECTS)),
            .gdi = static_cast<int>(GetGuiResources(process, GR_GDIOBJECTS)),
            .kernel = static_cast<int>(kernel)};
}

} // namespace

SystemHandles system_handles() {
    if (!is_wine()) return as_windows_counts();
    SystemHandles handles;
    handles.user = highest_index<HWND>(
        [] {
            return CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, HWND_MESSAGE, nullptr, nullptr,
                                   nullptr);
        },
        DestroyWindow);
    handles.gdi = highest_index<HPEN>([] { return CreatePen(PS_SOLID, 1, RGB(1, 2, 3)); }, DeleteObject);
    handles.kernel =
        highest_index<HANDLE>([] { return CreateEventW(nullptr, FALSE, FALSE, nullptr); }, CloseHandle);
    return handles;
}

} // namespace brx::checks
