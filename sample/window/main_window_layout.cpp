#include "window/main_window.h"

#include "window/resource.h"

#include <commctrl.h>

#include <algorithm>
#include <array>

namespace sample {

namespace {

struct Button {
    int id;
    const wchar_t* caption;
    const wchar_t* name;
    bool starts_group;
};
constexpr std::array buttons = {
    Button{ID_SELECT, L"&Select Server...", L"bnSelect", false},
    Button{ID_ADD, L"&Add Server...", L"bnAdd", false},
    Button{ID_INFORMATION, L"Server &Information...", L"bnInformation", true},
    Button{ID_BROWSE, L"&Browse Items...", L"bnBrowse", false},
    Button{ID_CONNECT, L"&Connect Again", L"bnConnect", false},
    Button{ID_REMOVE, L"&Remove", L"bnRemove", false},
};

/// Where no button has the focus, Enter means what a double click in the list means.
constexpr int usual_default = ID_INFORMATION;

// Lengths at 96 DPI.
constexpr int margin = 11;
constexpr int gap = 7;
constexpr int label_height = 15;
constexpr int below_label = 4;
constexpr int button_width = 144;
constexpr int button_height = 23;
constexpr int box_height = 23;
constexpr int item_label_width = 62;
constexpr int log_height = 112;

HWND make(HWND parent, const wchar_t* kind, const wchar_t* text, DWORD style, int id, const wchar_t* name,
          DWORD ex_style = 0) {
    const HWND made = CreateWindowExW(ex_style, kind, text, WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0, parent,
                                      reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
    name_window(made, name);
    return made;
}

BOOL CALLBACK set_font(HWND control, LPARAM font) {
    SendMessageW(control, WM_SETFONT, static_cast<WPARAM>(font), TRUE);
    return TRUE;
}

/// A box of several lines wants Tab and Enter for itself; this one is only read.
LRESULT CALLBACK log_procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR, DWORD_PTR) {
    if (message == WM_GETDLGCODE) return DLGC_WANTARROWS | DLGC_WANTCHARS;
    return DefSubclassProc(window, message, wparam, lparam);
}

} // namespace

/// In tab order.
void MainWindow::create_controls() {
    name_window(window_, L"frmHost");
    make(window_, WC_STATICW, L"Configured OPC s&ervers:", 0, ID_SERVERS_LABEL, L"lblServers");
    list_.create(window_, ID_SERVERS);
    name_window(list_.handle(), L"lstServers");
    for (const Button& button : buttons) {
        const DWORD style = button.id == usual_default ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
        make(window_, WC_BUTTONW, button.caption, style | BS_NOTIFY | WS_TABSTOP, button.id, button.name);
    }
    default_button_ = usual_default;
    make(window_, WC_STATICW, L"Last i&tem:", 0, ID_ITEM_LABEL, L"lblItem");
    make(window_, WC_EDITW, L"", WS_TABSTOP | ES_AUTOHSCROLL | ES_READONLY, ID_ITEM, L"txtItem",
         WS_EX_CLIENTEDGE);
    make(window_, WC_STATICW, L"&Log:", 0, ID_LOG_LABEL, L"lblLog");
    const HWND log =
        make(window_, WC_EDITW, L"", WS_TABSTOP | WS_VSCROLL | ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL,
             ID_LOG, L"txtLog", WS_EX_CLIENTEDGE);
    SetWindowSubclass(log, log_procedure, 0, 0);
    SendMessageW(log, EM_SETLIMITTEXT, 0, 0);
    make(window_, STATUSCLASSNAMEW, L"", SBARS_SIZEGRIP, ID_STATUS, L"stbStatus");
}

void MainWindow::focus_moved(WORD control, WORD notification) {
    if (notification != BN_SETFOCUS && notification != BN_KILLFOCUS) return;
    if (std::ranges::find(buttons, int{control}, &Button::id) == buttons.end()) return;
    const int wanted = notification == BN_SETFOCUS ? int{control} : usual_default;
    if (wanted == default_button_) return;
    SendMessageW(child(default_button_), BM_SETSTYLE, BS_PUSHBUTTON, TRUE);
    SendMessageW(child(wanted), BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
    default_button_ = wanted;
}

void MainWindow::use_font() {
    Font font = message_font(dpi_);
    EnumChildWindows(window_, set_font, reinterpret_cast<LPARAM>(font.get()));
    font_ = std::move(font);
}

void MainWindow::lay_out() {
    const auto px = [this](int length) { return scaled(length, dpi_); };
    const HWND status = child(ID_STATUS);
    SendMessageW(status, WM_SIZE, 0, 0);
    RECT area{};
    RECT bar{};
    GetClientRect(window_, &area);
    GetWindowRect(status, &bar);
    const int bottom = area.bottom - (bar.bottom - bar.top);
    const std::array<int, 2> parts = {area.right - px(220), -1};
    SendMessageW(status, SB_SETPARTS, parts.size(), reinterpret_cast<LPARAM>(parts.data()));

    const int left = px(margin);
    const int right = area.right - px(margin);
    const int buttons_left = right - px(button_width);
    const int list_top = px(margin + label_height + below_label);
    const int log_top = bottom - px(margin + log_height);
    const int log_label_top = log_top - px(label_height + below_label);
    const int item_top = log_label_top - px(margin + box_height);
    const int list_right = buttons_left - px(margin);

    MoveWindow(child(ID_SERVERS_LABEL), left, px(margin), list_right - left, px(label_height), TRUE);
    list_.place({left, list_top, list_right, item_top - px(gap)}, dpi_);
    MoveWindow(child(ID_ITEM_LABEL), left, item_top + px((box_height - label_height) / 2),
               px(item_label_width), px(label_height), TRUE);
    const int item_left = left + px(item_label_width);
    MoveWindow(child(ID_ITEM), item_left, item_top, list_right - item_left, px(box_height), TRUE);
    int top = list_top;
    for (const Button& button : buttons) {
        if (button.starts_group) top += px(margin - gap);
        MoveWindow(child(button.id), buttons_left, top, px(button_width), px(button_height), TRUE);
        top += px(button_height + gap);
    }
    MoveWindow(child(ID_LOG_LABEL), left, log_label_top, right - left, px(label_height), TRUE);
    MoveWindow(child(ID_LOG), left, log_top, right - left, px(log_height), TRUE);
}

} // namespace sample
