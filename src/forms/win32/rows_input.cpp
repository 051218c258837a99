// What a list asks for, and what a person does to it.

#include "forms/win32/form_window.h"
#include "forms/win32/rows_peer.h"

#include <windowsx.h>

#include <algorithm>
#include <utility>

namespace brx {

namespace {

/// How some systems ask for a row that begins with what is typed; not every compiler's headers name it.
constexpr UINT find_beginning = 4;

} // namespace

LRESULT RowsPeer::notified_of(NMHDR& notification) {
    switch (notification.code) {
    case LVN_GETDISPINFOW:
        answer(reinterpret_cast<NMLVDISPINFOW&>(notification).item);
        return 0;
    case LVN_ODFINDITEMW:
        return find(reinterpret_cast<const NMLVFINDITEMW&>(notification));
    case NM_CUSTOMDRAW:
        return paint(reinterpret_cast<NMLVCUSTOMDRAW&>(notification));
    case LVN_ITEMCHANGED:
    case LVN_ODSTATECHANGED:
        // From tools that help people who cannot see, for instance.
        if (!window().is_showing() && !taking_input_) report_selection();
        return 0;
    default:
        return 0;
    }
}

void RowsPeer::answer(LVITEMW& asked) {
    if ((asked.mask & LVIF_TEXT) == 0) return;
    const bool known = in_range(asked.iItem, asked.iSubItem);
    next_answer_ = 1 - next_answer_;
    std::wstring& text = answers_[next_answer_];
    to_wide(known ? cell(asked.iItem, asked.iSubItem) : std::string_view(), text);
    asked.pszText = text.data();
}

/// Typing looks for a row that begins so.
LRESULT RowsPeer::find(const NMLVFINDITEMW& sought) const {
    if ((sought.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL | find_beginning)) == 0) return -1;
    return row_beginning_with(from_wide(sought.lvfi.psz), sought.iStart);
}

LRESULT RowsPeer::handle_message(UINT message, WPARAM wparam, LPARAM lparam) {
    const POINT point = {GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)};
    switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN:
        if (GetFocus() != handle()) SetFocus(handle());
        if (!handle()) return 0;
        if (message == WM_RBUTTONDOWN)
            press_right(row_at(point));
        else
            press(row_at(point), message == WM_LBUTTONDBLCLK);
        return 0;
    case WM_MOUSEMOVE:
        mouse_moved(point);
        break;
    case WM_GETDLGCODE:
        return dialog_code(wparam, lparam);
    case WM_KEYDOWN:
    case WM_CHAR: {
        const bool taken = message == WM_KEYDOWN
                               ? take_key(wparam)
                               : wparam == VK_RETURN || take_character(static_cast<wchar_t>(wparam));
        if (taken) return 0;
        const bool outer = std::exchange(taking_input_, true);
        const LRESULT result = ControlPeer::handle_message(message, wparam, lparam);
        taking_input_ = outer;
        if (handle()) report_selection();
        return result;
    }
    case WM_SYSCOLORCHANGE:
        if (own_colors_) refresh(Aspect::colors);
        break;
    default:
        break;
    }
    return handle() ? ControlPeer::handle_message(message, wparam, lparam) : 0;
}

int RowsPeer::row_at(POINT point) const {
    LVHITTESTINFO hit{};
    hit.pt = point;
    const auto row = static_cast<int>(send(LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
    return (hit.flags & LVHT_ONITEM) != 0 ? row : -1;
}

void RowsPeer::mouse_moved(POINT point) {
    mouse_ = point;
    const std::wstring before = tip_;
    show_tip();
    // The new tip hears of the mouse only when it moves again.
    if (tip_ != before) PostMessageW(handle(), WM_MOUSEMOVE, 0, MAKELPARAM(point.x, point.y));
}

/// Enter is the list's own where it opens a row, and otherwise the dialog manager's.
LRESULT RowsPeer::dialog_code(WPARAM key, LPARAM lparam) {
    const LRESULT code = ControlPeer::handle_message(WM_GETDLGCODE, key, lparam);
    const auto* const message = reinterpret_cast<const MSG*>(lparam);
    const bool enter = message && message->wParam == VK_RETURN &&
                       (message->message == WM_KEYDOWN || message->message == WM_CHAR);
    return enter && takes_enter() ? code | DLGC_WANTMESSAGE : code;
}

/// With no row selected a list itself would begin beside the row that has the focus; and with a blank it
/// would end the selection of a row, in the middle of what is typed.
bool RowsPeer::take_key(WPARAM key) {
    if (row_count() == 0) return false;
    if (key == VK_RETURN && takes_enter()) {
        open_row();
        return true;
    }
    if (selected_row() >= 0) return key == VK_SPACE;
    int wanted = 0;
    switch (key) {
    case VK_UP:
    case VK_DOWN:
    case VK_PRIOR:
    case VK_NEXT:
    case VK_SPACE:
        wanted = std::max(0, focus_row());
        break;
    case VK_HOME:
        wanted = 0;
        break;
    case VK_END:
        wanted = row_count() - 1;
        break;
    default:
        return false;
    }
    window().deliver([&] { return select_row(wanted); });
    return true;
}

void RowsPeer::report_selection() {
    const int row = selected_index();
    if (row == shown_selection_) return;
    shown_selection_ = row;
    if (!window().deliver([&] { return select_row(row); })) {
        const FormWindow::Showing echo(window());
        show_selection();
    }
}

} // namespace brx
