#include "forms/button.h"
#include "forms/win32/describe.h"
#include "forms/win32/dpi.h"
#include "forms/win32/engine.h"
#include "forms/win32/form_window.h"
#include "forms/win32/timer_peer.h"
#include "forms/win32/window_name.h"

#include <algorithm>

namespace brx {

INT_PTR CALLBACK FormWindow::procedure(HWND handle, UINT message, WPARAM wparam, LPARAM lparam) noexcept {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrW(handle, DWLP_USER, lparam);
        return FALSE; // the focus comes later
    }
    auto* self = reinterpret_cast<FormWindow*>(GetWindowLongPtrW(handle, DWLP_USER));
    INT_PTR handled = FALSE;
    if (self)
        attempt([&] {
            handled = self->holds(handle, message, wparam, lparam)
                          ? TRUE
                          : self->handle_message(handle, message, wparam, lparam);
        });
    return handled;
}

INT_PTR FormWindow::handle_message(HWND handle, UINT message, WPARAM wparam, LPARAM lparam) {
    const auto answer = [&](LRESULT result) {
        SetWindowLongPtrW(handle, DWLP_MSGRESULT, result);
        return TRUE;
    };
    switch (message) {
    case WM_COMMAND:
        return command(wparam, reinterpret_cast<HWND>(lparam));
    case WM_DRAWITEM: {
        const auto& part = *reinterpret_cast<const DRAWITEMSTRUCT*>(lparam);
        if (ControlPeer* const peer = peer_of(part.hwndItem)) peer->draw(part);
        return TRUE;
    }
    case WM_NOTIFY: {
        auto& notification = *reinterpret_cast<NMHDR*>(lparam);
        ControlPeer* const peer = peer_of(notification.hwndFrom);
        return peer ? answer(peer->notified_of(notification)) : FALSE;
    }
    case WM_CLOSE:
        deliver([&] { return form_.user_close(); });
        return TRUE;
    case WM_ENDSESSION:
        // By then everybody has agreed to it. Show returns, as by the close box, while there is time.
        if (wparam) form_.unload();
        return TRUE;
    case WM_HELP:
        deliver([&] { return form_.user_help(); });
        return TRUE;
    case WM_TIMER:
        tick(wparam);
        return TRUE;

    // The form knows where the focus was, the system need not remember it.
    case WM_ACTIVATE:
        if (LOWORD(wparam) == WA_INACTIVE) return FALSE;
        show_focus();
        return TRUE;
    case WM_SETFOCUS:
    case focus_message:
        show_focus();
        return TRUE;

    case WM_SETCURSOR:
        if (!engine_.is_busy(form_) || static_cast<SHORT>(LOWORD(lparam)) == HTERROR) return FALSE;
        SetCursor(LoadCursorW(nullptr, IDC_WAIT));
        return answer(TRUE);
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN:
        if (const ControlPeer* peer = peer_of(reinterpret_cast<HWND>(lparam)))
            return reinterpret_cast<INT_PTR>(peer->set_colors(reinterpret_cast<HDC>(wparam)));
        return FALSE;

    case WM_SIZE:
        if (wparam != SIZE_MINIMIZED) place_controls();
        return TRUE;
    case WM_GETMINMAXINFO: {
        const SIZE least = outer_size();
        reinterpret_cast<MINMAXINFO*>(lparam)->ptMinTrackSize = {least.cx, least.cy};
        return TRUE;
    }
    case WM_DPICHANGED:
        dpi_changed(LOWORD(wparam), *reinterpret_cast<const RECT*>(lparam));
        return TRUE;
    case WM_SYSCOLORCHANGE:
    case WM_SETTINGCHANGE:
        // The system tells top-level windows only.
        for (HWND child = GetWindow(handle, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
            SendMessageW(child, message, wparam, lparam);
        looks_changed();
        return TRUE;
    case WM_THEMECHANGED:
        looks_changed();
        return TRUE;

    case WM_NCDESTROY:
        SetWindowLongPtrW(handle, DWLP_USER, 0);
        remove_window_name(handle);
        handle_ = nullptr;
        // Whoever destroyed it, with its owner for instance: there is nothing left to serve.
        form_.unload();
        // A message box over it sees with the next message that it has gone too.
        PostThreadMessageW(GetCurrentThreadId(), WM_NULL, 0, 0);
        return FALSE;
    default:
        if (message == describe_message()) return answer(describe(form_, handle_, wparam, lparam));
        return FALSE;
    }
}

bool FormWindow::command(WPARAM wparam, HWND sender) {
    if (ControlPeer* peer = peer_of(sender)) {
        peer->notified(HIWORD(wparam));
        return true;
    }
    if (LOWORD(wparam) == IDCANCEL && !deliver([&] { return form_.user_shortcut(Shortcut::leave); }))
        if (Button* cancel = form_.cancel_button()) deliver([&] { return cancel->user_click(); });
    return true;
}

void FormWindow::tick(UINT_PTR timer) {
    for (const auto& peer : peers_) {
        auto* ticking = dynamic_cast<TimerPeer*>(peer.get());
        if (ticking && ticking->id() == timer) return ticking->tick();
    }
}

void FormWindow::dpi_changed(unsigned dpi, const RECT& proposed) {
    dpi_ = dpi;
    const FontHandle former = renew_font();
    const POINT position{proposed.left, proposed.top};
    move_to(position, outer_size()); // with the frame that it has at the new scale
    SIZE size = outer_size();
    if (form_.design().resizable)
        size = {std::max(size.cx, proposed.right - proposed.left),
                std::max(size.cy, proposed.bottom - proposed.top)};
    move_to(position, size);
    give_font_to_controls();
    RedrawWindow(handle_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void FormWindow::looks_changed() {
    const FontHandle former = renew_font();
    give_font_to_controls();
    RedrawWindow(handle_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

} // namespace brx
