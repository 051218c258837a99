#include "windows/watched_help.h"

#include "com/bstr.h"

#include <cstdint>
#include <cstring>
#include <stdexcept>

#include <htmlhelp.h>

namespace brx::checks {

namespace {

std::string last_shown;

/// In the place of HtmlHelpW.
HWND WINAPI note(HWND, LPCWSTR file, UINT command, DWORD_PTR topic) {
    last_shown = brx::text_of(file, wcslen(file)) + " at " + std::to_string(topic);
    if (command != (topic != 0 ? HH_HELP_CONTEXT : HH_DISPLAY_TOPIC))
        last_shown += " by command " + std::to_string(command);
    return GetDesktopWindow();
}

/// What goes on at `to` when it runs at `from`.
std::array<unsigned char, 14> jump([[maybe_unused]] const void* from, const void* to) {
    std::array<unsigned char, 14> code{};
#ifdef _WIN64
    code = {0xFF, 0x25}; // jmp [rip+0], the address follows
    std::memcpy(code.data() + 6, &to, sizeof to);
#else
    code = {0xE9}; // jmp, counted from the next instruction
    const auto distance = reinterpret_cast<std::intptr_t>(to) - reinterpret_cast<std::intptr_t>(from) - 5;
    std::memcpy(code.data() + 1, &distance, 4);
#endif
    return code;
}

} // namespace

WatchedHelp::WatchedHelp() {
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetSystemDirectoryW(path.data(), MAX_PATH));
    viewer_ = LoadLibraryW((path + L"\\hhctrl.ocx").c_str());
    const FARPROC entry = viewer_ ? GetProcAddress(viewer_, "HtmlHelpW") : nullptr;
    if (!entry) throw std::runtime_error("The system has no viewer of HTML help.");
    entry_ = reinterpret_cast<void*>(entry);
    std::memcpy(before_.data(), entry_, before_.size());
    write(jump(entry_, reinterpret_cast<const void*>(note)));
    last_shown.clear();
}

WatchedHelp::~WatchedHelp() {
    write(before_);
    FreeLibrary(viewer_);
}

std::string WatchedHelp::shown() { return last_shown; }

void WatchedHelp::write(const Code& code) const {
    DWORD protection = 0;
    VirtualProtect(entry_, code.size(), PAGE_EXECUTE_READWRITE, &protection);
    std::memcpy(entry_, code.data(), code.size());
    VirtualProtect(entry_, code.size(), protection, &protection);
    FlushInstructionCache(GetCurrentProcess(), entry_, code.size());
}

} // namespace brx::checks
