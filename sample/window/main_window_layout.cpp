#include "window/main_window.h"

#include "window/resource.h"

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <span>

namespace sample {

namespace {

struct Button {
    int id;
    const wchar_t* caption;
    const wchar_t* name;
    bool starts_group;
};
constexpr std::array server_buttons = {
    Button{ID_SELECT, L"&Select Server...", L"bnSelect", false},
    Button{ID_ADD, L"&Add Server...", L"bnAdd", false},
    Button{ID_INFORMATION, L"Server &Information...", L"bnInformation", true},
    Button{ID_BROWSE, L"&Browse Items...", L"bnBrowse", false},
    Button{ID_CONNECT, L"&Connect Again", L"bnConnect", false},
    Button{ID_REMOVE, L"R&emove", L"bnRemove", false},
};
constexpr std::array configuration_buttons = {
    Button{ID_NEW_CONFIGURATION, L"&New Configuration...", L"bnNewConfiguration", false},
    Button{ID_CONFIGURE, L"Confi&gure...", L"bnConfigure", false},
    Button{ID_RUN, L"&Run", L"bnRun", false},
};
constexpr std::array test_buttons = {Button{ID_EDIT_TEST, L"E&dit Test...", L"bnEditTest", false}};

constexpr std::array server_columns = {TableColumn{L"OPC Server", 180}, TableColumn{L"Node", 110},
                                       TableColumn{L"State", 0}};
constexpr std::array configuration_columns = {TableColumn{L"Configuration", 0}, TableColumn{L"Tests", 80},
                                              TableColumn{L"State", 130}};
constexpr std::array test_columns = {TableColumn{L"Characteristic", 130}, TableColumn{L"OPC Item", 0},
                                     TableColumn{L"Save As", 100}, TableColumn{L"Trigger", 80},
                                     TableColumn{L"Value", 170}};

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

/// The height of a list: what it needs, and its share of what is left, in parts of a whole.
struct Height {
    int least; ///< at 96 DPI
    int share;
};
constexpr Height servers_height{138, 10};
constexpr Height configurations_height{83, 5};
constexpr Height tests_height{66, 25};
constexpr Height chart_height{92, 45};
constexpr Height log_height{45, 15};
constexpr std::array heights = {servers_height, configurations_height, tests_height, chart_height,
                                log_height};

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

bool is_button(int id) {
    const auto has = [id](const auto& buttons) {
        return std::ranges::find(buttons, id, &Button::id) != buttons.end();
    };
    return has(server_buttons) || has(configuration_buttons) || has(test_buttons);
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
    const auto make_list = [this](Table& table, const wchar_t* label, int label_id, const wchar_t* label_name,
                                  int id, const wchar_t* name, std::span<const TableColumn> columns) {
        make(window_, WC_STATICW, label, 0, label_id, label_name);
        table.create(window_, id, columns);
        name_window(table.handle(), name);
    };
    const auto make_buttons = [this](std::span<const Button> buttons) {
        for (const Button& button : buttons) {
            const DWORD style = button.id == usual_default ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
            make(window_, WC_BUTTONW, button.caption, style | BS_NOTIFY | WS_TABSTOP, button.id, button.name);
        }
    };
    make_list(servers_, L"Configured O&PC servers:", ID_SERVERS_LABEL, L"lblServers", ID_SERVERS,
              L"lstServers", server_columns);
    make_buttons(server_buttons);
    default_button_ = usual_default;
    make(window_, WC_STATICW, L"Last ite&m:", 0, ID_ITEM_LABEL, L"lblItem");
    make(window_, WC_EDITW, L"", WS_TABSTOP | ES_AUTOHSCROLL | ES_READONLY, ID_ITEM, L"txtItem",
         WS_EX_CLIENTEDGE);
    make_list(configurations_, L"Collection config&urations of the selected server:", ID_CONFIGURATIONS_LABEL,
              L"lblConfigurations", ID_CONFIGURATIONS, L"lstConfigurations", configuration_columns);
    make_buttons(configuration_buttons);
    make_list(tests_, L"Tests of the selected configuration &with their present values:", ID_TESTS_LABEL,
              L"lblTests", ID_TESTS, L"lstTests", test_columns);
    make_buttons(test_buttons);
    make(window_, WC_STATICW, L"Collected values of the selected test:", 0, ID_CHART_LABEL, L"lblChart");
    chart_.create(window_, ID_CHART);
    name_window(chart_.handle(), L"chtValues");
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
    if (is_button(control)) make_default(notification == BN_SETFOCUS ? int{control} : usual_default);
}

void MainWindow::make_default(int wanted) {
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
    const std::array<int, 3> parts = {px(130), area.right - px(190), -1};
    SendMessageW(status, SB_SETPARTS, parts.size(), reinterpret_cast<LPARAM>(parts.data()));

    const int left = px(margin);
    const int right = area.right - px(margin);
    const int buttons_left = right - px(button_width);
    const int list_right = buttons_left - px(margin);
    const int label_room = px(label_height + below_label);
    const int item_room = px(gap + box_height);
    int free = bottom - 6 * px(margin) - 5 * label_room - item_room;
    for (const Height& each : heights) free -= px(each.least);
    const auto share = [&](const Height& height) {
        return px(height.least) + MulDiv(std::max(free, 0), height.share, 100);
    };

    int top = px(margin);
    const auto place_label = [&](int id) {
        MoveWindow(child(id), left, top, list_right - left, px(label_height), TRUE);
        top += label_room;
    };
    const auto place_buttons = [&](std::span<const Button> buttons) {
        int y = top;
        for (const Button& button : buttons) {
            if (button.starts_group) y += px(margin - gap);
            MoveWindow(child(button.id), buttons_left, y, px(button_width), px(button_height), TRUE);
            y += px(button_height + gap);
        }
    };
    const auto place_list = [&](Table& table, int height) {
        table.place({left, top, list_right, top + height}, dpi_);
        top += height;
    };

    place_label(ID_SERVERS_LABEL);
    place_buttons(server_buttons);
    place_list(servers_, share(servers_height));
    top += px(gap);
    const int item_left = left + px(item_label_width);
    MoveWindow(child(ID_ITEM_LABEL), left, top + px((box_height - label_height) / 2), px(item_label_width),
               px(label_height), TRUE);
    MoveWindow(child(ID_ITEM), item_left, top, list_right - item_left, px(box_height), TRUE);
    top += px(box_height + margin);

    place_label(ID_CONFIGURATIONS_LABEL);
    place_buttons(configuration_buttons);
    place_list(configurations_, share(configurations_height));
    top += px(margin);

    place_label(ID_TESTS_LABEL);
    place_buttons(test_buttons);
    place_list(tests_, share(tests_height));
    top += px(margin);

    place_label(ID_CHART_LABEL);
    MoveWindow(chart_.handle(), left, top, right - left, share(chart_height), TRUE);
    top += share(chart_height) + px(margin);

    place_label(ID_LOG_LABEL);
    MoveWindow(child(ID_LOG), left, top, right - left, bottom - px(margin) - top, TRUE);
}

} // namespace sample
