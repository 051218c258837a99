#include "windows/plain_dialog.h"

#include "windows/plain_dialog_ids.h"

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <utility>

namespace brx::checks {

using namespace plain;

namespace {

constexpr UINT first_step = WM_APP + 10;
constexpr UINT last_step = WM_APP + 12;

struct EmptyTemplate {
    DLGTEMPLATE dialog{};
    std::array<WORD, 3> nothing{};
};

UINT describe_message() {
    static const UINT message = RegisterWindowMessageW(L"brx.Describe");
    return message;
}

BOOL CALLBACK remove_name(HWND window, LPARAM) noexcept {
    const HANDLE atom = RemovePropW(window, name_property);
    if (atom) GlobalDeleteAtom(static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(atom)));
    return TRUE;
}

} // namespace

void PlainDialog::run() {
    EmptyTemplate empty;
    empty.dialog.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME | WS_VISIBLE;
    empty.dialog.x = empty.dialog.y = 20;
    empty.dialog.cx = 420;
    empty.dialog.cy = 200;
    DialogBoxIndirectParamW(GetModuleHandleW(nullptr), &empty.dialog, owner_, procedure,
                            reinterpret_cast<LPARAM>(this));
}

std::vector<std::string> PlainDialog::take_events() { return std::exchange(events_, {}); }

INT_PTR PlainDialog::describe(HWND asking) const {
    std::wstring text = description;
    COPYDATASTRUCT answer{};
    answer.dwData = describe_message();
    answer.cbData = static_cast<DWORD>(text.size() * sizeof(wchar_t));
    answer.lpData = text.data();
    const LRESULT taken = SendMessageW(asking, WM_COPYDATA, reinterpret_cast<WPARAM>(handle_),
                                       reinterpret_cast<LPARAM>(&answer));
    SetWindowLongPtrW(handle_, DWLP_MSGRESULT, taken);
    return TRUE;
}

INT_PTR CALLBACK PlainDialog::procedure(HWND handle, UINT message, WPARAM wparam, LPARAM lparam) noexcept {
    if (message == WM_INITDIALOG) SetWindowLongPtrW(handle, DWLP_USER, lparam);
    auto* self = reinterpret_cast<PlainDialog*>(GetWindowLongPtrW(handle, DWLP_USER));
    switch (message) {
    case WM_INITDIALOG:
        self->handle_ = handle;
        self->make_controls();
        return FALSE;
    case WM_COMMAND:
        self->happened(LOWORD(wparam), HIWORD(wparam));
        return TRUE;
    case WM_NOTIFY:
        if (!self) return FALSE;
        if (wparam == table_box) return self->happened_in_table(*reinterpret_cast<NMHDR*>(lparam));
        self->happened_in_tree(*reinterpret_cast<const NMTREEVIEWW*>(lparam));
        self->happened_elsewhere(*reinterpret_cast<const NMHDR*>(lparam));
        return FALSE;
    case WM_TIMER:
        self->note("tick");
        return TRUE;
    case WM_CLOSE:
        self->note("close box");
        EndDialog(handle, 0);
        return TRUE;
    case WM_HELP:
        self->note("help");
        return TRUE;
    case WM_DESTROY:
        EnumChildWindows(handle, remove_name, 0);
        remove_name(handle, 0);
        return FALSE;
    default:
        if (self && message == describe_message()) return self->describe(reinterpret_cast<HWND>(wparam));
        if (message < first_step || message > last_step) return FALSE;
        if (message == last_step)
            self->note("end of chain");
        else
            PostMessageW(handle, message + 1, 0, 0);
        return TRUE;
    }
}

void PlainDialog::happened(WORD id, WORD code) {
    const auto selected = [&](UINT message) {
        return std::to_string(SendDlgItemMessageW(handle_, id, message, 0, 0));
    };
    switch (id) {
    case text_box:
        if (code == EN_CHANGE) note("change");
        break;
    case check_box:
        note("tick box " + selected(BM_GETCHECK));
        break;
    case list_box:
        if (code == LBN_SELCHANGE) note("list " + selected(LB_GETCURSEL));
        if (code == LBN_DBLCLK) note("list twice " + selected(LB_GETCURSEL));
        break;
    case combo_box:
        if (code == CBN_SELCHANGE) note("combo " + selected(CB_GETCURSEL));
        break;
    case message_button:
        note("answer " + std::to_string(MessageBoxW(handle_, L"Salt\r\n\r\nPepper & more", L"Spices",
                                                    MB_OKCANCEL | MB_ICONEXCLAMATION)));
        break;
    case chain_button:
        PostMessageW(handle_, first_step, 0, 0);
        break;
    case off_button:
    case hidden_button:
    case under_button:
        note("impossible");
        break;
    case ok:
        note("OK");
        EndDialog(handle_, 0);
        break;
    case cancel:
        note("Cancel");
        EndDialog(handle_, 0);
        break;
    default:
        break;
    }
}

void PlainDialog::happened_in_tree(const NMTREEVIEWW& notification) {
    if (notification.hdr.idFrom != tree_box) return;
    const std::string number = std::to_string(notification.itemNew.lParam);
    if (notification.hdr.code == TVN_SELCHANGEDW && notification.action != TVC_UNKNOWN)
        note("node " + number);
    if (notification.hdr.code == TVN_ITEMEXPANDEDW)
        note((notification.action == TVE_EXPAND ? "open " : "close ") + number);
    if (notification.hdr.code == NM_DBLCLK) note("tree twice");
}

/// The value of row 2 is drawn in red, its name in bold type.
INT_PTR PlainDialog::happened_in_table(NMHDR& notification) {
    const auto answer = [&](LRESULT result) {
        SetWindowLongPtrW(handle_, DWLP_MSGRESULT, result);
        return TRUE;
    };
    if (notification.code == NM_CUSTOMDRAW) {
        auto& drawing = reinterpret_cast<NMLVCUSTOMDRAW&>(notification);
        if (drawing.nmcd.dwDrawStage == CDDS_PREPAINT) return answer(CDRF_NOTIFYITEMDRAW);
        if (drawing.nmcd.dwDrawStage == CDDS_ITEMPREPAINT) return answer(CDRF_NOTIFYSUBITEMDRAW);
        if (drawing.nmcd.dwItemSpec != 2) return FALSE;
        if (drawing.iSubItem == 1) drawing.clrText = RGB(255, 0, 0);
        if (drawing.iSubItem == 0) SelectObject(drawing.nmcd.hdc, bold_);
        return answer(CDRF_NEWFONT);
    }
    const auto& changed = reinterpret_cast<const NMLISTVIEW&>(notification);
    if (notification.code == LVN_ITEMCHANGED && (changed.uNewState & ~changed.uOldState & LVIS_SELECTED) != 0)
        note("row " + std::to_string(changed.iItem));
    if (notification.code == NM_DBLCLK) note("table twice");
    return FALSE;
}

void PlainDialog::happened_elsewhere(const NMHDR& notification) {
    if (notification.code == TCN_SELCHANGE)
        note("tab " + std::to_string(SendMessageW(notification.hwndFrom, TCM_GETCURSEL, 0, 0)));
}

LRESULT CALLBACK PlainDialog::box_procedure(HWND handle, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR,
                                            DWORD_PTR self) noexcept {
    auto& dialog = *reinterpret_cast<PlainDialog*>(self);
    if (message == WM_KEYDOWN) dialog.note("down " + std::to_string(wparam));
    if (message == WM_CHAR) dialog.note("character " + std::to_string(wparam));
    if (message == WM_KEYUP) dialog.note("up " + std::to_string(wparam));
    return DefSubclassProc(handle, message, wparam, lparam);
}

} // namespace brx::checks
