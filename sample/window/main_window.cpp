#include "window/main_window.h"

#include "window/resource.h"

#include <commctrl.h>

#include <algorithm>
#include <array>

namespace sample {

namespace {

constexpr const wchar_t* window_class = L"brxSampleHost";
constexpr const wchar_t* title = L"OPC Collection Sample Host";
constexpr UINT_PTR refresh_timer = 1;
constexpr UINT refresh_milliseconds = 1000;
constexpr UINT_PTR collection_timer = 2;
constexpr UINT collection_milliseconds = 250;

/// So many pixels at 96 DPI.
constexpr SIZE first_size{860, 800};
constexpr SIZE least_size{640, 680};

BOOL CALLBACK forget_each(HWND control, LPARAM) {
    forget_name(control);
    return TRUE;
}

BOOL CALLBACK tell_new_colors(HWND control, LPARAM) {
    SendMessageW(control, WM_SYSCOLORCHANGE, 0, 0);
    return TRUE;
}

} // namespace

bool MainWindow::open(HINSTANCE program, int show_command) {
    WNDCLASSEXW description{};
    description.cbSize = sizeof description;
    description.lpfnWndProc = procedure;
    description.hInstance = program;
    description.hIcon = LoadIconW(nullptr, IDI_APPLICATION);
    description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    description.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    description.lpszMenuName = MAKEINTRESOURCEW(ID_MENU);
    description.lpszClassName = window_class;
    RegisterClassExW(&description);
    Chart::register_class(program);
    keys_ = LoadAcceleratorsW(program, MAKEINTRESOURCEW(ID_KEYS));

    CreateWindowExW(WS_EX_CONTROLPARENT, window_class, title, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                    CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr, program,
                    this);
    if (!window_) return false;
    centre();
    ShowWindow(window_, show_command);
    UpdateWindow(window_);
    if (start()) return true;
    DestroyWindow(window_);
    return false;
}

void MainWindow::centre() {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorFromWindow(window_, MONITOR_DEFAULTTONEAREST), &monitor);
    const RECT& work = monitor.rcWork;
    const int width = std::min<int>(scaled(first_size.cx, dpi_), work.right - work.left);
    const int height = std::min<int>(scaled(first_size.cy, dpi_), work.bottom - work.top);
    SetWindowPos(window_, nullptr, (work.left + work.right - width) / 2,
                 (work.top + work.bottom - height) / 2, width, height, SWP_NOZORDER);
}

/// Opens the database file.
bool MainWindow::start() {
    SetCursor(LoadCursorW(nullptr, IDC_WAIT));
    try {
        model_.emplace(options_.database);
        if (options_.wrapper && *options_.wrapper != model_->uses_wrapper())
            model_->use_wrapper(*options_.wrapper);
    } catch (const Failure& failure) {
        ask(failure.no_object ? missing_file(L"brxSample.dll", failure) : failure.description,
            MB_OK | MB_ICONERROR);
        return false;
    }
    dialogs_found_ = check_dialogs();
    refresh();
    servers_.select(1);
    show_selection();
    SetTimer(window_, refresh_timer, refresh_milliseconds, nullptr);
    SetTimer(window_, collection_timer, collection_milliseconds, nullptr);
    return true;
}

int MainWindow::run() {
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (TranslateAcceleratorW(window_, keys_, &message) || IsDialogMessageW(window_, &message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return static_cast<int>(message.wParam);
}

LRESULT CALLBACK MainWindow::procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    auto* self = reinterpret_cast<MainWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_NCCREATE) {
        self = static_cast<MainWindow*>(reinterpret_cast<CREATESTRUCTW*>(lparam)->lpCreateParams);
        self->window_ = window;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
    }
    if (!self) return DefWindowProcW(window, message, wparam, lparam);
    try {
        return self->handle(message, wparam, lparam);
    } catch (const Failure& failure) {
        self->ask(failure.description, MB_OK | MB_ICONERROR);
        return 0;
    }
}

LRESULT MainWindow::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
    case WM_CREATE:
        dpi_ = dpi_of(window_);
        create_controls();
        use_font();
        return 0;
    case WM_SIZE:
        lay_out();
        return 0;
    case WM_GETMINMAXINFO:
        reinterpret_cast<MINMAXINFO*>(lparam)->ptMinTrackSize = {scaled(least_size.cx, dpi_),
                                                                 scaled(least_size.cy, dpi_)};
        return 0;
    case WM_DPICHANGED: {
        dpi_ = LOWORD(wparam);
        use_font();
        const RECT& wanted = *reinterpret_cast<const RECT*>(lparam);
        SetWindowPos(window_, nullptr, wanted.left, wanted.top, wanted.right - wanted.left,
                     wanted.bottom - wanted.top, SWP_NOZORDER | SWP_NOACTIVATE);
        return 0;
    }
    case WM_SETTINGCHANGE:
        use_font();
        lay_out();
        return 0;
    case WM_ACTIVATE:
        if (LOWORD(wparam) == WA_INACTIVE)
            focus_ = GetFocus();
        else if (focus_)
            SetFocus(focus_);
        return 0;
    case WM_SETFOCUS:
        SetFocus(focus_ ? focus_ : servers_.handle());
        return 0;
    case WM_TIMER:
        if (wparam == collection_timer)
            collect();
        else if (IsWindowEnabled(window_)) // a dialog is not to wait for what the window behind it asks
            refresh();
        return 0;
    case WM_COMMAND:
        if (lparam != 0 && HIWORD(wparam) != BN_CLICKED)
            focus_moved(LOWORD(wparam), HIWORD(wparam));
        else
            command(LOWORD(wparam));
        return 0;
    case WM_NOTIFY:
        return notified(lparam);
    case WM_SYSCOLORCHANGE:
        EnumChildWindows(window_, tell_new_colors, 0);
        break;
    case WM_CTLCOLORSTATIC:
        if (reinterpret_cast<HWND>(lparam) == child(ID_LOG)) {
            SetBkColor(reinterpret_cast<HDC>(wparam), GetSysColor(COLOR_WINDOW));
            return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_WINDOW));
        }
        break;
    // What moves the focus to the box behind a label whose letter was pressed.
    case WM_NEXTDLGCTL:
        SetFocus(lparam != 0 ? reinterpret_cast<HWND>(wparam)
                             : GetNextDlgTabItem(window_, GetFocus(), wparam != 0));
        return 0;
    case DM_GETDEFID:
        return MAKELRESULT(default_button_, DC_HASDEFID);
    case WM_DESTROY:
        KillTimer(window_, refresh_timer);
        KillTimer(window_, collection_timer);
        EnumChildWindows(window_, forget_each, 0);
        forget_name(window_);
        PostQuitMessage(0);
        return 0;
    default:
        break;
    }
    return DefWindowProcW(window_, message, wparam, lparam);
}

LRESULT MainWindow::notified(LPARAM parameter) {
    const NMHDR& notification = *reinterpret_cast<const NMHDR*>(parameter);
    struct List {
        Table& table;
        int id;
        int command; ///< what a double click and Enter do
    };
    const std::array lists = {List{servers_, ID_SERVERS, ID_INFORMATION},
                              List{configurations_, ID_CONFIGURATIONS, ID_CONFIGURE},
                              List{tests_, ID_TESTS, ID_EDIT_TEST}};
    const auto list = std::ranges::find(lists, static_cast<int>(notification.idFrom), &List::id);
    if (list == lists.end()) return 0;
    switch (notification.code) {
    case NM_CUSTOMDRAW:
        return list->table.draw(*reinterpret_cast<NMLVCUSTOMDRAW*>(parameter));
    case NM_DBLCLK:
        command(list->command);
        break;
    case NM_SETFOCUS:
        make_default(list->command);
        break;
    case LVN_ITEMCHANGED:
        if (!showing_) show_selection();
        break;
    case LVN_KEYDOWN:
        if (list->id == ID_SERVERS && reinterpret_cast<const NMLVKEYDOWN*>(parameter)->wVKey == VK_DELETE)
            command(ID_REMOVE);
        break;
    default:
        break;
    }
    return 0;
}

} // namespace sample
