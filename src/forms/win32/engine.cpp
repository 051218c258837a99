#include "forms/win32/engine.h"

#include "common/error.h"
#include "forms/form.h"
#include "forms/win32/form_window.h"
#include "forms/win32/help.h"
#include "forms/win32/thread_windows.h"
#include "forms/win32/wide.h"

#include <optional>
#include <utility>

namespace brx {

namespace {

/// Serves the window until its form is no longer loaded. Gives the exit code when the thread is asked to end.
std::optional<WPARAM> serve(FormWindow& window) {
    while (window.form().loaded()) {
        if (window.do_held()) continue;
        MSG message{};
        if (!PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            // Looking for messages has dealt with sent ones, which can unload the form and are never seen
            // here.
            if (window.form().loaded())
                MsgWaitForMultipleObjectsEx(0, nullptr, INFINITE, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
        } else if (message.message == WM_QUIT) {
            window.form().unload();
            return message.wParam;
        } else {
            window.deal_with(message);
        }
    }
    return std::nullopt;
}

/// Whether the thread is told to quit while a box of the system is open, whose loop then ends it.
class QuitWatch {
public:
    QuitWatch()
        : outer_(std::exchange(innermost_, this)),
          hook_(SetWindowsHookExW(WH_GETMESSAGE, look, nullptr, GetCurrentThreadId())) {}
    QuitWatch(const QuitWatch&) = delete;
    QuitWatch& operator=(const QuitWatch&) = delete;
    ~QuitWatch() {
        UnhookWindowsHookEx(hook_);
        innermost_ = outer_;
    }

    /// The queue alone would not do: some systems keep WM_QUIT back until every other posted message is gone.
    bool is_to_quit() const { return seen_ || waits_in_queue(); }

private:
    static bool waits_in_queue() {
        MSG message{};
        return PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_NOREMOVE) && message.message == WM_QUIT;
    }
    static LRESULT CALLBACK look(int code, WPARAM removed, LPARAM message) {
        if (code == HC_ACTION && reinterpret_cast<const MSG*>(message)->message == WM_QUIT)
            innermost_->seen_ = true;
        return CallNextHookEx(nullptr, code, removed, message);
    }

    static inline thread_local QuitWatch* innermost_ = nullptr;

    QuitWatch* outer_;
    HHOOK hook_;
    bool seen_ = false;
};

/// What the close box of a message box answers.
std::int32_t closed_answer(std::int32_t style) {
    return (style & MB_TYPEMASK) == message::ok_cancel ? message::cancel : message::ok;
}

void give_focus_back(HWND window) {
    if (IsWindow(window) && GetActiveWindow() == GetAncestor(window, GA_ROOT) && IsWindowVisible(window) &&
        IsWindowEnabled(window))
        SetFocus(window);
}

} // namespace

Win32Engine::Win32Engine(HelpOpener open_help)
    : open_help_(open_help ? std::move(open_help) : [](HWND over, const std::wstring& file, DWORD topic) {
          return open_help_file(over, file, topic, HelpViewers::of_the_system());
      }) {}

Win32Engine::~Win32Engine() = default;

void Win32Engine::show_modal(Form& form) {
    const HWND focus_before = GetFocus();
    const bool over_own_form = !open_forms_.empty();
    std::optional<WPARAM> exit_code;
    {
        const HWND owner = window_in_front();
        DisabledThreadWindows others;
        comes_before_forms();
        FormWindow window(*this, form, owner);
        open_forms_.push_back(&window);
        window.open();
        exit_code = serve(window);
        open_forms_.pop_back();
        others.enable_again();
    }
    // Forms find their focus themselves.
    if (!over_own_form) give_focus_back(focus_before);
    // Whoever runs the loop below this one has to end too.
    if (exit_code) PostQuitMessage(static_cast<int>(*exit_code));
}

void Win32Engine::repaint(Form& form) {
    for (const FormWindow* window : open_forms_)
        if (&window->form() == &form && window->handle())
            RedrawWindow(window->handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    GdiFlush();
    // Some systems bring what was drawn to the screen only when the thread waits. No message is taken.
    MsgWaitForMultipleObjectsEx(0, nullptr, 1, 0, 0);
}

void Win32Engine::hourglass(Form& form, bool on) {
    if (on) {
        ++busy_[&form];
        SetCursor(LoadCursorW(nullptr, IDC_WAIT));
        return;
    }
    const auto found = busy_.find(&form);
    if (found == busy_.end()) return;
    if (--found->second > 0) return;
    busy_.erase(found);
    // The window under the mouse says what it looks like now.
    POINT mouse{};
    const HWND below = GetCursorPos(&mouse) ? WindowFromPoint(mouse) : nullptr;
    if (below && GetWindowThreadProcessId(below, nullptr) == GetCurrentThreadId()) {
        const LRESULT area = SendMessageW(below, WM_NCHITTEST, 0, MAKELPARAM(mouse.x, mouse.y));
        SendMessageW(below, WM_SETCURSOR, reinterpret_cast<WPARAM>(below), MAKELPARAM(area, WM_MOUSEMOVE));
    } else {
        SetCursor(LoadCursorW(nullptr, IDC_ARROW));
    }
}

std::int32_t Win32Engine::message_box(const Message& message) {
    const HWND owner = window_in_front();
    const HWND focus_before = GetFocus();
    const auto style = static_cast<UINT>(message.style) | (owner ? 0 : MB_TASKMODAL | MB_SETFOREGROUND);
    int pressed = 0;
    bool quitting = false;
    {
        const std::wstring text = to_wide(message.text);
        const std::wstring title = to_wide(message.shown_title());
        // The box disables its owner itself, and enables it at the right moment.
        const DisabledThreadWindows others(owner);
        const VisualStyles styles;
        const QuitWatch watch;
        pressed = MessageBoxW(owner, text.c_str(), title.c_str(), style);
        quitting = watch.is_to_quit();
    }
    // A box that went with its owner, or with the whole thread, has been answered by nobody: some systems say
    // OK.
    if (quitting || (owner && !IsWindow(owner))) pressed = closed_answer(message.style);
    if (pressed == 0) throw Error(error::invalid_procedure_call);
    if (open_forms_.empty())
        give_focus_back(focus_before);
    else // Some systems leave a form below its owner when a box follows a form that has just closed.
        SetWindowPos(owner, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    return pressed;
}

HelpOutcome Win32Engine::show_help(const std::string& help_file, std::int32_t topic) {
    return open_help_(window_in_front(), to_wide(help_file), static_cast<DWORD>(topic));
}

/// Null when something else is before it, or there is none.
const FormWindow* Win32Engine::form_in_front() const {
    if (open_forms_.empty() || &open_forms_.back()->form() != turn::front()) return nullptr;
    return open_forms_.back();
}

bool Win32Engine::holds_deeds() const { return form_in_front() && form_in_front()->holds_deeds(); }

bool Win32Engine::leaves(const MSG& input) const { return form_in_front() && form_in_front()->leaves(input); }

void Win32Engine::comes_before_forms() {
    if (!open_forms_.empty()) open_forms_.back()->miss_held();
}

HWND Win32Engine::window_in_front() const {
    for (auto window = open_forms_.rbegin(); window != open_forms_.rend(); ++window)
        if ((*window)->handle()) return (*window)->handle();
    return host_window();
}

} // namespace brx
