#pragma once

#include "common/values/locale.h"
#include "forms/win32/gdi.h"
#include "forms/win32/visual_styles.h"
#include "forms/work.h"

#include <windows.h>

#include <functional>
#include <string>

namespace brx {

/// The small window that tells of work that lasts, over the dialog that does it. It belongs to a thread of
/// its own, to none of the dialog's windows, and takes no focus unless a person clicks it.
class WaitingWindow {
public:
    /// `over` is the dialog, or what it will lie over, or null.
    WaitingWindow(HWND over, const Locale& locale, std::function<void()> stop);
    ~WaitingWindow();
    WaitingWindow(const WaitingWindow&) = delete;
    WaitingWindow& operator=(const WaitingWindow&) = delete;

    HWND handle() const { return handle_; }
    void tell(const Work::Report& report);

private:
    enum Part : int { what_part = 100, how_far_part, bar_part };

    HWND add(const wchar_t* window_class, const wchar_t* text, DWORD style, int id, RECT place) const;
    void write(int id, const std::string& text) const;
    void follow();
    static INT_PTR CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept;

    const VisualStyles styles_;
    HWND over_;
    const Locale& locale_;
    bool is_above_all_ = false;
    std::function<void()> stop_;
    unsigned dpi_;
    FontHandle font_;
    HWND handle_ = nullptr;
    RECT over_place_{};
};

} // namespace brx
