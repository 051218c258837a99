#include "kit/process.h"

#include <windows.h>

#include <memory>
#include <stdexcept>
#include <type_traits>

namespace brx::kit {

namespace {

struct CloseIt {
    void operator()(HANDLE handle) const {
        if (handle != INVALID_HANDLE_VALUE) CloseHandle(handle);
    }
};
using Handle = std::unique_ptr<std::remove_pointer_t<HANDLE>, CloseIt>;

constexpr UINT ended_by_us = 124;

[[noreturn]] void fail(const std::string& what) {
    throw std::runtime_error(what + ": error " + std::to_string(GetLastError()));
}

/// Open for the program too.
Handle opened(const wchar_t* file, DWORD access, DWORD how) {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    Handle handle(CreateFileW(file, access, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited, how,
                              FILE_ATTRIBUTE_NORMAL, nullptr));
    if (handle.get() == INVALID_HANDLE_VALUE) fail("it has nowhere to print to");
    return handle;
}

/// All processes in it end with it.
Handle ending_job() {
    Handle job(CreateJobObjectW(nullptr, nullptr));
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    SetInformationJobObject(job.get(), JobObjectExtendedLimitInformation, &limits, sizeof limits);
    return job;
}

} // namespace

End run(const std::filesystem::path& program, const std::wstring& arguments, const std::filesystem::path& log,
        unsigned seconds) {
    const Handle nothing = opened(L"NUL", GENERIC_READ, OPEN_EXISTING);
    const Handle out = opened(log.c_str(), GENERIC_WRITE, CREATE_ALWAYS);
    const Handle job = ending_job();
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = nothing.get();
    startup.hStdOutput = startup.hStdError = out.get();
    std::wstring line = L"\"" + program.wstring() + L"\" " + arguments;
    PROCESS_INFORMATION started{};
    if (!CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE, CREATE_SUSPENDED, nullptr,
                        program.parent_path().c_str(), &startup, &started))
        fail("it does not start");
    const Handle process(started.hProcess), thread(started.hThread);
    // Before Windows 8 a process that is in another job cannot be put into ours: then it is ended alone.
    const bool in_job = AssignProcessToJobObject(job.get(), process.get()) != FALSE;
    ResumeThread(thread.get());
    End end;
    end.in_time = WaitForSingleObject(process.get(), seconds * 1000) == WAIT_OBJECT_0;
    if (!end.in_time) {
        if (!in_job || !TerminateJobObject(job.get(), ended_by_us))
            TerminateProcess(process.get(), ended_by_us);
        WaitForSingleObject(process.get(), 10'000);
    }
    DWORD status = 0;
    GetExitCodeProcess(process.get(), &status);
    end.status = status;
    return end;
}

} // namespace brx::kit
