#include "win32/module.h"

#include "win32/this_module.h"

#include <windows.h>

#include <atomic>

namespace brx {

namespace {
std::atomic<long> locks = 0;
}

std::wstring module_path() {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = GetModuleFileNameW(this_module(), path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

ModuleLock::ModuleLock() noexcept { ++locks; }
ModuleLock::ModuleLock(const ModuleLock&) noexcept { ++locks; }
ModuleLock::~ModuleLock() { --locks; }
long ModuleLock::count() noexcept { return locks; }

} // namespace brx
