#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace tour {

/// Something did not come out as it should; the text says what.
struct Disappointment {
    std::wstring what;
};

/// The windows of a program that runs for itself, found by the names that they carry in the property
/// `brx.Name`.
class Program {
public:
    /// Starts it; ends it when this goes, if it still runs.
    explicit Program(const std::wstring& command_line);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// The window that takes input: a named one, or a message box. Null when there is none.
    HWND front() const;
    /// The name of the window in front, "message" for a message box.
    std::wstring front_name() const;
    /// A control of the window in front. Throws when there is none of this name.
    HWND control(const std::wstring& name) const;
    HANDLE handle() const { return process_.hProcess; }

    /// Waits until `fulfilled`; throws with `what` when that does not come although the program has answered
    /// so often, at most 20 times a second. Seconds do not count: on a busy computer it may take any time
    /// until it has its turn. A disappointment on the way means that it is not fulfilled yet.
    void wait_until(const std::wstring& what, const std::function<bool()>& fulfilled,
                    int answers = 300) const;
    /// Whether it does something else than to wait for input.
    bool is_busy() const;

    /// Waits for the program to end by itself and gives its exit code.
    DWORD wait_for_end() const;

private:
    std::vector<HWND> windows() const;
    bool answers_within(UINT milliseconds) const;
    bool has_ended() const;

    PROCESS_INFORMATION process_{};
};

std::wstring name_of(HWND window);

/// Sends a message and waits for the answer; throws when none comes.
LRESULT ask(HWND window, UINT message, WPARAM wparam = 0, LPARAM lparam = 0);

} // namespace tour
