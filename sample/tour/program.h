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

    /// Waits, some seconds at most, until `fulfilled`; throws with `what` when that does not come.
    static void wait_until(const std::wstring& what, const std::function<bool()>& fulfilled,
                           int seconds = 15);

    /// Waits for the program to end by itself and gives its exit code.
    DWORD wait_for_end();

private:
    std::vector<HWND> windows() const;

    PROCESS_INFORMATION process_{};
};

std::wstring name_of(HWND window);
std::wstring text_of(HWND window);
/// The lines of a list box or a combo box.
std::vector<std::wstring> lines_of(HWND list);
/// The text of a message box.
std::wstring message_of(HWND box);

/// Whether the window's program does something else than to wait for input.
bool is_busy(HWND window);

void press(HWND button);
void type(HWND box, const std::wstring& text);
void click_into(HWND control);
/// How many rows a list view has.
long rows_of(HWND list_view);
void hit(HWND control, WPARAM key);
/// Clicks on a line of a list box.
void click_line(HWND list, int line);
void close(HWND window);

} // namespace tour
