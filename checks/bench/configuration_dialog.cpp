#include "bench/configuration_dialog.h"

#include "bench/component.h"
#include "bench/configuration_floor.h"
#include "bench/timer_watch.h"
#include "bench/when_idle.h"

#include "com/failure.h"
#include "desk/native.h"

#include <commctrl.h>

#include <brxOpcDlgs6.h>

#include <stdexcept>
#include <utility>

namespace brx::bench {

namespace {

constexpr int server_rows = 12; ///< of the status, before the groups'

/// The configuration dialog that is open on this thread.
class Dialog {
public:
    explicit Dialog(HWND window) : window_(window) {}

    HWND window() const { return window_; }
    HWND control(const char* name) const { return checks::find_control(window_, name); }
    int rows(const char* list) const {
        return static_cast<int>(SendMessageW(control(list), LVM_GETITEMCOUNT, 0, 0));
    }
    void turn_to_status() const {
        const HWND tabs = control("TabStrip1");
        RECT tab{};
        SendMessageW(tabs, TCM_GETITEMRECT, 3, reinterpret_cast<LPARAM>(&tab));
        const LPARAM point = MAKELPARAM((tab.left + tab.right) / 2, (tab.top + tab.bottom) / 2);
        SendMessageW(tabs, WM_LBUTTONDOWN, MK_LBUTTON, point);
        SendMessageW(tabs, WM_LBUTTONUP, 0, point);
    }
    void close() const { PostMessageW(window_, WM_CLOSE, 0, 0); }

private:
    HWND window_;
};

/// Counts the messages that reach a window, until the end.
class MessageCount {
public:
    explicit MessageCount(HWND window) : window_(window) {
        SetWindowSubclass(window, procedure, 77, reinterpret_cast<DWORD_PTR>(this));
    }
    ~MessageCount() { RemoveWindowSubclass(window_, procedure, 77); }
    MessageCount(const MessageCount&) = delete;
    MessageCount& operator=(const MessageCount&) = delete;

    std::size_t count() const { return count_; }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR,
                                      DWORD_PTR self) noexcept {
        ++reinterpret_cast<MessageCount*>(self)->count_;
        return DefSubclassProc(window, message, wparam, lparam);
    }

    HWND window_;
    std::size_t count_ = 0;
};

void show(_hlxOPCConfiguration& configuration) {
    check(make_instance(CLSID_ConfigurationSetup).as<_ConfigurationSetup>()->Show(&configuration));
}

/// What a run of the same thing costs.
template <class Deed> Cost cost_of(int times, Deed&& deed) {
    const Cost start = spent();
    for (int i = 0; i < times; ++i) deed();
    return spent() - start;
}

} // namespace

Opening open_configuration(const Holdings& holdings) {
    Opening result;
    bool complete = false;
    const auto configuration = make_configuration(holdings);
    const Cost start = spent();
    const WhenIdle idle([&](const Cost& before) {
        result.shown = before - start;
        result.bytes = private_bytes();
        const Dialog dialog(GetActiveWindow());
        complete =
            dialog.rows("lvwTest") == holdings.tests && dialog.rows("lvwDescriptors") == holdings.descriptors;
        idle.stop();
        dialog.close();
    });
    show(*configuration.get());
    if (!complete) throw std::runtime_error("the dialog did not show the configuration");
    return result;
}

Ticks tick_configuration(const Holdings& holdings, int runs, int ticks_in_a_run) {
    Ticks result;
    bool turned = false;
    const auto configuration = make_configuration(holdings);
    const TimerWatch timers;
    const WhenIdle idle([&](const Cost&) {
        const Dialog dialog(GetActiveWindow());
        if (!std::exchange(turned, true)) return dialog.turn_to_status();
        // The first tick, which makes the rows, comes by itself.
        const HWND list = dialog.control("lvwServerInfo");
        const WPARAM timer = TimerWatch::timer_of(dialog.window());
        if (timer == 0 || dialog.rows("lvwServerInfo") != server_rows + holdings.groups) return;
        idle.stop();
        UpdateWindow(dialog.window());
        const MessageCount messages(list);
        const int before = status_reads();
        for (int run = 0; run < runs; ++run) {
            result.reads.add(cost_of(ticks_in_a_run, [&] { read_status(*configuration.get()); }));
            result.ticks.add(
                cost_of(ticks_in_a_run, [&] { SendMessageW(dialog.window(), WM_TIMER, timer, 0); }));
        }
        result.messages = messages.count();
        result.complete = IsWindowVisible(list) && status_reads() - before == 2 * runs * ticks_in_a_run;
        result.painted =
            GetUpdateRect(list, nullptr, FALSE) || GetUpdateRect(dialog.window(), nullptr, FALSE);
        dialog.close();
    });
    show(*configuration.get());
    if (!result.complete) throw std::runtime_error("the dialog did not tick");
    return result;
}

} // namespace brx::bench
