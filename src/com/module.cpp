#include "com/module.h"

#include <atomic>

namespace brx {

namespace {
std::atomic<long> locks = 0;
}

HMODULE module_handle() noexcept {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<const wchar_t*>(&locks), &module);
    return module;
}

std::wstring module_path() {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length =
            GetModuleFileNameW(module_handle(), path.data(), static_cast<DWORD>(path.size()));
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
