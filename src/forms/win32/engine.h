#pragma once

#include "forms/engine.h"
#include "forms/win32/watched_work.h"

#include <windows.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace brx {

class FormWindow;

/// Forms as windows of the system, on the thread that shows them. An engine serves one thread.
class Win32Engine : public FormEngine {
public:
    /// Opens a help file at a topic, over a window (or null).
    using HelpOpener = std::function<HelpOutcome(HWND over, const std::wstring& file, DWORD topic)>;

    /// Help goes to the system's viewers when no opener is given.
    explicit Win32Engine(HelpOpener open_help = {});
    ~Win32Engine() override;

    void show_modal(Form& form) override;
    void repaint(Form& form) override;
    void hourglass(Form& form, bool on) override;
    std::int32_t message_box(const Message& message) override;
    HelpOutcome show_help(const std::string& help_file, std::int32_t topic) override;
    void comes_before_forms() override;
    WatchedWork& work() override { return work_; }

    /// Whether the form shows the hourglass.
    bool is_busy(const Form& form) const { return busy_.count(&form) != 0; }

private:
    HWND window_in_front() const;
    const FormWindow* form_in_front() const;
    bool holds_deeds() const;
    bool leaves(const MSG& input) const;

    HelpOpener open_help_;
    std::vector<FormWindow*> open_forms_; ///< the one in front is the last
    std::map<const Form*, int> busy_;     ///< how many procedures of it show the hourglass
    WatchedWork work_{{.window_in_front = [this] { return window_in_front(); },
                       .holds_deeds = [this] { return holds_deeds(); },
                       .leaves = [this](const MSG& input) { return leaves(input); }}};
};

} // namespace brx
