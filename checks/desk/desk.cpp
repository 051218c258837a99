#include "desk/desk.h"

#include "desk/hands.h"
#include "desk/native.h"
#include "forms/win32/wide.h"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <thread>

namespace brx::checks {

namespace {

constexpr UINT run_message = WM_APP + 1;
constexpr UINT idle_message = WM_APP + 2;

[[noreturn]] void give_up(const std::string& why) {
    ADD_FAILURE() << why;
    throw GaveUp(why);
}

/// The first visible window of the thread that fits, when there is one within some seconds.
HWND find_window(DWORD thread, const std::function<bool(HWND)>& fits) {
    HWND found = nullptr;
    Hands::eventually([&] {
        for (HWND window : windows_of(thread))
            if (fits(window)) found = window;
        return found != nullptr;
    });
    return found;
}

void close_everything(DWORD thread) {
    for (HWND window : windows_of(thread)) {
        if (!IsWindowEnabled(window)) continue;
        if (is_message_box(window)) PostMessageW(window, WM_COMMAND, IDOK, 0);
        if (is_message_box(window) || !name_of(window).empty()) PostMessageW(window, WM_CLOSE, 0, 0);
    }
}

bool own_window_is_in_front() {
    DWORD process = 0;
    GetWindowThreadProcessId(GetForegroundWindow(), &process);
    return process == GetCurrentProcessId();
}

INPUT key_input(WORD virtual_key, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = virtual_key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(virtual_key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = flags;
    return input;
}

} // namespace

WindowThread::WindowThread() : idle_(CreateEventW(nullptr, FALSE, FALSE, nullptr)) {
    window_ = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
}

WindowThread::~WindowThread() {
    DestroyWindow(window_);
    CloseHandle(idle_);
}

LRESULT CALLBACK WindowThread::procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    auto& self = *reinterpret_cast<WindowThread*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == run_message) (*reinterpret_cast<const std::function<void()>*>(lparam))();
    // A timer's message comes only when no other one waits.
    else if (message == idle_message)
        SetTimer(window, 1, USER_TIMER_MINIMUM, nullptr);
    else if (message == WM_TIMER) {
        KillTimer(window, 1);
        SetEvent(self.idle_);
    } else
        return DefWindowProcW(window, message, wparam, lparam);
    return 0;
}

void WindowThread::run(const std::function<void()>& job) const {
    if (!SendMessageTimeoutW(window_, run_message, 0, reinterpret_cast<LPARAM>(&job), SMTO_NORMAL, patience,
                             nullptr))
        give_up("the window thread does not look at its messages");
}

void WindowThread::wait_until_idle() const {
    PostMessageW(window_, idle_message, 0, 0);
    if (WaitForSingleObject(idle_, patience) != WAIT_OBJECT_0)
        give_up("the window thread never becomes idle");
}

HWND Hands::form(const std::string& name) const {
    const HWND found = find_window(
        windows_.id(), [&](HWND window) { return name_of(window) == name && IsWindowEnabled(window); });
    if (!found) give_up("no form " + name + " takes input");
    wait_until_idle();
    return found;
}

HWND Hands::control(const std::string& form_name, const std::string& control_name) const {
    const HWND parent = find_window(windows_.id(), [&](HWND window) { return name_of(window) == form_name; });
    if (const HWND found = parent ? find_control(parent, control_name) : nullptr) return found;
    give_up("no control " + control_name + " in " + form_name);
}

HWND Hands::message_box() const {
    const HWND found = find_window(windows_.id(), is_message_box);
    if (!found) give_up("no message box is open");
    wait_until_idle();
    return found;
}

bool Hands::eventually(const std::function<bool()>& condition) {
    for (DWORD waited = 0; waited < patience; waited += 10) {
        if (condition()) return true;
        Sleep(10);
    }
    return condition();
}

void Hands::strike(const std::vector<WORD>& virtual_keys) {
    // The system gives them to whatever is in front.
    if (!eventually(own_window_is_in_front))
        give_up("another program is in front, or none: it would get the keys");
    std::vector<INPUT> inputs;
    for (const WORD each : virtual_keys) inputs.push_back(key_input(each, 0));
    for (auto each = virtual_keys.rbegin(); each != virtual_keys.rend(); ++each)
        inputs.push_back(key_input(*each, KEYEVENTF_KEYUP));
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

void Hands::keys(const std::vector<WORD>& virtual_keys) const {
    strike(virtual_keys);
    wait_until_idle();
}

void Hands::type(const std::string& text) const {
    for (const char each : text)
        key(each >= 'a' && each <= 'z' ? static_cast<WORD>(each - 'a' + 'A') : static_cast<WORD>(each));
}

void Hands::click(HWND window, int x, int y) const {
    checks::click(window, {x, y});
    wait_until_idle();
}

void Hands::double_click(HWND window, int x, int y) const {
    click(window, x, y);
    click_again(window, {x, y});
    wait_until_idle();
}

void Hands::press(HWND button) const {
    PostMessageW(button, BM_CLICK, 0, 0);
    wait_until_idle();
}

HWND Hands::focus() const {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(windows_.id(), &info);
    return info.hwndFocus;
}

std::wstring Hands::text(HWND window) { return to_wide(text_of(window)); }

HostWindow::HostWindow(RECT place, DWORD style, DWORD ex_style, HWND owner)
    : handle_(CreateWindowExW(ex_style, L"STATIC", L"Host", style, place.left, place.top,
                              place.right - place.left, place.bottom - place.top, owner, nullptr, nullptr,
                              nullptr)),
      edit_(CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 10, 10, 100, 20, handle_, nullptr,
                            nullptr, nullptr)) {
    if ((style & WS_VISIBLE) != 0) SetForegroundWindow(handle_);
}

HostWindow::~HostWindow() {
    if (IsWindow(handle_)) DestroyWindow(handle_);
}

OnWindows::~OnWindows() {
    for (const ErrorReport& each : host.reports)
        ADD_FAILURE() << "reported: " << each.number << " " << each.description << " in " << each.location;
}

void OnWindows::show(Form& form, const Person& person) {
    while_showing([&] { form.show_modal(); }, person);
}

void OnWindows::while_showing(const std::function<void()>& job, const Person& person) {
    std::atomic<bool> ended{false};
    std::thread other([&] {
        try {
            Hands hands(windows);
            person(hands);
        } catch (const GaveUp&) {
        }
        for (DWORD waited = 0; !ended; waited += 20) {
            if (waited > 2 * patience) {
                std::fprintf(stderr, "a window does not close: giving up\n");
                std::fflush(stderr);
                ExitProcess(4);
            }
            close_everything(windows.id());
            Sleep(20);
        }
    });
    job();
    ended = true;
    other.join();
}

HelpOutcome OnWindows::note_help(HWND, const std::wstring& file, DWORD topic) {
    help_opened.push_back(from_wide(file) + " at " + std::to_string(topic));
    return HelpOutcome::opened;
}

} // namespace brx::checks
