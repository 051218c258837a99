#include "server/debugger_output.h"

#include <windows.h>

#include <cstring>

namespace brx::checks {

namespace {

// The exceptions that OutputDebugString raises for a debugger: the wide one comes first, the other one only
// where nobody took the first.
constexpr DWORD print_wide = 0x4001000A;
constexpr DWORD print_narrow = 0x40010006;

std::vector<std::wstring> heard;

std::wstring wide_text(const char* text) {
    std::wstring converted(std::strlen(text), L'\0');
    converted.resize(
        static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, text, static_cast<int>(std::strlen(text)),
                                                     converted.data(), static_cast<int>(converted.size()))));
    return converted;
}

LONG CALLBACK hear(EXCEPTION_POINTERS* exception) {
    const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
    if (record.ExceptionCode == print_wide) {
        heard.emplace_back(reinterpret_cast<const wchar_t*>(record.ExceptionInformation[1]));
        return EXCEPTION_CONTINUE_EXECUTION;
    }
    if (record.ExceptionCode == print_narrow) {
        heard.push_back(wide_text(reinterpret_cast<const char*>(record.ExceptionInformation[1])));
        return EXCEPTION_CONTINUE_EXECUTION;
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

} // namespace

DebuggerOutput::DebuggerOutput() : handler_(AddVectoredExceptionHandler(1, hear)) { heard.clear(); }

DebuggerOutput::~DebuggerOutput() { RemoveVectoredExceptionHandler(handler_); }

const std::vector<std::wstring>& DebuggerOutput::lines() const { return heard; }

} // namespace brx::checks
