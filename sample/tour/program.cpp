#include "tour/program.h"

#include <commctrl.h>

namespace tour {

namespace {

constexpr UINT patience = 20000; // milliseconds that a window may take to answer

LRESULT ask(HWND window, UINT message, WPARAM wparam = 0, LPARAM lparam = 0) {
    DWORD_PTR answer = 0;
    if (!SendMessageTimeoutW(window, message, wparam, lparam, SMTO_NORMAL, patience, &answer))
        throw Disappointment{L"A window does not answer."};
    return static_cast<LRESULT>(answer);
}

bool is_message_box(HWND window) {
    wchar_t name[16]{};
    GetClassNameW(window, name, 16);
    return std::wstring(name) == L"#32770" && name_of(window).empty();
}

bool is_combo_box(HWND window) {
    wchar_t name[16]{};
    GetClassNameW(window, name, 16);
    return std::wstring(name) == L"ComboBox";
}

} // namespace

Program::Program(const std::wstring& command_line) {
    std::wstring line = command_line;
    STARTUPINFOW start{};
    start.cb = sizeof start;
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                        &process_))
        throw Disappointment{L"Could not start " + command_line};
}

Program::~Program() {
    DWORD code = 0;
    if (GetExitCodeProcess(process_.hProcess, &code) && code == STILL_ACTIVE)
        TerminateProcess(process_.hProcess, 1);
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
}

namespace {

struct WindowSearch {
    DWORD process = 0;
    std::vector<HWND> found;
};

BOOL CALLBACK note_window(HWND window, LPARAM data) {
    auto& search = *reinterpret_cast<WindowSearch*>(data);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process == search.process) search.found.push_back(window);
    return TRUE;
}

} // namespace

std::vector<HWND> Program::windows() const {
    WindowSearch search{process_.dwProcessId, {}};
    EnumWindows(note_window, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND Program::front() const {
    for (HWND window : windows()) {
        if (!IsWindowVisible(window) || !IsWindowEnabled(window)) continue;
        if (!name_of(window).empty() || is_message_box(window)) return window;
    }
    return nullptr;
}

std::wstring Program::front_name() const {
    const HWND window = front();
    if (!window) return {};
    const std::wstring name = name_of(window);
    return name.empty() ? L"message" : name;
}

HWND Program::control(const std::wstring& name) const {
    for (HWND child = GetWindow(front(), GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        if (name_of(child) == name) return child;
    throw Disappointment{L"There is no " + name + L" in " + front_name()};
}

void Program::wait_until(const std::wstring& what, const std::function<bool()>& fulfilled, int seconds) {
    const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(seconds) * 1000;
    while (!fulfilled()) {
        if (GetTickCount64() > end) throw Disappointment{L"Waited in vain for " + what};
        Sleep(50);
    }
}

DWORD Program::wait_for_end() {
    if (WaitForSingleObject(process_.hProcess, patience) != WAIT_OBJECT_0)
        throw Disappointment{L"The program did not end."};
    DWORD code = 0;
    GetExitCodeProcess(process_.hProcess, &code);
    return code;
}

std::wstring name_of(HWND window) {
    const auto atom = static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(GetPropW(window, L"brx.Name")));
    wchar_t name[256]{};
    if (atom == 0 || GlobalGetAtomNameW(atom, name, 256) == 0) return {};
    return name;
}

std::wstring text_of(HWND window) {
    std::wstring text(static_cast<std::size_t>(ask(window, WM_GETTEXTLENGTH)) + 1, L'\0');
    const LRESULT length = ask(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

std::vector<std::wstring> lines_of(HWND list) {
    const bool combo = is_combo_box(list);
    std::vector<std::wstring> lines;
    const LRESULT count = ask(list, combo ? CB_GETCOUNT : LB_GETCOUNT);
    for (LRESULT i = 0; i < count; ++i) {
        const auto index = static_cast<WPARAM>(i);
        const LRESULT length = ask(list, combo ? CB_GETLBTEXTLEN : LB_GETTEXTLEN, index);
        std::wstring line(static_cast<std::size_t>(length) + 1, L'\0');
        ask(list, combo ? CB_GETLBTEXT : LB_GETTEXT, index, reinterpret_cast<LPARAM>(line.data()));
        line.resize(static_cast<std::size_t>(length));
        lines.push_back(line);
    }
    return lines;
}

std::wstring message_of(HWND box) {
    std::wstring all;
    for (HWND child = GetWindow(box, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        if (const std::wstring text = text_of(child); text.size() > all.size()) all = text;
    return all;
}

bool is_busy(HWND window) {
    DWORD_PTR answer = 0;
    return !SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, 200, &answer);
}

void press(HWND button) {
    if (!IsWindowEnabled(button) || !IsWindowVisible(button))
        throw Disappointment{L"The button \"" + text_of(button) + L"\" cannot be pressed."};
    PostMessageW(button, BM_CLICK, 0, 0);
}

void type(HWND box, const std::wstring& text) {
    for (const wchar_t each : text) PostMessageW(box, WM_CHAR, each, 1);
}

void click_into(HWND control) {
    const LPARAM place = MAKELPARAM(8, 8);
    PostMessageW(control, WM_LBUTTONDOWN, MK_LBUTTON, place);
    PostMessageW(control, WM_LBUTTONUP, 0, place);
}

long rows_of(HWND list_view) { return static_cast<long>(ask(list_view, LVM_GETITEMCOUNT)); }

void hit(HWND control, WPARAM key) {
    PostMessageW(control, WM_KEYDOWN, key, 1);
    PostMessageW(control, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
}

void click_line(HWND list, int line) {
    const auto height = static_cast<int>(ask(list, LB_GETITEMHEIGHT));
    const LPARAM place = MAKELPARAM(20, line * height + height / 2);
    PostMessageW(list, WM_LBUTTONDOWN, MK_LBUTTON, place);
    PostMessageW(list, WM_LBUTTONUP, 0, place);
}

void close(HWND window) { PostMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0); }

} // namespace tour
