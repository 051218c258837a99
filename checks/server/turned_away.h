#pragma once

#include "win32/com_ptr.h"

#include <windows.h>

#include <objidl.h>

#include <vector>

namespace brx::checks {

/// The filter that this thread has; none without one.
inline com_ptr<IMessageFilter> filter_of_thread() {
    com_ptr<IMessageFilter> filter;
    CoRegisterMessageFilter(nullptr, filter.out());
    CoRegisterMessageFilter(filter.get(), nullptr);
    return filter;
}

/// A call from this thread that a busy server turns away, and what Windows makes of it: it asks the thread's
/// filter how long to wait before it tries again. Wine asks nobody, so the checks do it.
class TurnedAway {
public:
    /// Whether time passes, or is only counted.
    bool really_waits = false;

    std::vector<DWORD> delays; ///< as the filter wanted them
    DWORD lasted = 0;

    /// A call to a server that takes none for so long.
    HRESULT call(DWORD busy_for) {
        for (lasted = 0; lasted < busy_for;) {
            const auto filter = filter_of_thread();
            const DWORD answer =
                filter ? filter->RetryRejectedCall(nullptr, lasted, SERVERCALL_RETRYLATER) : never;
            if (answer == never) return RPC_E_CALL_REJECTED;
            delays.push_back(answer);
            const DWORD waits = answer < 100 ? 1 : answer; // less is at once
            if (really_waits) Sleep(waits);
            lasted += waits;
        }
        return S_OK;
    }

private:
    static constexpr DWORD never = ~DWORD{0};
};

/// A message filter of the host's own.
class HostFilter : public IMessageFilter {
public:
    int asked = 0;
    DWORD answer = ~DWORD{0};

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        *object = nullptr;
        if (iid != IID_IUnknown && iid != IID_IMessageFilter) return E_NOINTERFACE;
        *object = this;
        return AddRef(), S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override { return --references_; }
    DWORD STDMETHODCALLTYPE HandleInComingCall(DWORD, HTASK, DWORD, INTERFACEINFO*) override {
        return SERVERCALL_ISHANDLED;
    }
    DWORD STDMETHODCALLTYPE RetryRejectedCall(HTASK, DWORD, DWORD) override { return ++asked, answer; }
    DWORD STDMETHODCALLTYPE MessagePending(HTASK, DWORD, DWORD) override { return PENDINGMSG_WAITDEFPROCESS; }

    ULONG references() const { return references_; }

private:
    ULONG references_ = 0;
};

} // namespace brx::checks
