#include "endurance/labels.h"

#include "endurance/footprint.h"

#include "forms/win32/visual_styles.h"

namespace brx::checks {

namespace {

BOOL CALLBACK count_label(HWND window, LPARAM count) {
    wchar_t name[16] = L"";
    RealGetWindowClassW(window, name, 16);
    if (lstrcmpiW(name, L"Static") == 0) ++*reinterpret_cast<int*>(count);
    return TRUE;
}

BOOL CALLBACK count_labels_of(HWND window, LPARAM count) {
    EnumChildWindows(window, count_label, count);
    return TRUE;
}

} // namespace

int labels_now() {
    int count = 0;
    EnumThreadWindows(GetCurrentThreadId(), count_labels_of, reinterpret_cast<LPARAM>(&count));
    return count;
}

int blocks_of_a_bare_label() {
    constexpr int labels = 100;
    const VisualStyles styles;
    const auto make_one = [] {
        const HWND label =
            CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
        SendMessageW(label, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), 0);
        DestroyWindow(label);
    };
    make_one();
    const std::size_t before = blocks_in_use();
    for (int i = 0; i < labels; ++i) make_one();
    const std::size_t after = blocks_in_use();
    return after > before ? static_cast<int>((after - before + labels / 2) / labels) : 0;
}

} // namespace brx::checks
