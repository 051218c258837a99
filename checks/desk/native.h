#pragma once

#include "screen.h"

#include <windows.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace brx::checks {

// Reading windows as any user-interface test can, its own program's or another's: by the names that they
// carry and by what the system's controls tell.

/// How long a window may take to answer, in milliseconds; checks of these tools themselves have less.
inline UINT patience = 20'000;

/// How many characters of one cell or node are read.
inline constexpr int longest_text = 8192;

/// Sends a message. 0 when the window is not there or does not answer.
LRESULT ask(HWND window, UINT message, WPARAM wparam = 0, LPARAM lparam = 0);

/// The name of the form or control that the window belongs to; "" when it is nobody's.
std::string name_of(HWND window);

std::string text_of(HWND window);

/// The visible top-level windows of a thread, uppermost first.
std::vector<HWND> windows_of(DWORD thread);

/// The windows within a form's window that carry names, all found in one walk: every question about another
/// window is a message to the system's server, and a form has sixty windows.
class NamedWindows {
public:
    explicit NamedWindows(HWND form);
    /// Null when there is none. The system keeps names without regard to case.
    HWND find(const std::string& name) const;

private:
    static BOOL CALLBACK add(HWND window, LPARAM self) noexcept;

    using List = std::vector<std::pair<ATOM, HWND>>;
    List windows_;
};

/// The control's window within a form's window, or null.
HWND find_control(HWND form, const std::string& name);

enum class NativeKind {
    push_button,
    check_box,
    group,
    text_box,
    list_box,
    combo_box,
    tree,
    table,
    tabs,
    date_picker,
    label,
    other
};
NativeKind kind_of(HWND control);

/// Whether a control and everything around it takes input.
bool takes_input(HWND window);

/// The lines of a list, the rows of a tree or a table (see `tree_rows`, `table_rows`), the captions of tabs;
/// none for other kinds of control.
int count_lines(HWND control);
std::vector<std::string> lines_of(HWND control, int most = Reading::all_lines);

/// What is to be seen of a control, but for its lines. `focused` is the window with the keyboard focus.
Sight sight_of(HWND control, HWND focused);

/// Whether it is one of the system's message boxes.
bool is_message_box(HWND window);

/// The window of this process that tells of work that lasts, which is a thread's of its own; null when there
/// is none.
HWND waiting_window();

/// What a message box says. Its style is put together from its icon, as far as the icons of this process
/// tell, and its buttons.
Message message_in(HWND box);

} // namespace brx::checks
