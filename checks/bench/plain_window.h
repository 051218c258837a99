#pragma once

#include "forms/win32/visual_styles.h"

#include <windows.h>

#include <oleauto.h>

namespace brx::bench {

/// A window with a native control in it, of the same kind as the dialog's.
class PlainWindow {
public:
    PlainWindow(const wchar_t* control_class, DWORD style)
        : window_(CreateWindowExW(0, WC_DIALOG, L"", WS_OVERLAPPEDWINDOW, 100, 100, 600, 500, nullptr,
                                  nullptr, nullptr, nullptr)),
          control_(CreateWindowExW(WS_EX_CLIENTEDGE, control_class, L"", WS_CHILD | WS_VISIBLE | style, 10,
                                   10, 250, 350, window_, nullptr, nullptr, nullptr)),
          procedure_(reinterpret_cast<WNDPROC>(GetWindowLongPtrW(control_, GWLP_WNDPROC))) {
        SetWindowLongPtrW(window_, DWLP_DLGPROC, reinterpret_cast<LONG_PTR>(answer));
        send(WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)));
    }
    ~PlainWindow() { DestroyWindow(window_); }
    PlainWindow(const PlainWindow&) = delete;
    PlainWindow& operator=(const PlainWindow&) = delete;

    LRESULT send(UINT message, WPARAM wparam = 0, LPARAM lparam = 0) const {
        return CallWindowProcW(procedure_, control_, message, wparam, lparam);
    }
    void show() const {
        ShowWindow(window_, SW_SHOW);
        SetFocus(control_);
        serve();
    }
    /// Until there is nothing more to do.
    static void serve() {
        MSG message{};
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }

private:
    static INT_PTR CALLBACK answer(HWND, UINT, WPARAM, LPARAM) { return FALSE; }

    VisualStyles styles_;
    HWND window_;
    HWND control_;
    WNDPROC procedure_;
};

/// As an argument of a call.
inline VARIANT number(LONG value) {
    VARIANT result{};
    V_VT(&result) = VT_I4;
    V_I4(&result) = value;
    return result;
}

} // namespace brx::bench
