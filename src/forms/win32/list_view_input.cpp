// What a list asks for, and what a person does to it.

#include "forms/list_rows.h"
#include "forms/win32/dpi.h"
#include "forms/win32/form_window.h"
#include "forms/win32/list_view_peer.h"

#include <windowsx.h>

#include <algorithm>
#include <utility>

namespace brx {

namespace {

/// How some systems ask for a row that begins with what is typed; not every compiler's headers name it.
constexpr UINT find_beginning = 4;

/// What lists leave free in a cell on each side of its text, at most, at 96 DPI.
constexpr int beside_text = 6;

} // namespace

LRESULT ListViewPeer::notified_of(NMHDR& notification) {
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

void ListViewPeer::answer(LVITEMW& asked) {
    if ((asked.mask & LVIF_TEXT) == 0) return;
    const ListRow* const row = row_at(asked.iItem);
    const bool known = row && asked.iSubItem < std::max(1, static_cast<int>(list_.columns().size()));
    to_wide(known ? row->text(asked.iSubItem) : std::string_view(), answered_);
    asked.pszText = answered_.data();
}

/// Typing looks for a row that begins so.
LRESULT ListViewPeer::find(const NMLVFINDITEMW& sought) const {
    if ((sought.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL | find_beginning)) == 0) return -1;
    return row_beginning_with(list_, from_wide(sought.lvfi.psz), sought.iStart + 1) - 1;
}

LRESULT ListViewPeer::paint(NMLVCUSTOMDRAW& drawing) const {
    NMCUSTOMDRAW& part = drawing.nmcd;
    switch (part.dwDrawStage) {
    case CDDS_PREPAINT:
        return CDRF_NOTIFYITEMDRAW;
    case CDDS_ITEMPREPAINT:
        return CDRF_NOTIFYSUBITEMDRAW;
    case CDDS_ITEMPREPAINT | CDDS_SUBITEM: {
        const ListRow* const row = row_at(static_cast<int>(part.dwItemSpec));
        if (!row || drawing.iSubItem >= static_cast<int>(list_.columns().size())) return CDRF_DODEFAULT;
        const CellLook look = row->look(drawing.iSubItem);
        // Of the selected row the system changes only the font: its background has a colour for text.
        const bool colored = look.fore_color != color::window_text && !Palette::high_contrast();
        drawing.clrText = Palette::rgb(colored ? look.fore_color : list_.fore_color());
        SelectObject(part.hdc, look.bold && bold_ ? bold_.get() : window().font());
        return CDRF_NEWFONT;
    }
    default:
        return CDRF_DODEFAULT;
    }
}

LRESULT ListViewPeer::handle_message(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        press({GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)}, message == WM_LBUTTONDBLCLK);
        return 0;
    case WM_RBUTTONDOWN:
        press({GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)}, false);
        return 0;
    case WM_MOUSEMOVE:
        mouse_moved({GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)});
        break;
    case WM_GETDLGCODE:
        return dialog_code(wparam, lparam);
    case WM_KEYDOWN:
        if (take_key(wparam)) return 0;
        [[fallthrough]];
    case WM_CHAR: {
        if (message == WM_CHAR && wparam == VK_RETURN) return 0;
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

/// A mouse button goes down, on a row or beside the rows.
void ListViewPeer::press(POINT point, bool twice) {
    if (GetFocus() != handle()) SetFocus(handle());
    if (!handle()) return;
    LVHITTESTINFO hit{};
    hit.pt = point;
    const int position = static_cast<int>(send(LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(&hit))) + 1;
    const bool on_row = position > 0 && (hit.flags & LVHT_ONITEM) != 0;
    if (!window().report([&] { return list_.user_select(on_row ? position : 0); })) return;
    if (twice) window().report([&] { return list_.user_double_click(); });
}

void ListViewPeer::mouse_moved(POINT point) {
    mouse_ = point;
    const std::wstring before = tip_;
    show_tip();
    // The new tip hears of the mouse only when it moves again.
    if (tip_ != before) PostMessageW(handle(), WM_MOUSEMOVE, 0, MAKELPARAM(point.x, point.y));
}

/// The whole text of the cell below the mouse, where that is cut. A list on its own does so for the first
/// column only.
void ListViewPeer::show_tip() {
    LVHITTESTINFO hit{};
    hit.pt = mouse_;
    send(LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    const ListRow* const row = row_at(hit.iItem);
    const bool on_cell = row && hit.iSubItem >= 0 && hit.iSubItem < static_cast<int>(widths_.size());
    std::wstring text = on_cell ? to_wide(row->text(hit.iSubItem)) : std::wstring();
    if (on_cell && !is_cut(*row, hit.iItem, hit.iSubItem, text)) text.clear();
    if (text == tip_) return;
    tip_ = text;
    window().set_tip(handle(), tip_);
}

/// Whether a cell's text does not fit into its column, or the column not into the list.
bool ListViewPeer::is_cut(const ListRow& row, int index, int column, const std::wstring& text) const {
    RECT cell{};
    cell.left = LVIR_BOUNDS;
    cell.top = column;
    send(LVM_GETSUBITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&cell));
    // The bounds of the first cell are the row's.
    cell.right = cell.left + static_cast<LONG>(send(LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column)));
    RECT view{};
    GetClientRect(handle(), &view);
    const int beside = scaled(beside_text, window().dpi());
    const HFONT font = row.look(column).bold && bold_ ? bold_.get() : window().font();
    const LONG from = cell.left + beside;
    const LONG to = from + TextMeasure(handle(), font).width(text.data(), text.size());
    return from < view.left || to > std::min(cell.right - beside, view.right);
}

/// Enter is the list's own where it opens a row, and otherwise the dialog manager's.
LRESULT ListViewPeer::dialog_code(WPARAM key, LPARAM lparam) {
    const LRESULT code = ControlPeer::handle_message(WM_GETDLGCODE, key, lparam);
    const auto* const message = reinterpret_cast<const MSG*>(lparam);
    const bool enter = message && message->wParam == VK_RETURN &&
                       (message->message == WM_KEYDOWN || message->message == WM_CHAR);
    return enter && list_.takes_enter() ? code | DLGC_WANTMESSAGE : code;
}

/// With no row selected a list itself would begin beside the row that has the focus; and with a blank it
/// would end the selection of a row, in the middle of what is typed.
bool ListViewPeer::take_key(WPARAM key) {
    if (list_.count() == 0) return false;
    if (key == VK_RETURN && list_.takes_enter()) {
        window().report([&] { return list_.user_double_click(); });
        return true;
    }
    if (list_.selected() != 0) return key == VK_SPACE;
    int wanted = 0;
    switch (key) {
    case VK_UP:
    case VK_DOWN:
    case VK_PRIOR:
    case VK_NEXT:
    case VK_SPACE:
        wanted = row_from_keyboard(list_, 0);
        break;
    case VK_HOME:
        wanted = 1;
        break;
    case VK_END:
        wanted = list_.count();
        break;
    default:
        return false;
    }
    window().report([&] { return list_.user_select(wanted); });
    return true;
}

void ListViewPeer::report_selection() {
    const int position = selected_index() + 1;
    if (position == shown_selection_) return;
    shown_selection_ = position;
    if (!window().report([&] { return list_.user_select(position); })) {
        const FormWindow::Showing echo(window());
        show_selection();
    }
}

} // namespace brx
