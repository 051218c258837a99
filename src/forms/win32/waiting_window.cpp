#include "forms/win32/waiting_window.h"

#include "common/trap.h"
#include "forms/win32/common_controls.h"
#include "forms/win32/dpi.h"
#include "forms/win32/empty_template.h"
#include "forms/win32/wide.h"
#include "forms/win32/window_name.h"
#include "win32/this_module.h"

#include <commctrl.h>

#include <array>
#include <string_view>
#include <utility>

namespace brx {

namespace {

// At 96 DPI.
constexpr SIZE inside = {380, 108};
constexpr RECT what_place = {11, 11, 369, 41};
constexpr RECT bar_place = {11, 47, 369, 60};
constexpr RECT how_far_place = {11, 78, 280, 93};
constexpr RECT stop_place = {294, 74, 369, 97};

constexpr DWORD frame = WS_POPUP | WS_CAPTION;
constexpr DWORD frame_ex = WS_EX_DLGMODALFRAME | WS_EX_TOOLWINDOW;

RECT at_scale(const RECT& place, unsigned dpi) {
    return {scaled(place.left, dpi), scaled(place.top, dpi), scaled(place.right, dpi),
            scaled(place.bottom, dpi)};
}

std::string sentence(const Work::Report& report) {
    const std::string what = told_what(report) + ".";
    if (report.wish == Work::Wish::go_on) return what;
    return what + (report.call_goes_on ? "\nThis call cannot be broken off: it ends when the server answers."
                                       : "\nIt ends with the call that is under way.");
}

/// What some systems put in the place of a window whose thread has not answered for long.
bool is_ghost(HWND window) {
    std::array<wchar_t, 8> name{};
    return window && GetClassNameW(window, name.data(), static_cast<int>(name.size())) != 0 &&
           std::wstring_view(name.data()) == L"Ghost";
}

} // namespace

WaitingWindow::WaitingWindow(HWND over, const Locale& locale, std::function<void()> stop)
    : over_(over),
      locale_(locale),
      stop_(std::move(stop)),
      dpi_(over ? dpi_of(over) : dpi_of(GetDesktopWindow())) {
    const LOGFONTW look = message_font(dpi_);
    font_.reset(CreateFontIndirectW(&look));
    EmptyTemplate empty;
    empty.dialog.style = frame;
    empty.dialog.dwExtendedStyle = frame_ex;
    handle_ = CreateDialogIndirectParamW(this_module(), &empty.dialog, nullptr, procedure,
                                         reinterpret_cast<LPARAM>(this));
    if (!handle_) return;
    set_window_name(handle_, "Waiting");
    SetWindowTextW(handle_, L"Please wait");
    const SIZE size = frame_around({scaled(inside.cx, dpi_), scaled(inside.cy, dpi_)}, frame, frame_ex, dpi_);
    SetWindowPos(handle_, nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    add(WC_STATICW, L"", SS_LEFT | SS_NOPREFIX, what_part, what_place);
    add(common_control(PROGRESS_CLASSW), L"", 0, bar_part, bar_place);
    add(WC_STATICW, L"", SS_LEFT | SS_NOPREFIX, how_far_part, how_far_place);
    add(WC_BUTTONW, L"Stop", BS_DEFPUSHBUTTON | WS_TABSTOP, IDCANCEL, stop_place);
}

WaitingWindow::~WaitingWindow() {
    if (!handle_) return;
    // Otherwise the system would choose who is in front then.
    if (over_ && GetForegroundWindow() == handle_) SetForegroundWindow(over_);
    DestroyWindow(handle_);
}

HWND WaitingWindow::add(const wchar_t* window_class, const wchar_t* text, DWORD style, int id,
                        RECT place) const {
    const RECT here = at_scale(place, dpi_);
    const HWND part =
        CreateWindowExW(0, window_class, text, WS_CHILD | WS_VISIBLE | style, here.left, here.top,
                        here.right - here.left, here.bottom - here.top, handle_,
                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), this_module(), nullptr);
    SendMessageW(part, WM_SETFONT, reinterpret_cast<WPARAM>(font_.get()), FALSE);
    return part;
}

void WaitingWindow::write(int id, const std::string& text) const {
    const HWND part = GetDlgItem(handle_, id);
    const std::wstring wanted = to_wide(text);
    if (wanted != window_text(part)) SetWindowTextW(part, wanted.c_str());
}

void WaitingWindow::tell(const Work::Report& report) {
    if (!handle_) return;
    write(what_part, sentence(report));
    write(how_far_part, told_how_far(report, locale_));
    const HWND bar = GetDlgItem(handle_, bar_part);
    ShowWindow(bar, report.total > 0 ? SW_SHOWNA : SW_HIDE);
    SendMessageW(bar, PBM_SETRANGE32, 0, report.total);
    SendMessageW(bar, PBM_SETPOS, static_cast<WPARAM>(report.done), 0);
    follow();
}

/// Stays in the middle of the dialog; above everything else only while a person works with that or with it.
void WaitingWindow::follow() {
    RECT place{};
    if (!over_ || !IsWindowVisible(over_) || IsIconic(over_) || !GetWindowRect(over_, &place))
        SystemParametersInfoW(SPI_GETWORKAREA, 0, &place, 0);
    UINT how = SWP_NOACTIVATE | SWP_NOSIZE | SWP_SHOWWINDOW;
    if (EqualRect(&place, &over_place_) && IsWindowVisible(handle_)) how |= SWP_NOMOVE;
    over_place_ = place;
    const HWND in_front = GetForegroundWindow();
    const bool above_all = !over_ || in_front == over_ || in_front == handle_ || is_ghost(in_front);
    HWND behind = HWND_TOPMOST;
    if (!above_all && is_above_all_) // right before the dialog again
        behind = GetWindow(over_, GW_HWNDPREV) ? GetWindow(over_, GW_HWNDPREV) : HWND_NOTOPMOST;
    else if (!above_all)
        how |= SWP_NOZORDER;
    is_above_all_ = above_all;
    RECT own{};
    GetWindowRect(handle_, &own);
    SetWindowPos(handle_, behind, place.left + (place.right - place.left - (own.right - own.left)) / 2,
                 place.top + (place.bottom - place.top - (own.bottom - own.top)) / 2, 0, 0, how);
}

INT_PTR CALLBACK WaitingWindow::procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept {
    switch (message) {
    case WM_INITDIALOG:
        SetWindowLongPtrW(window, DWLP_USER, lparam);
        return FALSE; // no focus yet
    case WM_ACTIVATE:
        if (LOWORD(wparam) == WA_INACTIVE) return FALSE;
        SetFocus(GetDlgItem(window, IDCANCEL));
        return TRUE;
    case WM_DPICHANGED:
        return TRUE; // it has been made for the dialog's
    case WM_NCDESTROY:
        remove_window_name(window);
        return FALSE;
    case WM_COMMAND:
        if (LOWORD(wparam) == IDCANCEL)
            attempt(reinterpret_cast<WaitingWindow*>(GetWindowLongPtrW(window, DWLP_USER))->stop_);
        return TRUE;
    default:
        return FALSE;
    }
}

} // namespace brx
