#include "forms/win32/control_peer.h"

#include "common/trap.h"
#include "forms/win32/form_window.h"
#include "forms/win32/visual_styles.h"
#include "forms/win32/window_name.h"
#include "win32/this_module.h"

#include <commctrl.h>

namespace brx {

namespace {
constexpr UINT_PTR subclass_id = 1;
}

ControlPeer::ControlPeer(FormWindow& window, Control& control, const NativeControl& native)
    : Peer(control), window_(window), control_(control) {
    const VisualStyles styles;
    handle_ = CreateWindowExW(native.ex_style, native.window_class, L"",
                              WS_CHILD | WS_CLIPSIBLINGS | native.style, 0, 0, 0, 0, window.handle(),
                              reinterpret_cast<HMENU>(window.next_id()), this_module(), nullptr);
    if (handle_) native_procedure_ = reinterpret_cast<WNDPROC>(GetWindowLongPtrW(handle_, GWLP_WNDPROC));
    if (!handle_ || !set_window_name(handle_, control.name()) ||
        !SetWindowSubclass(handle_, procedure, subclass_id, reinterpret_cast<DWORD_PTR>(this)))
        throw Error(error::out_of_memory);
    send(WM_SETFONT, reinterpret_cast<WPARAM>(window.font()), FALSE);
}

ControlPeer::~ControlPeer() {
    if (!handle_) return;
    RemoveWindowSubclass(handle_, procedure, subclass_id);
    remove_window_name(handle_);
    DestroyWindow(handle_);
}

void ControlPeer::refresh(Aspect aspects) {
    // Nothing can be done about a failure here: the window then lags behind its control.
    attempt([&] {
        const FormWindow::Showing echo(window_);
        if (handle_) show(aspects);
    });
}

void ControlPeer::show(Aspect aspects) {
    if (has(aspects, Aspect::place)) move_to(window_.place_of(control_));
    if (has(aspects, Aspect::enabled) && (IsWindowEnabled(handle_) != FALSE) != control_.takes_input())
        EnableWindow(handle_, control_.takes_input());
    if (has(aspects, Aspect::visible)) {
        const bool visible = (GetWindowLongW(handle_, GWL_STYLE) & WS_VISIBLE) != 0;
        if (visible != control_.shows()) ShowWindow(handle_, control_.shows() ? SW_SHOWNA : SW_HIDE);
    }
    if (has(aspects, Aspect::colors)) window_.redraw_area_of(handle_);
}

void ControlPeer::show_text(const std::string& text) {
    const std::wstring wanted = to_wide(text);
    if (wanted != window_text(handle_)) SetWindowTextW(handle_, wanted.c_str());
}

void ControlPeer::font_changed() {
    if (!handle_) return;
    send(WM_SETFONT, reinterpret_cast<WPARAM>(window_.font()), FALSE);
    refresh(Aspect::place);
}

void ControlPeer::move_to(const RECT& place) {
    // Nothing is copied: where it lay something else may have been drawn already.
    SetWindowPos(handle_, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER | SWP_NOCOPYBITS);
}

HBRUSH ControlPeer::set_colors(HDC dc) const {
    // The system knows best how most disabled controls look.
    const bool enabled = IsWindowEnabled(handle_) != FALSE;
    if (!enabled && !colored_when_disabled()) return nullptr;
    Palette& palette = window_.palette();
    SetTextColor(dc, enabled ? Palette::rgb(control_.fore_color()) : GetSysColor(COLOR_GRAYTEXT));
    SetBkColor(dc, Palette::rgb(control_.back_color()));
    return palette.brush(control_.back_color());
}

LRESULT ControlPeer::handle_message(UINT message, WPARAM wparam, LPARAM lparam) {
    return DefSubclassProc(handle_, message, wparam, lparam);
}

LRESULT CALLBACK ControlPeer::procedure(HWND handle, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR,
                                        DWORD_PTR data) noexcept {
    auto& self = *reinterpret_cast<ControlPeer*>(data);
    if (message == WM_NCDESTROY) {
        remove_window_name(handle);
        RemoveWindowSubclass(handle, procedure, subclass_id);
        self.handle_ = nullptr;
        return DefSubclassProc(handle, message, wparam, lparam);
    }
    LRESULT result = 0;
    attempt([&] { result = self.handle_message(message, wparam, lparam); });
    if (message == WM_SETFOCUS) self.window_.focus_came_to(self);
    return result;
}

} // namespace brx
