// What the plain dialog consists of.

#include "windows/plain_dialog.h"
#include "windows/plain_dialog_ids.h"

namespace brx::checks {

using namespace plain;

namespace {

constexpr int line_count = 50;

void set_name(HWND window, const wchar_t* name) {
    SetPropW(window, name_property, reinterpret_cast<HANDLE>(static_cast<ULONG_PTR>(GlobalAddAtomW(name))));
}

} // namespace

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

} // namespace brx::checks
