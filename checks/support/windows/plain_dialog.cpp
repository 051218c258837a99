#include "windows/plain_dialog.h"

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <utility>

namespace brx::checks {

namespace {

constexpr const wchar_t* name_property = L"brx.Name";
constexpr UINT_PTR timer = 7;
constexpr UINT first_step = WM_APP + 10;
constexpr UINT last_step = WM_APP + 12;
constexpr int line_count = 50;

enum Id : WORD {
    ok = IDOK,
    cancel = IDCANCEL,
    text_box = 100,
    check_box,
    list_box,
    combo_box,
    tree_box,
    table_box,
    tab_box,
    day_box,
    time_box,
    message_button,
    chain_button,
    off_button,
    hidden_button,
    under_button,
};

struct EmptyTemplate {
    DLGTEMPLATE dialog{};
    std::array<WORD, 3> nothing{};
};

UINT describe_message() {
    static const UINT message = RegisterWindowMessageW(L"brx.Describe");
    return message;
}

void set_name(HWND window, const wchar_t* name) {
    SetPropW(window, name_property, reinterpret_cast<HANDLE>(static_cast<ULONG_PTR>(GlobalAddAtomW(name))));
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

HWND PlainDialog::add(const wchar_t* window_class, const wchar_t* text, DWORD style, RECT place, WORD id,
                      const wchar_t* name) {
    const HWND window = CreateWindowExW(0, window_class, text, WS_CHILD | WS_VISIBLE | style, place.left,
                                        place.top, place.right - place.left, place.bottom - place.top,
                                        handle_, reinterpret_cast<HMENU>(static_cast<ULONG_PTR>(id)),
                                        GetModuleHandleW(nullptr), nullptr);
    if (name) set_name(window, name);
    return window;
}

void PlainDialog::make_controls() {
    SetWindowTextW(handle_, L"Plain");
    set_name(handle_, L"dlgPlain");
    add(L"Static", L"&Text:", 0, {10, 10, 60, 30}, 0, L"lblBox");
    const HWND box =
        add(L"Edit", L"", WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL, {70, 10, 200, 32}, text_box, L"txtBox");
    SetWindowSubclass(box, box_procedure, 1, reinterpret_cast<DWORD_PTR>(this));
    add(L"Button", L"Tic&k", WS_TABSTOP | BS_AUTOCHECKBOX, {210, 10, 300, 32}, check_box, L"chkBox");
    const HWND list = add(L"ListBox", L"", WS_TABSTOP | LBS_NOTIFY | WS_VSCROLL | WS_BORDER,
                          {10, 40, 200, 140}, list_box, L"lstBox");
    const HWND combo = add(L"ComboBox", L"", WS_TABSTOP | CBS_DROPDOWNLIST | WS_VSCROLL, {210, 40, 380, 200},
                           combo_box, L"cboBox");
    fill_tree(
        add(WC_TREEVIEWW, L"",
            WS_TABSTOP | WS_BORDER | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_DISABLEDRAGDROP,
            {210, 70, 380, 140}, tree_box, L"treBox"));
    for (int i = 0; i < line_count; ++i) {
        const std::wstring line = L"Line " + std::to_wstring(i);
        SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line.c_str()));
        SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line.c_str()));
    }
    fill_table(add(WC_LISTVIEWW, L"", WS_TABSTOP | WS_BORDER | LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS,
                   {400, 10, 600, 110}, table_box, L"lvwBox"));
    fill_tabs(add(WC_TABCONTROLW, L"", WS_TABSTOP | TCS_FOCUSONBUTTONDOWN, {400, 120, 600, 180}, tab_box,
                  L"tabBox"));
    const SYSTEMTIME day{2026, 11, 6, 21, 0, 0, 0, 0};
    SendMessageW(add(DATETIMEPICK_CLASSW, L"", WS_TABSTOP | DTS_SHORTDATEFORMAT, {400, 190, 490, 213},
                     day_box, L"dtpDay"),
                 DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&day));
    add(DATETIMEPICK_CLASSW, L"", WS_TABSTOP | DTS_TIMEFORMAT | DTS_UPDOWN, {500, 190, 600, 213}, time_box,
        L"dtpTime");
    EnableWindow(add(DATETIMEPICK_CLASSW, L"", WS_TABSTOP, {400, 220, 490, 243}, 0, L"dtpOff"), FALSE);
    add(L"Button", L"&Message...", WS_TABSTOP, {10, 150, 110, 175}, message_button, L"bnMessage");
    add(L"Button", L"Chain", WS_TABSTOP, {10, 180, 110, 205}, chain_button, L"bnChain");
    EnableWindow(add(L"Button", L"Off", WS_TABSTOP, {120, 150, 200, 175}, off_button, L"bnOff"), FALSE);
    ShowWindow(add(L"Button", L"Hidden", WS_TABSTOP, {210, 150, 290, 175}, hidden_button, L"bnHidden"),
               SW_HIDE);
    const HWND under = add(L"Button", L"Under", WS_TABSTOP, {300, 150, 380, 175}, under_button, L"bnUnder");
    const HWND cover = add(L"Static", L"", SS_NOTIFY, {290, 140, 390, 180}, 0, nullptr);
    SetWindowPos(cover, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    SetWindowPos(under, cover, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    add(L"Button", L"OK", WS_TABSTOP | BS_DEFPUSHBUTTON, {210, 250, 290, 275}, ok, L"bnOK");
    add(L"Button", L"Cancel", WS_TABSTOP, {300, 250, 380, 275}, cancel, L"bnCancel");
    SetTimer(handle_, timer, 1000, nullptr);
    SetFocus(box);
}

void PlainDialog::fill_tree(HWND tree) {
    const auto insert = [&](HTREEITEM parent, const wchar_t* name, int number) {
        std::wstring text = name + std::to_wstring(number);
        TVINSERTSTRUCTW wanted{};
        wanted.hParent = parent;
        wanted.hInsertAfter = TVI_LAST;
        wanted.item.mask = TVIF_TEXT | TVIF_PARAM;
        wanted.item.pszText = text.data();
        wanted.item.lParam = number;
        return reinterpret_cast<HTREEITEM>(
            SendMessageW(tree, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&wanted)));
    };
    for (int i = 0; i < 30; ++i) {
        const HTREEITEM node = insert(TVI_ROOT, L"Node ", i);
        for (int inner = 0; inner < 2 && (i == 1 || i == 28); ++inner) insert(node, L"Inner ", inner);
    }
}

void PlainDialog::fill_table(HWND table) {
    for (const wchar_t* caption : {L"Name", L"Value"}) {
        std::wstring text = caption;
        LVCOLUMNW column{};
        column.mask = LVCF_TEXT | LVCF_WIDTH;
        column.pszText = text.data();
        column.cx = 80;
        SendMessageW(table, LVM_INSERTCOLUMNW, 9, reinterpret_cast<LPARAM>(&column));
    }
    for (int i = 0; i < 30; ++i) {
        std::wstring name = L"Row " + std::to_wstring(i);
        std::wstring value = L"Value " + std::to_wstring(i);
        LVITEMW item{};
        item.mask = LVIF_TEXT;
        item.iItem = i;
        item.pszText = name.data();
        SendMessageW(table, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
        item.iSubItem = 1;
        item.pszText = value.data();
        SendMessageW(table, LVM_SETITEMTEXTW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
    }
}

void PlainDialog::fill_tabs(HWND tabs) {
    for (const wchar_t* caption : {L"&One", L"&Two", L"T&hree"}) {
        std::wstring text = caption;
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = text.data();
        SendMessageW(tabs, TCM_INSERTITEMW, 9, reinterpret_cast<LPARAM>(&item));
    }
}

INT_PTR PlainDialog::describe(WPARAM capacity, LPARAM buffer) const {
    const std::wstring::size_type size = description.size() + 1;
    if (buffer && capacity >= size)
        std::copy_n(description.c_str(), size, reinterpret_cast<wchar_t*>(buffer));
    SetWindowLongPtrW(handle_, DWLP_MSGRESULT, static_cast<LONG_PTR>(size));
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
        if (self && message == describe_message()) return self->describe(wparam, lparam);
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
