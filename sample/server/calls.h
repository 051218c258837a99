#pragma once

#include "server/options.h"
#include "win32/counted.h"

#include <windows.h>

#include <objidl.h>

#include <fstream>
#include <map>
#include <string>
#include <utility>

namespace brx::server {

/// The calls that reach the program's only thread from others: the system asks this before each one. Counts
/// them, and does to them what the switches say.
class Calls final : public Counted<IMessageFilter> {
public:
    Calls(const Switches& switches, const std::filesystem::path& log);

    Switches switches;
    /// Whose messages are served while a call is delayed; no other message is, for it could be the next call.
    HWND window = nullptr;
    /// Of the window: nobody could let a call go on any more that is held back.
    void window_is_gone();
    /// The class under which clients find the program; 0 for none.
    DWORD offered = 0;

    unsigned answered() const { return answered_; }
    unsigned turned_away() const { return turned_away_; }
    /// "OPCBrowser.Item"; "" before the first one.
    const std::wstring& latest() const { return latest_; }
    bool one_waits() const { return waits_; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
    DWORD STDMETHODCALLTYPE HandleInComingCall(DWORD type, HTASK caller, DWORD ticks,
                                               INTERFACEINFO* info) noexcept override;
    DWORD STDMETHODCALLTYPE RetryRejectedCall(HTASK, DWORD, DWORD) override { return static_cast<DWORD>(-1); }
    DWORD STDMETHODCALLTYPE MessagePending(HTASK, DWORD, DWORD) override { return PENDINGMSG_WAITDEFPROCESS; }

private:
    DWORD answer_to(const INTERFACEINFO& call);
    /// "" of what is no call to the plant.
    const std::wstring& name_of(const INTERFACEINFO& info);
    [[noreturn]] void end_the_program() const;
    void take_time();
    void serve_the_window() const;

    std::ofstream log_;
    std::map<std::pair<std::wstring, WORD>, std::wstring> names_; ///< by interface and position
    std::wstring latest_;
    unsigned answered_ = 0;
    unsigned turned_away_ = 0;
    unsigned tries_ = 0; ///< of the call that is turned away
    bool waits_ = false;
};

} // namespace brx::server
