#include "com/call_retries.h"

#include "common/trap.h"
#include "win32/counted.h"

#include <algorithm>
#include <utility>

namespace brx {

namespace {

// The thread's. Nothing here may need a destructor: that would keep the module loaded until the thread ends.
thread_local CallRetries* innermost_retries = nullptr;

/// The system takes any less for "at once".
constexpr DWORD shortest_delay = 100; // ms
constexpr DWORD longest_delay = 250;
constexpr DWORD give_up = ~DWORD{0};

} // namespace

/// It knows nothing but its thread: a host that keeps it beyond its time finds it as good as none.
class CallRetries::Filter final : public Counted<IMessageFilter> {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        if (!object) return E_POINTER;
        *object = nullptr;
        if (iid != __uuidof(IUnknown) && iid != __uuidof(IMessageFilter)) return E_NOINTERFACE;
        *object = static_cast<IMessageFilter*>(this);
        AddRef();
        return S_OK;
    }

    // As without a filter.
    DWORD STDMETHODCALLTYPE HandleInComingCall(DWORD, HTASK, DWORD, INTERFACEINFO*) override {
        return SERVERCALL_ISHANDLED;
    }
    DWORD STDMETHODCALLTYPE MessagePending(HTASK, DWORD, DWORD) override { return PENDINGMSG_WAITDEFPROCESS; }

    DWORD STDMETHODCALLTYPE RetryRejectedCall(HTASK, DWORD lasted, DWORD) override {
        if (!innermost_retries || lasted >= lasting) return give_up;
        bool stopped = true;
        attempt([&] { stopped = innermost_retries->is_stopped_(); });
        return stopped ? give_up : std::clamp(lasted / 10, shortest_delay, longest_delay);
    }
};

CallRetries::CallRetries(std::function<bool()> is_stopped) noexcept
    : is_stopped_(std::move(is_stopped)), outer_(std::exchange(innermost_retries, this)) {
    if (outer_) return;
    attempt([&] { filter_ = make_com<Filter>(); });
    if (!filter_) return;
    com_ptr<IMessageFilter> host_filter;
    if (FAILED(CoRegisterMessageFilter(filter_.get(), host_filter.out()))) {
        filter_ = nullptr;
    } else if (host_filter) {
        filter_ = nullptr;
        CoRegisterMessageFilter(host_filter.get(), nullptr);
    }
}

CallRetries::~CallRetries() {
    if (filter_) take_away();
    innermost_retries = outer_;
}

void CallRetries::take_away() noexcept {
    com_ptr<IMessageFilter> present;
    // Meanwhile the host may have got one of its own.
    if (SUCCEEDED(CoRegisterMessageFilter(nullptr, present.out())) && present &&
        present.get() != filter_.get())
        CoRegisterMessageFilter(present.get(), nullptr);
}

} // namespace brx
