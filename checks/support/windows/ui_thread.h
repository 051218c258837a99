#pragma once

#include "windows/dialog_clock.h"

#include <windows.h>

#include <atomic>
#include <condition_variable>
#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <thread>

namespace brx::checks {

/// The user-interface thread of a host program: a single-threaded apartment, a window on the screen, a
/// message loop. What it is asked to do reaches it through its message queue, so also while a dialog's modal
/// loop runs on it.
class UiThread {
public:
    using Work = std::function<void()>;

    UiThread();
    /// Ends the run of the whole program when the thread hangs: nothing that it refers to may be destroyed
    /// then.
    ~UiThread();
    UiThread(const UiThread&) = delete;
    UiThread& operator=(const UiThread&) = delete;

    bool is_this() const { return GetCurrentThreadId() == id_; }
    DWORD id() const { return id_; }
    /// The host's window.
    HWND window() const { return window_; }

    /// Runs `work` at once, between two messages, and comes back when it is done. Passes on what it throws.
    void call(const Work& work);
    /// Queues `job`, which may run modal loops.
    void start(Work job);
    /// Whether a job has not ended.
    bool busy() const { return jobs_running_ > 0; }

    /// Comes back when everything queued, and everything that followed from it, has been done and the thread
    /// waits for input. On the thread itself: handles what is queued now.
    void settle();

    /// On the thread itself: serves messages until `end_pump`, as foreign code does that waits for them.
    void pump();
    void end_pump();

    /// Lets the dialogs' timers tick once.
    void tick();

private:
    struct Errand {
        Work work;
        std::exception_ptr failure;
    };

    void run();
    bool make_windows();
    void run_errand(WPARAM number);
    void run_job(WPARAM number);
    void taken_from_queue(MSG& message);
    void wait_for_probe();
    void handle_queued();
    std::shared_ptr<Errand> take(std::map<WPARAM, std::shared_ptr<Errand>>& from, WPARAM number);
    WPARAM leave(std::map<WPARAM, std::shared_ptr<Errand>>& in, std::shared_ptr<Errand> errand);
    [[noreturn]] void give_up(const char* why);

    static LRESULT CALLBACK agent_procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept;
    static LRESULT CALLBACK hook_procedure(int code, WPARAM wparam, LPARAM lparam) noexcept;
    static thread_local UiThread* current_;

    std::mutex mutex_;
    std::condition_variable changed_;
    bool ready_ = false;
    bool ended_ = false;
    bool hangs_ = false;
    unsigned probes_sent_ = 0;
    unsigned probes_seen_ = 0;
    WPARAM next_number_ = 1;
    std::map<WPARAM, std::shared_ptr<Errand>> errands_; ///< asked for and not begun
    std::map<WPARAM, std::shared_ptr<Errand>> jobs_;
    std::exception_ptr job_failure_;
    std::atomic<int> jobs_running_ = 0;
    bool pumps_ = false;
    bool works_ = false; ///< it handles what is queued, in the middle of something else
    WPARAM put_off_ = 0; ///< the probe that came meanwhile

    DialogClock clock_;
    DWORD id_ = 0;
    HWND window_ = nullptr;
    HWND agent_ = nullptr; ///< takes the messages that are meant for this class
    std::thread thread_;   // last: it uses all of the above
};

} // namespace brx::checks
