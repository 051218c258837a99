#include "dll/trace_file.h"

#include "com/bstr.h"
#include "common/trace.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <string>

namespace brx {

namespace {

constexpr const wchar_t* variable = L"BRX_TRACE";

std::wstring target() {
    std::wstring value(GetEnvironmentVariableW(variable, nullptr, 0), L'\0');
    value.resize(GetEnvironmentVariableW(variable, value.data(), static_cast<DWORD>(value.size())));
    return value;
}

std::string with_time_and_thread(std::string text) {
    // Whatever a host's texts hold, a line is a line.
    std::replace_if(
        text.begin(), text.end(), [](unsigned char each) { return each < ' '; }, ' ');
    SYSTEMTIME now{};
    GetLocalTime(&now);
    std::array<char, 64> head{};
    std::snprintf(head.data(), head.size(), "%04u-%02u-%02u %02u:%02u:%02u.%03u %lu.%lu ", now.wYear,
                  now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond, now.wMilliseconds,
                  GetCurrentProcessId(), GetCurrentThreadId());
    return head.data() + text + "\r\n";
}

/// In one piece, behind whatever other processes have written.
bool append(const std::wstring& path, const std::string& line) {
    HANDLE const file = CreateFileW(path.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                    nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    DWORD written = 0;
    const BOOL done = WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
    CloseHandle(file);
    return done != FALSE;
}

void write(const std::string& text) {
    // What is told afterwards must not find another error than the one that is written down.
    const DWORD last_error = GetLastError();
    const std::wstring to = target();
    const std::string line = with_time_and_thread(text);
    if (to == L"debugger" || !append(to, line)) OutputDebugStringW(wide(line).c_str());
    SetLastError(last_error);
}

} // namespace

void trace_as_asked() noexcept {
    trace::sink = GetEnvironmentVariableW(variable, nullptr, 0) > 1 ? write : nullptr;
}

} // namespace brx
