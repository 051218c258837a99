#pragma once

#include <string>

namespace brx {

/// The full path of this module's file.
std::wstring module_path();

/// Keeps the module loaded: every COM object of ours holds one, and so does a host that asked for a lock.
class ModuleLock {
public:
    ModuleLock() noexcept;
    ModuleLock(const ModuleLock&) noexcept;
    ModuleLock& operator=(const ModuleLock&) noexcept = default;
    ~ModuleLock();

    /// How many there are; the module may go when there is none.
    static long count() noexcept;
};

} // namespace brx
