#pragma once

#include <windows.h>

namespace brx {

/// For its lifetime the module's own manifest applies (its resource 2), so that windows made meanwhile have
/// visual styles also where the host program has none. Without that resource nothing changes.
class VisualStyles {
public:
    VisualStyles() noexcept;
    ~VisualStyles();
    VisualStyles(const VisualStyles&) = delete;
    VisualStyles& operator=(const VisualStyles&) = delete;

private:
    ULONG_PTR cookie_ = 0;
    bool active_ = false;
};

/// What applied when it was made: the host's own context. Windows are called in the context that they were
/// made in, and the host's code must not notice.
class HostContext {
public:
    HostContext() noexcept;
    ~HostContext();
    HostContext(const HostContext&) = delete;
    HostContext& operator=(const HostContext&) = delete;

    /// For its lifetime the host's context applies again.
    class Scope {
    public:
        explicit Scope(const HostContext& host) noexcept;
        ~Scope();
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

    private:
        ULONG_PTR cookie_ = 0;
        bool active_ = false;
    };

private:
    HANDLE context_ = nullptr;
    bool known_ = false;
};

} // namespace brx
