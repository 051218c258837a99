#pragma once

#include "desk/native.h"
#include "server/dll.h"

#include <windows.h>

#include <tlhelp32.h>

#include <atomic>
#include <functional>
#include <string>
#include <thread>

namespace brx::checks {

inline int threads_of_this_process() {
    const HANDLE threads = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    THREADENTRY32 each{};
    each.dwSize = sizeof each;
    int count = 0;
    for (BOOL more = Thread32First(threads, &each); more; more = Thread32Next(threads, &each))
        if (each.th32OwnerProcessID == GetCurrentProcessId()) ++count;
    CloseHandle(threads);
    return count;
}

/// A thread of the host's that shows dialogs.
class DialogThread {
public:
    explicit DialogThread(std::function<void()> job)
        : thread_([this, job = std::move(job)] {
              id_ = GetCurrentThreadId();
              job();
              ended_ = true;
          }) {}
    DialogThread(const DialogThread&) = delete;
    DialogThread& operator=(const DialogThread&) = delete;
    ~DialogThread() { thread_.join(); }

    DWORD id() const { return id_; }
    bool ended() const { return ended_; }
    /// On the thread: it ends without a return from anything.
    [[noreturn]] void ends_here() {
        ended_ = true;
        ExitThread(0);
    }

    /// Its dialog of this name once it is open, null when it does not open.
    HWND dialog(const std::string& name) const {
        HWND found = nullptr;
        for (UINT waited = 0; !found && waited < patience; waited += 10, Sleep(10))
            for (HWND window : windows_of(id_))
                if (name_of(window) == name) found = window;
        return found;
    }

private:
    std::atomic<DWORD> id_ = 0;
    std::atomic<bool> ended_ = false;
    std::thread thread_; // last: it uses the others
};

} // namespace brx::checks
