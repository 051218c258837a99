#pragma once

#include "desk/desk.h"

#include "desk/native_table.h"
#include "forms/list_rows.h"
#include "rules/page_form.h"
#include "screen.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace brx::checks {

using Rows = std::vector<std::string>;

class PagesTest : public OnWindows {
protected:
    using Story = std::function<void(Hands& hands, HWND control)>;

    /// Shows the form while a person acts who has the window of one of its controls in view.
    void show_page(PageForm& form, const char* control, const Story& story) {
        show(form, [&](Hands& hands) {
            hands.form("Pages");
            story(hands, hands.control("Pages", control));
        });
    }
    /// Runs code of the form, as a handler does.
    static void run(Hands& hands, Form& form, const std::function<void()>& code) {
        hands.run([&] { form.run_event(code); });
    }
    static void set_scale(HWND control, int dpi) {
        const RECT proposed{10, 10, 20, 20};
        SendMessageW(GetParent(control), WM_DPICHANGED, MAKEWPARAM(dpi, dpi),
                     reinterpret_cast<LPARAM>(&proposed));
    }
    static void grow(HWND form, int width, int height) {
        RECT outer{};
        GetWindowRect(form, &outer);
        SetWindowPos(form, nullptr, 0, 0, outer.right - outer.left + width, outer.bottom - outer.top + height,
                     SWP_NOMOVE | SWP_NOZORDER);
    }
};

/// Notes the messages that reach a window, until the end. Made and destroyed by its thread.
class MessageLog {
public:
    explicit MessageLog(HWND window) : window_(window) {
        SetWindowSubclass(window, procedure, 77, reinterpret_cast<DWORD_PTR>(this));
    }
    ~MessageLog() { RemoveWindowSubclass(window_, procedure, 77); }
    MessageLog(const MessageLog&) = delete;
    MessageLog& operator=(const MessageLog&) = delete;

    std::vector<MSG> messages;

    std::ptrdiff_t count(UINT message) const {
        return std::count_if(messages.begin(), messages.end(),
                             [&](const MSG& each) { return each.message == message; });
    }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR,
                                      DWORD_PTR self) noexcept {
        reinterpret_cast<MessageLog*>(self)->messages.push_back({window, message, wparam, lparam, 0, {}});
        return DefSubclassProc(window, message, wparam, lparam);
    }

    HWND window_;
};

} // namespace brx::checks
