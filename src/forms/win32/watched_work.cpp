#include "forms/win32/watched_work.h"

#include "common/trap.h"
#include "forms/win32/dpi.h"
#include "win32/system_function.h"

#include <objbase.h>

#include <algorithm>
#include <array>
#include <utility>

namespace brx {

namespace {

constexpr DWORD refreshed_every = 100;          // ms
constexpr ULONGLONG looks_for_a_key_every = 50; // ms

using EnableCancellation = HRESULT(WINAPI*)(void*);
using CancelCall = HRESULT(WINAPI*)(DWORD thread, ULONG timeout);

/// Of the COM library, where it has it: not every system's has.
template <class Function> Function com_function(const char* name) {
    return function_of<Function>(L"ole32.dll", name);
}

constexpr std::array ways_to_leave = {UINT{WM_LBUTTONDOWN}, UINT{WM_NCLBUTTONDOWN}, UINT{WM_SYSKEYUP},
                                      UINT{WM_SYSCOMMAND}, UINT{WM_CLOSE}};

/// Takes it out of the queue, so that it does nothing else.
bool take_escape() {
    MSG key{};
    // The host's quit message comes through every filter.
    if (!PeekMessageW(&key, nullptr, WM_KEYDOWN, WM_KEYDOWN, PM_NOREMOVE) || key.message != WM_KEYDOWN ||
        key.wParam != VK_ESCAPE)
        return false;
    return PeekMessageW(&key, nullptr, WM_KEYDOWN, WM_KEYDOWN, PM_REMOVE) != FALSE;
}

/// For its lifetime a person sees what is waited for.
class IsShown {
public:
    explicit IsShown(std::atomic<bool>& shown) : shown_(shown) { shown_ = true; }
    ~IsShown() { shown_ = false; }
    IsShown(const IsShown&) = delete;
    IsShown& operator=(const IsShown&) = delete;

private:
    std::atomic<bool>& shown_;
};

} // namespace

WatchedWork::WatchedWork(Questions questions) : ask_(std::move(questions)) {
    if (const auto enable = com_function<EnableCancellation>("CoEnableCallCancellation")) enable(nullptr);
}

WatchedWork::~WatchedWork() {
    if (const auto disable = com_function<EnableCancellation>("CoDisableCallCancellation")) disable(nullptr);
    if (!thread_) return;
    ends_ = true;
    SetEvent(woken_.get());
    // It may be giving the foreground back, for which the system asks windows of this thread.
    HANDLE const thread = thread_.get();
    MSG message{};
    while (MsgWaitForMultipleObjects(1, &thread, FALSE, INFINITE, QS_SENDMESSAGE) == WAIT_OBJECT_0 + 1)
        PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
}

void WatchedWork::changed() {
    if (is_going_on()) {
        over_ = ask_.window_in_front();
        if (!thread_ && woken_) {
            worker_thread_.reset(OpenThread(SYNCHRONIZE, FALSE, worker_));
            thread_.reset(CreateThread(nullptr, 0, thread, this, 0, nullptr));
        }
        if (idle_.exchange(false)) SetEvent(woken_.get());
    } else if (shown_) {
        SetEvent(woken_.get());
    }
}

bool WatchedWork::looks_for_stop() {
    // A question to the system, which the work pays for only when it lasts.
    if (shown_ && GetTickCount64() - looked_ >= looks_for_a_key_every) {
        looked_ = GetTickCount64();
        if (take_escape()) stop();
        if (is_left()) leave();
    }
    return Work::looks_for_stop();
}

/// By the first thing of its kind that waits in the queue. It stays there: its time comes after the work.
bool WatchedWork::is_left() const {
    return std::ranges::any_of(ways_to_leave, [&](UINT way) {
        MSG input{};
        return PeekMessageW(&input, nullptr, way, way, PM_NOREMOVE) && ask_.leaves(input);
    });
}

bool WatchedWork::keeps_a_person_waiting() {
    return HIWORD(GetQueueStatus(QS_KEY | QS_MOUSEBUTTON)) != 0 || ask_.holds_deeds();
}

bool WatchedWork::break_off_call() {
    const auto cancel = com_function<CancelCall>("CoCancelCall");
    if (!cancel) return false;
    // The watching thread belongs to no apartment otherwise.
    const HRESULT entered = CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    const HRESULT cancelled = cancel(worker_, 0);
    if (SUCCEEDED(entered)) CoUninitialize();
    // By an earlier Stop, or the call has just ended.
    return SUCCEEDED(cancelled) || cancelled == RPC_E_CALL_CANCELED || cancelled == RPC_E_CALL_COMPLETE;
}

DWORD WINAPI WatchedWork::thread(void* self) noexcept {
    attempt([&] { static_cast<WatchedWork*>(self)->watch(); });
    return 0;
}

void WatchedWork::watch() {
    const std::array<HANDLE, 2> signals{woken_.get(), worker_thread_.get()};
    const DWORD count = worker_thread_ ? 2 : 1;
    const auto wait = [&](DWORD most) { WaitForMultipleObjects(count, signals.data(), FALSE, most); };
    while (!ends_ && !is_deserted()) {
        if (!is_going_on()) {
            idle_ = true;
            // Work that began before has not found it idle, and wakes nobody.
            if (!is_going_on()) wait(INFINITE);
            idle_ = false;
            continue;
        }
        const Milliseconds lasted = this->lasted();
        if (lasted >= shown_after)
            show_it();
        else
            wait(static_cast<DWORD>((shown_after - lasted).count()));
    }
}

bool WatchedWork::is_over() const {
    return ends_ || !is_going_on() || lasted() < shown_after || is_deserted();
}

bool WatchedWork::is_deserted() const {
    return WaitForSingleObject(worker_thread_.get(), 0) == WAIT_OBJECT_0;
}

void WatchedWork::show_it() {
    const ScaleOf scale(over_);
    const unsigned turn = report().turn;
    WaitingWindow window(over_, locale_, [&] { stop(turn); });
    const IsShown until_the_end(shown_);
    is_seen();
    HANDLE const woken = woken_.get();
    while (!is_over()) {
        window.tell(report());
        MSG message{};
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (IsDialogMessageW(window.handle(), &message)) continue;
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        MsgWaitForMultipleObjects(1, &woken, FALSE, refreshed_every, QS_ALLINPUT);
    }
}

} // namespace brx
