#pragma once

#include "common/values/locale.h"
#include "forms/win32/waiting_window.h"
#include "forms/work.h"

#include <windows.h>

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <type_traits>

namespace brx {

struct HandleClose {
    void operator()(void* handle) const noexcept { CloseHandle(handle); }
};
using OwnedHandle = std::unique_ptr<std::remove_pointer_t<HANDLE>, HandleClose>;

/// Work that a thread of its own watches: when it lasts, a window of that thread tells a person of it and
/// takes her Stop. The thread begins with the first work, and ends with this, or when its host ends the
/// forms' thread in the middle of everything: this must then not have been on its stack.
class WatchedWork : public Work {
public:
    /// What is asked on the forms' thread.
    struct Questions {
        std::function<HWND()> window_in_front;  ///< in which work begins
        std::function<bool()> holds_deeds;      ///< of a person
        std::function<bool(const MSG&)> leaves; ///< whether this input leaves the form in front
    };
    explicit WatchedWork(Questions questions);
    ~WatchedWork() override;

    void set_locale(const Locale& locale) { locale_ = locale; }
    bool keeps_a_person_waiting() override;
    Milliseconds now() const override { return Milliseconds(GetTickCount64()); }
    /// Whether a person sees what is waited for. Escape is Stop then.
    bool is_shown() const { return shown_; }

protected:
    void changed() override;
    bool looks_for_stop() override;
    bool break_off_call() override;

private:
    static DWORD WINAPI thread(void* self) noexcept;
    void watch();
    void show_it();
    bool is_over() const;
    bool is_deserted() const;

    bool is_left() const;

    Questions ask_;
    Locale locale_;
    DWORD worker_ = GetCurrentThreadId();
    OwnedHandle worker_thread_;
    OwnedHandle woken_{CreateEventW(nullptr, FALSE, FALSE, nullptr)};
    OwnedHandle thread_;
    std::atomic<HWND> over_ = nullptr;
    std::atomic<bool> idle_ = true; ///< the watching thread waits for work to begin
    std::atomic<bool> shown_ = false;
    std::atomic<bool> ends_ = false;
    ULONGLONG looked_ = 0;
};

} // namespace brx
