#pragma once

#include "desk/native.h"
#include "forms/form.h"
#include "forms/win32/engine.h"
#include "gave_up.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace brx::checks {

/// Runs functions on the thread of the windows, and tells when that thread has nothing more to do.
class WindowThread {
public:
    WindowThread();
    ~WindowThread();
    WindowThread(const WindowThread&) = delete;
    WindowThread& operator=(const WindowThread&) = delete;

    DWORD id() const { return id_; }
    /// From another thread: runs `job` over there, now.
    void run(const std::function<void()>& job) const;
    /// From another thread: returns when every message there has been dealt with.
    void wait_until_idle() const;

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);

    DWORD id_ = GetCurrentThreadId();
    HWND window_ = nullptr;
    HANDLE idle_ = nullptr;
};

/// A person's hands on keyboard and mouse, and eyes on the windows. Lives on a thread of its own.
class Hands {
public:
    explicit Hands(const WindowThread& windows) : windows_(windows) {}

    /// A form's window, once it is open and takes input; a control's window in it.
    HWND form(const std::string& name) const;
    HWND control(const std::string& form_name, const std::string& control_name) const;
    /// The message box, once it is open.
    HWND message_box() const;

    void run(const std::function<void()>& job) const { windows_.run(job); }
    void wait_until_idle() const { windows_.wait_until_idle(); }
    /// Whether it becomes true within some seconds.
    static bool eventually(const std::function<bool()>& condition);

    /// Presses and releases keys, the first ones held down while the last one is struck.
    static void strike(const std::vector<WORD>& virtual_keys);
    /// The same, and waits for what comes of it.
    void keys(const std::vector<WORD>& virtual_keys) const;
    void key(WORD virtual_key) const { keys({virtual_key}); }
    /// Types lower-case letters, digits and blanks.
    void type(const std::string& text) const;
    /// Clicks with the left mouse button, at a point of the window.
    void click(HWND window, int x = 3, int y = 3) const;
    void double_click(HWND window, int x, int y) const;
    /// Presses a button as a test program does.
    void press(HWND button) const;

    HWND focus() const;
    static std::wstring text(HWND window);

private:
    const WindowThread& windows_;
};

/// A host that has nothing and remembers what it is told.
class BareHost : public ErrorLibraries, public ObjectFactory {
public:
    std::vector<ErrorReport> reports;
    void Show(ErrorLibrary, const ErrorReport& report, const std::function<void()>&) noexcept override {
        reports.push_back(report);
    }
    ObjectPtr create(const std::string&) override { throw Error(error::cannot_create_object); }
};

/// A window of the host's, with an edit control in it, closed at the end.
class HostWindow {
public:
    explicit HostWindow(RECT place = {200, 150, 900, 650}, DWORD style = WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                        DWORD ex_style = 0, HWND owner = nullptr);
    ~HostWindow();
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;

    HWND handle() const { return handle_; }
    HWND edit() const { return edit_; }

private:
    HWND handle_;
    HWND edit_;
};

class OnWindows : public testing::Test {
protected:
    using Person = std::function<void(Hands&)>;

    ~OnWindows() override;

    /// Shows the form here while `person` acts on another thread. Whatever is open when she leaves is closed.
    void show(Form& form, const Person& person);
    /// The same for any code that opens windows.
    void while_showing(const std::function<void()>& job, const Person& person);

    WindowThread windows;
    BareHost host;
    std::vector<std::string> help_opened; ///< "file at topic"
    Win32Engine engine{
        [this](HWND over, const std::wstring& file, DWORD topic) { return note_help(over, file, topic); }};
    Environment environment{engine, host, host, Locale{}};

private:
    HelpOutcome note_help(HWND over, const std::wstring& file, DWORD topic);
};

} // namespace brx::checks
