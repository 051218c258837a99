#include "server/window.h"

#include "win32/module.h"

#include <cstdlib>

namespace brx::server {

namespace {

constexpr const wchar_t* kind_of_window = L"brxSampleServer";
constexpr UINT_PTR refresh_timer = 1;
constexpr UINT refresh_period = 200; // milliseconds
constexpr int id_delay = 101;
constexpr int id_hold = 102;

// At 96 dots per inch.
constexpr int margin = 12;
constexpr int line_height = 22;
constexpr int name_width = 110;
constexpr int value_width = 210;
constexpr int box_width = 64;
constexpr int box_height = 23;
constexpr int button_width = 110;
constexpr int button_height = 26;
constexpr int width = margin + name_width + value_width + margin;
constexpr int height = margin + 4 * line_height + 6 + box_height + 12 + button_height + margin;

constexpr const wchar_t* names[] = {L"State:", L"Objects in use:", L"Calls:", L"Latest call:"};

constexpr DWORD window_style = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX;

} // namespace

long Window::objects_in_use() const { return ModuleLock::count() - own_objects_; }

bool Window::open(HINSTANCE program, int show_command) {
    WNDCLASSW kind{};
    kind.lpfnWndProc = procedure;
    kind.hInstance = program;
    kind.hIcon = LoadIconW(nullptr, IDI_APPLICATION);
    kind.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    kind.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    kind.lpszClassName = kind_of_window;
    RegisterClassW(&kind);
    window_ = CreateWindowExW(WS_EX_CONTROLPARENT, kind_of_window, L"OPC Sample Server", window_style,
                              CW_USEDEFAULT, CW_USEDEFAULT, 0, 0, nullptr, nullptr, program, this);
    if (!window_) return false;
    make_controls();
    dpi_ = sample::dpi_of(window_);
    font_ = sample::message_font(dpi_);
    RECT area{0, 0, sample::scaled(width, dpi_), sample::scaled(height, dpi_)};
    AdjustWindowRectEx(&area, window_style, FALSE, WS_EX_CONTROLPARENT);
    SetWindowPos(window_, nullptr, 0, 0, area.right - area.left, area.bottom - area.top,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    lay_out();
    refresh();
    SetTimer(window_, refresh_timer, refresh_period, nullptr);
    ShowWindow(window_, show_command);
    return true;
}

void Window::says_that_it_serves() const { sample::name_window(window_, kind_of_window); }

LRESULT CALLBACK Window::procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept {
    if (message == WM_NCCREATE) {
        const auto* const made = reinterpret_cast<const CREATESTRUCTW*>(lparam);
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(made->lpCreateParams));
    }
    auto* const self = reinterpret_cast<Window*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!self || !self->window_) return DefWindowProcW(window, message, wparam, lparam);
    return self->handle(message, wparam, lparam);
}

LRESULT Window::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
    case WM_TIMER:
        refresh();
        return 0;
    case WM_COMMAND:
        if (LOWORD(wparam) == id_hold) {
            calls_.switches.hold = !calls_.switches.hold;
            refresh();
        } else if (LOWORD(wparam) == id_delay && HIWORD(wparam) == EN_CHANGE) {
            change_delay();
        }
        return 0;
    case WM_DPICHANGED: {
        const RECT& area = *reinterpret_cast<const RECT*>(lparam);
        dpi_ = LOWORD(wparam);
        font_ = sample::message_font(dpi_);
        SetWindowPos(window_, nullptr, area.left, area.top, area.right - area.left, area.bottom - area.top,
                     SWP_NOZORDER | SWP_NOACTIVATE);
        lay_out();
        return 0;
    }
    case WM_DESTROY:
        sample::forget_name(window_);
        calls_.window_is_gone();
        PostQuitMessage(0);
        return 0;
    default:
        return DefWindowProcW(window_, message, wparam, lparam);
    }
}

HWND Window::add(const wchar_t* kind, const wchar_t* text, DWORD style, int id) {
    const DWORD edge = id == id_delay ? WS_EX_CLIENTEDGE : 0;
    return CreateWindowExW(edge, kind, text, WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0, window_,
                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
}

void Window::make_controls() {
    for (std::size_t i = 0; i < lines; ++i) {
        names_[i] = add(L"STATIC", names[i], SS_LEFT, -1);
        values_[i] = add(L"STATIC", L"", SS_LEFT | SS_NOPREFIX | SS_ENDELLIPSIS, -1);
    }
    delay_name_ = add(L"STATIC", L"&Each call takes:", SS_LEFT, -1);
    delay_ = add(L"EDIT", std::to_wstring(calls_.switches.delay).c_str(), ES_NUMBER | ES_RIGHT | WS_TABSTOP,
                 id_delay);
    SendMessageW(delay_, EM_SETLIMITTEXT, 6, 0);
    delay_unit_ = add(L"STATIC", L"ms more", SS_LEFT, -1);
    hold_ = add(L"BUTTON", L"", BS_PUSHBUTTON | WS_TABSTOP, id_hold);
}

void Window::lay_out() {
    const auto place = [&](HWND control, int left, int top, int wide, int high) {
        SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(font_.get()), TRUE);
        SetWindowPos(control, nullptr, sample::scaled(left, dpi_), sample::scaled(top, dpi_),
                     sample::scaled(wide, dpi_), sample::scaled(high, dpi_), SWP_NOZORDER | SWP_NOACTIVATE);
    };
    int top = margin;
    for (std::size_t i = 0; i < lines; ++i, top += line_height) {
        place(names_[i], margin, top, name_width, line_height);
        place(values_[i], margin + name_width, top, value_width, line_height);
    }
    top += 6;
    place(delay_name_, margin, top + 3, name_width, line_height);
    place(delay_, margin + name_width, top, box_width, box_height);
    place(delay_unit_, margin + name_width + box_width + 8, top + 3, 80, line_height);
    top += box_height + 12;
    place(hold_, width - margin - button_width, top, button_width, button_height);
}

void Window::refresh() {
    const bool held = calls_.switches.hold;
    show_text(values_[0], held                 ? L"Holds calls back"
                          : calls_.one_waits() ? L"Answers a call"
                                               : L"Waits for calls");
    show_text(values_[1], std::to_wstring(objects_in_use()));
    std::wstring counted = std::to_wstring(calls_.answered());
    if (calls_.turned_away() > 0) counted += L", turned away " + std::to_wstring(calls_.turned_away());
    show_text(values_[2], counted);
    show_text(values_[3], calls_.latest().empty() ? L"None yet" : calls_.latest());
    show_text(hold_, held ? L"&Answer Calls" : L"&Hold Calls");
}

/// Only what reads differently, or it flickers.
void Window::show_text(HWND control, const std::wstring& text) {
    std::array<wchar_t, 200> shown{};
    GetWindowTextW(control, shown.data(), static_cast<int>(shown.size()));
    if (text != shown.data()) SetWindowTextW(control, text.c_str());
}

void Window::change_delay() {
    std::array<wchar_t, 8> text{};
    GetWindowTextW(delay_, text.data(), static_cast<int>(text.size()));
    calls_.switches.delay = static_cast<unsigned>(std::wcstoul(text.data(), nullptr, 10));
}

} // namespace brx::server
