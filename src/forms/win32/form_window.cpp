#include "forms/win32/form_window.h"

#include "common/error.h"
#include "forms/button.h"
#include "forms/win32/dpi.h"
#include "forms/win32/empty_template.h"
#include "forms/win32/gdi.h"
#include "forms/win32/wide.h"
#include "forms/win32/window_name.h"
#include "win32/this_module.h"

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace brx {

FormWindow::FormWindow(Win32Engine& engine, Form& form) : Peer(form), engine_(engine), form_(form) {}

// Delegates, so that what `create` has made is destroyed when the rest of it fails.
FormWindow::FormWindow(Win32Engine& engine, Form& form, HWND owner) : FormWindow(engine, form) {
    create(owner);
}

FormWindow::~FormWindow() {
    if (handle_) DestroyWindow(std::exchange(handle_, nullptr));
}

void FormWindow::create(HWND owner) {
    EmptyTemplate empty;
    empty.dialog.style = WS_POPUP | WS_CAPTION | WS_SYSMENU;
    if (form_.design().resizable)
        empty.dialog.style |=
            WS_THICKFRAME | WS_MAXIMIZEBOX | WS_CLIPCHILDREN; // no flicker while it is sized
    else
        empty.dialog.style |= DS_MODALFRAME;
    empty.dialog.dwExtendedStyle = WS_EX_DLGMODALFRAME;
    {
        const VisualStyles styles;
        handle_ = CreateDialogIndirectParamW(this_module(), &empty.dialog, owner, procedure,
                                             reinterpret_cast<LPARAM>(this));
    }
    if (!handle_ || !set_window_name(handle_, form_.name())) throw Error(error::out_of_memory);

    // Only on its monitor it is known how large it will be.
    move_to(first_position(owner, {0, 0}), {0, 0});
    dpi_ = dpi_of(handle_);
    renew_font();
    move_to(first_position(owner, {0, 0}), outer_size());
    move_to(first_position(owner, outer_size()), outer_size());
    refresh(Aspect::text);

    const Showing echo(*this);
    for (Control* control : form_.controls_in_tab_order()) peers_.push_back(make_peer(*this, *control));
    // Only among all of them it is clear what lies before what.
    for (const auto& peer : peers_) peer->refresh(Aspect::everything);
    if (const Button* button = form_.default_button())
        SendMessageW(handle_, DM_SETDEFID,
                     static_cast<WPARAM>(GetDlgCtrlID(static_cast<ControlPeer*>(button->peer())->handle())),
                     0);
    mark_default_button(nullptr);
}

FontHandle FormWindow::renew_font() {
    LOGFONTW wanted = message_font(dpi_);
    const std::wstring family = to_wide(form_.design().font_family);
    if (!family.empty()) {
        const std::size_t length = std::min(family.size(), std::size(wanted.lfFaceName) - 1);
        *std::copy_n(family.begin(), length, wanted.lfFaceName) = L'\0';
    }
    FontHandle font(CreateFontIndirectW(&wanted));
    if (!font) throw Error(error::out_of_memory);
    font_.swap(font);
    line_height_ = TextMeasure(handle_, font_.get()).height();
    return font;
}

/// Of the window whose client area is as designed. An open window's frame is measured: only some of the
/// systems scale it with the monitor.
SIZE FormWindow::outer_size() const {
    const Size& design = form_.design().size;
    const SIZE client{scaled(design.width, dpi_), scaled(design.height, dpi_)};
    RECT outside{};
    RECT inside{};
    GetWindowRect(handle_, &outside);
    GetClientRect(handle_, &inside);
    if (inside.right > 0 && inside.bottom > 0)
        return {client.cx + (outside.right - outside.left) - inside.right,
                client.cy + (outside.bottom - outside.top) - inside.bottom};
    return frame_around(client, static_cast<DWORD>(GetWindowLongW(handle_, GWL_STYLE)),
                        static_cast<DWORD>(GetWindowLongW(handle_, GWL_EXSTYLE)), dpi_);
}

void FormWindow::move_to(POINT position, SIZE size) const {
    SetWindowPos(handle_, nullptr, position.x, position.y, size.cx, size.cy,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
}

/// Centred over its owner; in the middle of the screen when there is none to be seen.
POINT FormWindow::first_position(HWND owner, SIZE size) const {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    const bool minimized = owner && IsIconic(owner);
    WINDOWPLACEMENT restored{};
    restored.length = sizeof restored;
    if (minimized) GetWindowPlacement(owner, &restored);
    GetMonitorInfoW(
        minimized ? MonitorFromRect(&restored.rcNormalPosition, MONITOR_DEFAULTTONEAREST)
                  : MonitorFromWindow(owner, owner ? MONITOR_DEFAULTTONEAREST : MONITOR_DEFAULTTOPRIMARY),
        &monitor);
    const RECT& work = monitor.rcWork;
    RECT over = work;
    if (owner && !minimized && IsWindowVisible(owner)) GetWindowRect(owner, &over);
    const auto middle = [](LONG from, LONG to, LONG length, LONG low, LONG high) {
        return std::max(low, std::min(from + (to - from - length) / 2, high - length));
    };
    return {middle(over.left, over.right, size.cx, work.left, work.right),
            middle(over.top, over.bottom, size.cy, work.top, work.bottom)};
}

FormWindow::Area FormWindow::area_of(const Control* control) const {
    if (!control) {
        const Size& design = form_.design().size;
        RECT client{};
        GetClientRect(handle_, &client);
        return {client,
                {std::max<LONG>(0, client.right - scaled(design.width, dpi_)),
                 std::max<LONG>(0, client.bottom - scaled(design.height, dpi_))}};
    }
    const auto [around, growth] = area_of(control->container().as_control());
    const Place& place = control->place();
    // What code has put beyond the upper left corner is away, however large the form is.
    const bool away = place.left + place.width <= 0 || place.top + place.height <= 0;
    const auto given = [&](Anchor anchor, LONG length) {
        return !away && has(control->anchor(), anchor) ? length : 0;
    };
    // Of two halves the right one takes what cannot be divided.
    const LONG half = growth.cx / 2;
    const LONG own_half = has(control->anchor(), Anchor::middle) ? growth.cx - half : half;
    const SIZE own_growth = {given(Anchor::stretch_width, growth.cx) +
                                 given(Anchor::stretch_half_width, own_half),
                             given(Anchor::stretch_height, growth.cy)};
    const LONG left = around.left + given(Anchor::right, growth.cx) + given(Anchor::middle, half);
    const LONG top = around.top + given(Anchor::bottom, growth.cy);
    // Edges are scaled, not lengths, so that what touches at 100 % touches at any scale.
    return {{left + scaled(place.left, dpi_), top + scaled(place.top, dpi_),
             left + scaled(place.left + place.width, dpi_) + own_growth.cx,
             top + scaled(place.top + place.height, dpi_) + own_growth.cy},
            own_growth};
}

ControlPeer* FormWindow::peer_of(HWND control) const {
    for (const auto& peer : peers_) {
        auto* const shown = dynamic_cast<ControlPeer*>(peer.get());
        if (shown && control && shown->handle() == control) return shown;
    }
    return nullptr;
}

void FormWindow::place_controls() {
    for (const auto& peer : peers_) peer->refresh(Aspect::place);
}

void FormWindow::give_font_to_controls() {
    for (const auto& peer : peers_)
        if (auto* const control = dynamic_cast<ControlPeer*>(peer.get())) control->font_changed();
}

void FormWindow::redraw_area_of(HWND window) const {
    if (!IsWindowVisible(handle_)) return;
    RECT area{};
    GetWindowRect(window, &area);
    MapWindowPoints(nullptr, handle_, reinterpret_cast<POINT*>(&area), 2);
    RedrawWindow(handle_, &area, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void FormWindow::open() {
    // Not ShowWindow, whose first call in a process obeys whoever started the process.
    SetWindowPos(handle_, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_SHOWWINDOW);
    if (!GetWindow(handle_, GW_OWNER))
        SetForegroundWindow(handle_);
    else if (GetActiveWindow() != handle_)
        SetActiveWindow(handle_);
    show_focus();
}

void FormWindow::refresh(Aspect aspects) {
    attempt([&] {
        if (!handle_) return;
        const Showing echo(*this);
        if (has(aspects, Aspect::text)) {
            const std::wstring caption = to_wide(form_.caption());
            if (caption != window_text(handle_)) SetWindowTextW(handle_, caption.c_str());
        }
        if (has(aspects, Aspect::focus)) show_focus();
    });
}

HWND FormWindow::window_of(const Control* focused) const {
    const auto* peer = focused ? dynamic_cast<ControlPeer*>(focused->peer()) : nullptr;
    return peer && peer->handle() ? peer->handle() : handle_;
}

void FormWindow::show_focus() {
    // While another window is active, taking the focus would bring this one in front of it.
    if (!handle_ || GetActiveWindow() != handle_) return;
    const HWND wanted = window_of(form_.focused());
    if (GetFocus() == wanted) return;
    const Showing echo(*this);
    SetFocus(wanted);
}

void FormWindow::focus_came_to(const ControlPeer& peer) noexcept {
    if (!handle_) return;
    mark_default_button(peer.handle());
    if (is_showing()) return;
    Control& control = peer.control();
    const bool done = deliver([&] { return by_key_ ? control.user_take_focus() : control.user_focus(); });
    if (!done) PostMessageW(handle_, focus_message, 0, 0);
}

/// The button that Enter presses stands out: the one with the focus, or else the form's default button.
void FormWindow::mark_default_button(HWND focused) const {
    const ControlPeer* at_focus = peer_of(focused);
    const bool button_has_focus = at_focus && dynamic_cast<const Button*>(&at_focus->control());
    for (const Control* control : form_.controls()) {
        const auto* const each = dynamic_cast<const Button*>(control);
        if (!each || !each->peer()) continue;
        const HWND button = static_cast<ControlPeer*>(each->peer())->handle();
        const bool marked = (SendMessageW(button, WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON) != 0;
        const bool wanted = button_has_focus ? button == focused : each->is_default();
        if (marked != wanted)
            SendMessageW(button, BM_SETSTYLE, wanted ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON, TRUE);
    }
}

void FormWindow::set_tip(HWND control, const std::wstring& text) {
    if (!tips_ && text.empty()) return;
    if (!tips_) {
        const VisualStyles styles;
        tips_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, L"", WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX,
                                0, 0, 0, 0, handle_, nullptr, this_module(), nullptr);
        SendMessageW(tips_, TTM_SETMAXTIPWIDTH, 0, scaled(600, dpi_));
        // As long as the system lets it: a long text takes its time to read.
        SendMessageW(tips_, TTM_SETDELAYTIME, TTDT_AUTOPOP, std::numeric_limits<SHORT>::max());
    }
    std::wstring shown = text;
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V2_SIZE; // what unthemed systems know too
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = handle_;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    tool.lpszText = shown.data();
    SendMessageW(tips_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    if (!text.empty()) SendMessageW(tips_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

} // namespace brx
