#include "forms/win32/visual_styles.h"

#include "win32/this_module.h"

namespace brx {

namespace {

/// The number under which a DLL carries the manifest of its own dependencies.
constexpr WORD manifest_resource = 2;

class Manifest {
public:
    Manifest() noexcept {
        ACTCTXW wanted{};
        wanted.cbSize = sizeof wanted;
        wanted.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
        wanted.hModule = this_module();
        wanted.lpResourceName = MAKEINTRESOURCEW(manifest_resource);
        // Asked for first: a failing CreateActCtx writes to the system's event log.
        if (FindResourceW(wanted.hModule, wanted.lpResourceName, MAKEINTRESOURCEW(24)))
            context_ = CreateActCtxW(&wanted);
    }
    ~Manifest() {
        if (exists()) ReleaseActCtx(context_);
    }
    Manifest(const Manifest&) = delete;
    Manifest& operator=(const Manifest&) = delete;

    bool exists() const { return context_ != INVALID_HANDLE_VALUE; }
    HANDLE get() const { return context_; }

private:
    HANDLE context_ = INVALID_HANDLE_VALUE;
};

} // namespace

VisualStyles::VisualStyles() noexcept {
    static const Manifest manifest;
    active_ = manifest.exists() && ActivateActCtx(manifest.get(), &cookie_);
}

VisualStyles::~VisualStyles() {
    if (active_) DeactivateActCtx(0, cookie_);
}

HostContext::HostContext() noexcept : known_(GetCurrentActCtx(&context_)) {}

HostContext::~HostContext() {
    if (known_ && context_) ReleaseActCtx(context_);
}

HostContext::Scope::Scope(const HostContext& host) noexcept {
    active_ = host.known_ && ActivateActCtx(host.context_, &cookie_);
}

HostContext::Scope::~Scope() {
    if (active_) DeactivateActCtx(0, cookie_);
}

} // namespace brx
