#include "apart/server_program.h"

#include "common/values/utf16.h"
#include "desk/native.h"

#include <tlhelp32.h>

#include <array>
#include <fstream>
#include <stdexcept>
#include <vector>

namespace brx::checks {

namespace {

std::filesystem::path this_program() {
    std::wstring program(32'768, L'\0');
    program.resize(GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size())));
    return program;
}

constexpr int tries_to_start = 5;

PROCESS_INFORMATION started(const std::filesystem::path& program, const std::wstring& arguments) {
    std::wstring line = L"\"" + program.wstring() + L"\" " + arguments;
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    // Under load Wine now and then gives up with an internal error, and starts the program the next time.
    for (int tries = 1; !CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                                        nullptr, &startup, &process);
         ++tries) {
        const DWORD failure = GetLastError();
        if (failure != ERROR_INTERNAL_ERROR || tries == tries_to_start)
            throw std::runtime_error("The server program does not start: error " + std::to_string(failure));
        Sleep(500);
    }
    return process;
}

void close(const PROCESS_INFORMATION& process) {
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
}

/// Runs it and gives its exit code.
DWORD run(const std::filesystem::path& program, const std::wstring& arguments) {
    const PROCESS_INFORMATION process = started(program, arguments);
    DWORD code = STILL_ACTIVE;
    if (WaitForSingleObject(process.hProcess, 30'000) == WAIT_OBJECT_0)
        GetExitCodeProcess(process.hProcess, &code);
    close(process);
    return code;
}

/// The class that a name stands for; "" for none.
std::wstring class_in(HKEY hive, const wchar_t* name) {
    std::array<wchar_t, 64> text{};
    DWORD size = sizeof text;
    const std::wstring key = L"Software\\Classes\\" + std::wstring(name) + L"\\CLSID";
    const LSTATUS read = RegGetValueW(hive, key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, text.data(), &size);
    return read == ERROR_SUCCESS ? text.data() : L"";
}

} // namespace

std::filesystem::path server_program() {
    return (this_program().parent_path() / BRX_SERVER_FROM_PROGRAM).lexically_normal();
}

std::string other_wrapper() {
    // What a run that was broken off has left behind is the server program's own.
    constexpr const wchar_t* own_class = L"{8684556D-2892-4CA2-BB6E-94D0137A1686}";
    for (HKEY hive : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE}) {
        const std::wstring other = class_in(hive, wrapper_name);
        if (!other.empty() && CompareStringOrdinal(other.c_str(), -1, own_class, -1, TRUE) != CSTR_EQUAL)
            return "This computer has an OPC automation wrapper of its own, " +
                   utf8_of(std::wstring_view(other)) +
                   ", which is left alone: what has to be answered by the sample's server is not checked.";
    }
    return {};
}

InstalledServer::InstalledServer(std::filesystem::path program) : program_(std::move(program)) {
    if (run(program_, L"--install") != 0) throw std::runtime_error("The server program cannot be installed.");
}

InstalledServer::~InstalledServer() {
    // What was moved is uninstalled where it lies now.
    if (std::filesystem::exists(program_)) run(program_, L"--uninstall");
}

ServerProgram::ServerProgram(const std::wstring& switches) {
    static unsigned number = 0;
    log_ = std::filesystem::temp_directory_path() /
           ("brx-apart-" + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(++number) + ".log");
    std::filesystem::remove(log_); // an earlier program of the same number may have left one
    process_ = started(server_program(), switches + L" --log \"" + log_.wstring() + L"\" -Embedding");
    // It gives its window a name when its class can be found.
    for (int tries = 0; tries < 1'500 && name_of(window()) != "brxSampleServer"; ++tries) Sleep(20);
}

ServerProgram::~ServerProgram() {
    close_window();
    if (!has_ended()) TerminateProcess(process_.hProcess, 99);
    close(process_);
    std::error_code ignored;
    std::filesystem::remove(log_, ignored);
}

HWND ServerProgram::window() const {
    for (HWND each = nullptr;
         (each = FindWindowExW(nullptr, each, L"brxSampleServer", nullptr)) != nullptr;) {
        DWORD process = 0;
        GetWindowThreadProcessId(each, &process);
        if (process == process_.dwProcessId) return each;
    }
    return nullptr;
}

std::vector<std::string> ServerProgram::calls() const {
    std::vector<std::string> calls;
    std::ifstream log(log_);
    for (std::string line; std::getline(log, line);) {
        if (line.ends_with('\r')) line.pop_back();
        calls.push_back(line);
    }
    return calls;
}

bool ServerProgram::has_ended(DWORD milliseconds) const {
    return WaitForSingleObject(process_.hProcess, milliseconds) == WAIT_OBJECT_0;
}

std::string ServerProgram::shown() const {
    const HWND top = window();
    std::string all = top ? "" : "no window";
    for (HWND each = nullptr; top && (each = FindWindowExW(top, each, nullptr, nullptr)) != nullptr;) {
        std::array<wchar_t, 200> text{};
        DWORD_PTR length = 0;
        SendMessageTimeoutW(each, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()),
                            SMTO_ABORTIFHUNG, 1'000, &length);
        all += utf8_of(std::wstring_view(text.data(), length)) + "; ";
    }
    return all;
}

void ServerProgram::for_each_thread(DWORD(WINAPI* deed)(HANDLE)) const {
    const HANDLE all = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    THREADENTRY32 entry{};
    entry.dwSize = sizeof entry;
    for (BOOL found = Thread32First(all, &entry); found; found = Thread32Next(all, &entry)) {
        if (entry.th32OwnerProcessID != process_.dwProcessId) continue;
        const HANDLE thread = OpenThread(THREAD_SUSPEND_RESUME, FALSE, entry.th32ThreadID);
        if (!thread) continue;
        deed(thread);
        CloseHandle(thread);
    }
    CloseHandle(all);
}

} // namespace brx::checks
