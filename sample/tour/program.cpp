#include "tour/program.h"

namespace tour {

namespace {

constexpr UINT patience = 60000;           ///< milliseconds that whatever is sure to come may take
constexpr ULONGLONG longest_wait = 180000; ///< milliseconds, for one that answers nothing any more

bool is_message_box(HWND window) {
    wchar_t name[16]{};
    GetClassNameW(window, name, 16);
    return std::wstring(name) == L"#32770" && name_of(window).empty();
}

struct WindowSearch {
    DWORD thread = 0;
    std::vector<HWND> found;
};

BOOL CALLBACK note_window(HWND window, LPARAM data) {
    auto& search = *reinterpret_cast<WindowSearch*>(data);
    if (GetWindowThreadProcessId(window, nullptr) == search.thread) search.found.push_back(window);
    return TRUE;
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
    if (!has_ended()) TerminateProcess(process_.hProcess, 1);
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
}

std::vector<HWND> Program::windows() const {
    WindowSearch search{process_.dwThreadId, {}};
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
    const HWND window = front();
    for (HWND child = window ? GetWindow(window, GW_CHILD) : nullptr; child;
         child = GetWindow(child, GW_HWNDNEXT))
        if (name_of(child) == name) return child;
    throw Disappointment{L"there is no " + name + L" in " + (window ? name_of(window) : L"any window")};
}

void Program::wait_until(const std::wstring& what, const std::function<bool()>& fulfilled,
                         int answers) const {
    const ULONGLONG end = GetTickCount64() + longest_wait;
    std::wstring missing;
    for (int left = answers; left > 0; Sleep(50)) {
        try {
            if (fulfilled()) return;
            missing.clear();
        } catch (const Disappointment& disappointment) {
            missing = L": " + disappointment.what;
        }
        if (has_ended()) throw Disappointment{L"The program ended; waited for " + what};
        if (GetTickCount64() > end) throw Disappointment{L"The program does not answer; waited for " + what};
        if (answers_within(200)) --left;
    }
    throw Disappointment{L"Waited in vain for " + what + missing};
}

bool Program::answers_within(UINT milliseconds) const {
    const std::vector<HWND> all = windows();
    DWORD_PTR answer = 0;
    return !all.empty() &&
           SendMessageTimeoutW(all.front(), WM_NULL, 0, 0, SMTO_NORMAL, milliseconds, &answer) != 0;
}

bool Program::is_busy() const { return !answers_within(500); }

bool Program::has_ended() const { return WaitForSingleObject(process_.hProcess, 0) == WAIT_OBJECT_0; }

DWORD Program::wait_for_end() const {
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

LRESULT ask(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    DWORD_PTR answer = 0;
    if (!SendMessageTimeoutW(window, message, wparam, lparam, SMTO_NORMAL, patience, &answer))
        throw Disappointment{L"a window does not answer"};
    return static_cast<LRESULT>(answer);
}

} // namespace tour
