#include "apart/waiting_watch.h"

#include "desk/native.h"

#include <windows.h>

namespace brx::checks {

namespace {

constexpr int id_what = 100;
constexpr int id_how_far = 101;

} // namespace

WaitingWatch::~WaitingWatch() { seen(); }

const std::set<std::string>& WaitingWatch::seen() {
    over_ = true;
    if (thread_.joinable()) thread_.join();
    return seen_;
}

void WaitingWatch::look() {
    for (; !over_; Sleep(40)) {
        const HWND window = waiting_window();
        if (!window) continue;
        // It may be gone by now.
        std::string what = text_of(GetDlgItem(window, id_what));
        if (what.empty()) continue;
        seen_.insert(what.substr(0, what.find("...")));
        const std::string how_far = text_of(GetDlgItem(window, id_how_far));
        if (!stops_at_.empty() && how_far.ends_with(stops_at_))
            SendMessageW(GetDlgItem(window, IDCANCEL), BM_CLICK, 0, 0);
    }
}

} // namespace brx::checks
