#pragma once

#include <windows.h>

#include <string>

namespace brx {

/// The module: the program or DLL that this code was linked into.
HMODULE module_handle() noexcept;

/// The full path of its file.
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
