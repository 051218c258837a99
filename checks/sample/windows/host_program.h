#pragma once

#include "sample/windows/objects_stage.h"

#include <functional>
#include <map>
#include <optional>
#include <string>

namespace brx::checks {

/// The sample host running as a program of its own; ended with the check.
class HostProgram {
public:
    HostProgram(const std::filesystem::path& program, const std::wstring& arguments);
    HostProgram(const HostProgram&) = delete;
    HostProgram& operator=(const HostProgram&) = delete;
    ~HostProgram();

    /// A visible window of the program by class and, unless it is null, title; null when none comes.
    HWND window(const wchar_t* kind, const wchar_t* title = nullptr) const;
    DWORD exit_code() const;
    HANDLE process() const { return process_.hProcess; }

private:
    PROCESS_INFORMATION process_{};
};

/// What a message box says.
std::string text_of_box(HWND box);

/// Controls by the names that UI tests find them by.
using Controls = std::map<std::wstring, HWND>;
Controls controls_of(HWND window);

/// Waits for it, up to half a minute.
bool comes_true(const std::function<bool()>& condition);

/// The host with its servers connected and the first one selected.
class OpenHost {
public:
    OpenHost() : OpenHost([](const std::string&) {}) {}
    /// On a database file that something is done to before.
    explicit OpenHost(const std::function<void(const std::string& file)>& prepare);
    /// As the program's argument says.
    explicit OpenHost(std::wstring source);

    /// Closes it, and starts it on the same database file.
    void start_again();
    /// Kills it in the middle of whatever it does, and starts it on the same database file.
    void kill_and_start_again();

    const HostProgram& program() const { return *program_; }
    HWND window() const { return window_; }
    HWND control(const wchar_t* name) const { return controls_of(window_)[name]; }
    HWND list() const { return control(L"lstServers"); }
    bool is_open_to_input() const { return IsWindowEnabled(window_) != FALSE; }
    void press(const wchar_t* button) const { PostMessageW(control(button), BM_CLICK, 0, 0); }
    void select_row(WPARAM key, LRESULT row) const;
    LRESULT rows(const wchar_t* list) const;
    /// What a list says in a row and a column from 0.
    std::string cell(const wchar_t* list, int row, int column) const;
    /// The line of the log that was written last.
    std::string last_log_line() const;
    int default_button() const { return LOWORD(SendMessageW(window_, DM_GETDEFID, 0, 0)); }

private:
    void start();

    std::wstring source_ = L"--plant";
    CheckFolder folder_;
    std::optional<HostProgram> program_;
    HWND window_ = nullptr;
};

/// The dialog of the selected configuration, or of a new one, opened by a button of the host.
class OpenConfiguration {
public:
    OpenConfiguration(const OpenHost& host, const wchar_t* button);

    HWND control(const wchar_t* name) const { return controls_of(dialog_)[name]; }
    std::string reads(const wchar_t* box) const;
    void press(const wchar_t* button) const { PostMessageW(control(button), BM_CLICK, 0, 0); }
    void type_over(const wchar_t* box, const std::wstring& text) const;
    /// Goes on to the next tab, which has this control.
    void next_tab(const wchar_t* control_there) const;
    /// Selects the first test, and removes it.
    void remove_test() const;
    bool is_open_to_input() const { return IsWindowEnabled(dialog_) != FALSE; }
    /// By its close box, and waits for the host.
    void leave() const;
    /// By its button, and waits for the host.
    void close() const;

private:
    void wait_for_host() const;

    const OpenHost& host_;
    HWND dialog_;
};

} // namespace brx::checks
