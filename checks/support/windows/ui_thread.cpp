#include "windows/ui_thread.h"

#include "desk/native.h"

#include <objbase.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <utility>

namespace brx::checks {

namespace {

constexpr UINT errand_message = WM_APP;
constexpr UINT job_message = WM_APP + 1;

// A handler may post what another handler posts upon: so many links of such a chain are waited for.
constexpr int probes_to_settle = 4;

constexpr auto longest_tick = std::chrono::milliseconds(2'500);

UINT probe_message() {
    static const UINT message = RegisterWindowMessageW(L"brx.Probe");
    return message;
}

HINSTANCE program() { return GetModuleHandleW(nullptr); }

/// Nothing that a hanging thread uses may be destroyed.
[[noreturn]] void end_the_run() {
    std::fprintf(stderr, "The user-interface thread hangs: the run ends here.\n");
    std::fflush(stderr);
    std::_Exit(3);
}

const wchar_t* window_class(const wchar_t* name, WNDPROC procedure) {
    WNDCLASSW description{};
    description.lpfnWndProc = procedure;
    description.hInstance = program();
    description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    description.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_APPWORKSPACE + 1);
    description.lpszClassName = name;
    RegisterClassW(&description); // fails from the second time on
    return name;
}

/// In the corner, beside all windows. From the window that the mouse has entered Wine concludes what lies in
/// front; when it learns late of what was in front before, it puts a host's window before its dialogs.
void rest_the_mouse() { SetCursorPos(GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1); }

} // namespace

thread_local UiThread* UiThread::current_ = nullptr;

UiThread::UiThread() : thread_([this] { run(); }) {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [&] { return ready_ || ended_; });
    if (ended_) {
        lock.unlock();
        thread_.join();
        throw std::runtime_error("The user-interface thread could not be set up");
    }
}

UiThread::~UiThread() {
    PostMessageW(agent_, WM_CLOSE, 0, 0);
    {
        std::unique_lock lock(mutex_);
        if (!changed_.wait_for(lock, std::chrono::milliseconds(patience), [&] { return ended_; }))
            end_the_run();
    }
    thread_.join();
}

void UiThread::run() {
    current_ = this;
    id_ = GetCurrentThreadId();
    const HRESULT apartment = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    const HHOOK hook = SetWindowsHookExW(WH_GETMESSAGE, hook_procedure, nullptr, id_);
    if (SUCCEEDED(apartment) && hook && make_windows()) {
        {
            const std::lock_guard lock(mutex_);
            ready_ = true;
        }
        changed_.notify_all();
        MSG message{};
        while (GetMessageW(&message, nullptr, 0, 0) > 0) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
    if (window_) DestroyWindow(window_);
    if (agent_) DestroyWindow(agent_);
    if (hook) UnhookWindowsHookEx(hook);
    if (SUCCEEDED(apartment)) CoUninitialize();
    const std::lock_guard lock(mutex_);
    ended_ = true;
    changed_.notify_all();
}

bool UiThread::make_windows() {
    agent_ = CreateWindowExW(0, window_class(L"brx.CheckAgent", agent_procedure), L"", 0, 0, 0, 0, 0,
                             HWND_MESSAGE, nullptr, program(), nullptr);
    window_ = CreateWindowExW(0, window_class(L"brx.CheckHost", DefWindowProcW), L"Host", WS_OVERLAPPEDWINDOW,
                              80, 60, 800, 600, nullptr, nullptr, program(), nullptr);
    if (!agent_ || !window_) return false;
    // Not the way in which the program was started.
    ShowWindow(window_, SW_SHOWNORMAL);
    ShowWindow(window_, SW_SHOWNORMAL);
    SetForegroundWindow(window_);
    rest_the_mouse();
    return true;
}

LRESULT CALLBACK UiThread::agent_procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept {
    switch (message) {
    case errand_message:
        current_->run_errand(wparam);
        return 0;
    case job_message:
        current_->run_job(wparam);
        return 0;
    case WM_CLOSE:
        PostQuitMessage(0);
        return 0;
    default:
        return DefWindowProcW(window, message, wparam, lparam);
    }
}

LRESULT CALLBACK UiThread::hook_procedure(int code, WPARAM removed, LPARAM data) noexcept {
    if (code == HC_ACTION && removed == PM_REMOVE) current_->taken_from_queue(*reinterpret_cast<MSG*>(data));
    return CallNextHookEx(nullptr, code, removed, data);
}

void UiThread::taken_from_queue(MSG& message) {
    if (message.message == probe_message() && message.hwnd == agent_) {
        if (works_) {
            put_off_ = message.wParam;
            return;
        }
        const std::lock_guard lock(mutex_);
        probes_seen_ = static_cast<unsigned>(message.wParam);
        changed_.notify_all();
    } else if (message.message == WM_TIMER && !clock_.lets_pass(message)) {
        message.message = WM_NULL;
    }
}

WPARAM UiThread::leave(std::map<WPARAM, std::shared_ptr<Errand>>& in, std::shared_ptr<Errand> errand) {
    const std::lock_guard lock(mutex_);
    in[next_number_] = std::move(errand);
    return next_number_++;
}

std::shared_ptr<UiThread::Errand> UiThread::take(std::map<WPARAM, std::shared_ptr<Errand>>& from,
                                                 WPARAM number) {
    const std::lock_guard lock(mutex_);
    const auto found = from.find(number);
    if (found == from.end()) return nullptr; // given up meanwhile
    auto errand = std::move(found->second);
    from.erase(found);
    return errand;
}

void UiThread::run_errand(WPARAM number) {
    const auto errand = take(errands_, number);
    if (!errand) return;
    try {
        errand->work();
    } catch (...) {
        errand->failure = std::current_exception();
    }
}

void UiThread::run_job(WPARAM number) {
    const auto job = take(jobs_, number);
    try {
        job->work();
    } catch (...) {
        const std::lock_guard lock(mutex_);
        job_failure_ = std::current_exception();
    }
    --jobs_running_;
}

void UiThread::call(const Work& work) {
    if (is_this()) return work();
    const auto errand = std::make_shared<Errand>(Errand{work, nullptr});
    const WPARAM number = leave(errands_, errand);
    DWORD_PTR result = 0;
    const auto done =
        SendMessageTimeoutW(agent_, errand_message, number, 0, SMTO_NORMAL, hangs_ ? 1 : patience, &result);
    if (!done) {
        // Once begun it uses what the caller has.
        if (!take(errands_, number)) end_the_run();
        give_up("It does not answer");
    }
    if (errand->failure) std::rethrow_exception(errand->failure);
}

void UiThread::start(Work job) {
    ++jobs_running_;
    PostMessageW(agent_, job_message, leave(jobs_, std::make_shared<Errand>(Errand{std::move(job), nullptr})),
                 0);
    settle();
    const std::lock_guard lock(mutex_);
    if (job_failure_) std::rethrow_exception(std::exchange(job_failure_, nullptr));
}

void UiThread::settle() {
    if (is_this()) return handle_queued();
    for (int i = 0; i < probes_to_settle; ++i) wait_for_probe();
}

/// The thread is not back to waiting for input by that.
void UiThread::handle_queued() {
    const bool outer = std::exchange(works_, true);
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));
            break;
        }
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    works_ = outer;
    if (const WPARAM probe = std::exchange(put_off_, 0)) PostMessageW(agent_, probe_message(), probe, 0);
}

void UiThread::wait_for_probe() {
    std::unique_lock lock(mutex_);
    const unsigned number = ++probes_sent_;
    PostMessageW(agent_, probe_message(), number, 0);
    const std::chrono::milliseconds limit(hangs_ ? 1 : patience);
    if (!changed_.wait_for(lock, limit, [&] { return probes_seen_ == number || ended_; })) {
        lock.unlock();
        give_up("It has not come back to waiting for input");
    }
}

void UiThread::give_up(const char* why) {
    hangs_ = true;
    throw std::runtime_error(std::string("The user-interface thread hangs. ") + why + " within " +
                             std::to_string(patience) + " ms.");
}

void UiThread::pump() {
    pumps_ = true;
    MSG message{};
    while (pumps_ && GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

void UiThread::end_pump() {
    call([this] { pumps_ = false; });
    settle();
}

void UiThread::tick() {
    call([this] { clock_.begin_tick(); });
    const auto end = std::chrono::steady_clock::now() + longest_tick;
    bool ticked = false;
    while (!ticked && std::chrono::steady_clock::now() < end) {
        settle();
        call([&] { ticked = clock_.has_ticked(); });
        if (!ticked) std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    call([this] { clock_.end_tick(); });
    settle();
}

} // namespace brx::checks
