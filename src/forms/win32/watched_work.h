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
/// takes her Stop. The thread begins with the first work.
class WatchedWork : public Work {
public:
    /// Both are asked on the forms' thread: the window that work begins in, and whether a person has done
    /// something that is held back.
    WatchedWork(std::function<HWND()> window_in_front, std::function<bool()> holds_deeds);
    ~WatchedWork() override;

    void set_locale(const Locale& locale) { locale_ = locale; }
    bool keeps_a_person_waiting() override;
    Milliseconds now() const override { return Milliseconds(GetTickCount64()); }
    /// Whether a person sees what is waited for. Escape is Stop then.
    bool is_shown() const { return shown_; }

protected:
    void changed() override;
    bool looks_for_stop() override;
    void break_off_call() override;

private:
    static DWORD WINAPI thread(void* self) noexcept;
    void watch();
    void show_it();
    bool is_over() const;

    std::function<HWND()> window_in_front_;
    std::function<bool()> holds_deeds_;
    Locale locale_;
    DWORD worker_ = GetCurrentThreadId();
    OwnedHandle woken_{CreateEventW(nullptr, FALSE, FALSE, nullptr)};
    OwnedHandle thread_;
    std::atomic<HWND> over_ = nullptr;
    std::atomic<bool> idle_ = true; ///< the watching thread waits for work to begin
    std::atomic<bool> shown_ = false;
    std::atomic<bool> ends_ = false;
    ULONGLONG looked_ = 0;
};

} // namespace brx
