#include "forms/win32/control_peer.h"

#include "common/trap.h"
#include "forms/accessible_name.h"
#include "forms/win32/form_window.h"
#include "forms/win32/visual_styles.h"
#include "forms/win32/window_name.h"
#include "win32/this_module.h"

namespace brx {

ControlPeer::ControlPeer(FormWindow& window, Control& control, const NativeControl& native)
    : Peer(control), window_(window), control_(control) {
    const VisualStyles styles;
    const std::wstring text = native.text_is_hidden ? to_wide(accessible_name_of(control)) : std::wstring();
    handle_ = CreateWindowExW(native.ex_style, native.window_class, text.c_str(),
                              WS_CHILD | WS_CLIPSIBLINGS | native.style, 0, 0, 0, 0, window.handle(),
                              reinterpret_cast<HMENU>(window.next_id()), this_module(), nullptr);
    if (!handle_ || !set_window_name(handle_, control.name())) {
        if (handle_) DestroyWindow(handle_);
        throw Error(error::out_of_memory);
    }
    SetWindowLongPtrW(handle_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    native_procedure_ = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(handle_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
    send(WM_SETFONT, reinterpret_cast<WPARAM>(window.font()), FALSE);
}

ControlPeer::~ControlPeer() {
    closing_ = true;
    if (handle_) DestroyWindow(handle_);
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
    // A box that was made red has to stand out in high contrast too, by the system's colours alone.
    const bool own = !Palette::is_system(control_.fore_color()) || !Palette::is_system(control_.back_color());
    const bool exchanged = own && Palette::high_contrast();
    const Color text = exchanged ? color::window : control_.fore_color();
    const Color back = exchanged ? color::window_text : control_.back_color();
    SetTextColor(dc, enabled ? Palette::rgb(text) : GetSysColor(COLOR_GRAYTEXT));
    SetBkColor(dc, Palette::rgb(back));
    return window_.palette().brush(back);
}

LRESULT ControlPeer::handle_message(UINT message, WPARAM wparam, LPARAM lparam) {
    return send_directly(message, wparam, lparam);
}

LRESULT CALLBACK ControlPeer::procedure(HWND handle, UINT message, WPARAM wparam, LPARAM lparam) noexcept {
    auto& self = *reinterpret_cast<ControlPeer*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
    if (message == WM_NCDESTROY) {
        remove_window_name(handle);
        self.handle_ = nullptr;
    }
    if (!self.handle_ || self.closing_)
        return CallWindowProcW(self.native_procedure_, handle, message, wparam, lparam);
    LRESULT result = 0;
    attempt([&] {
        if (!self.window_.holds(handle, message, wparam, lparam))
            result = self.handle_message(message, wparam, lparam);
    });
    if (message == WM_SETFOCUS) self.window_.focus_came_to(self);
    return result;
}

} // namespace brx
