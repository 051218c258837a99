#pragma once

#include <windows.h>

#include <filesystem>
#include <string>
#include <vector>

namespace brx::checks {

/// Whose name the sample's server program takes while nobody else has it.
inline constexpr const wchar_t* wrapper_name = L"OPC.Automation";

/// Why the server program cannot be this computer's OPC automation wrapper: another program is, and what is
/// checked would be asked of that one. "" for no reason.
std::string other_wrapper();

/// Where it was built.
std::filesystem::path server_program();

/// Makes the sample's server program the OPC automation wrapper of this computer while it lives.
class InstalledServer {
public:
    explicit InstalledServer(std::filesystem::path program = server_program());
    InstalledServer(const InstalledServer&) = delete;
    InstalledServer& operator=(const InstalledServer&) = delete;
    ~InstalledServer();

private:
    std::filesystem::path program_;
};

/// The server program as a process beside this one, ready to be connected to. It ends when everything of it
/// has been given back.
class ServerProgram {
public:
    /// With its switches.
    explicit ServerProgram(const std::wstring& switches);
    ServerProgram(const ServerProgram&) = delete;
    ServerProgram& operator=(const ServerProgram&) = delete;
    ~ServerProgram();

    /// The calls that reached it, by their names, in order.
    std::vector<std::string> calls() const;

    /// What a debugger does to a process, or a computer that is out of breath: none of its threads runs.
    void suspend() { for_each_thread(SuspendThread); }
    void resume() { for_each_thread(ResumeThread); }

    /// What a person does who closes its window.
    void close_window() const { PostMessageW(window(), WM_CLOSE, 0, 0); }

    /// Whether it has come to its end; looks for a while.
    bool has_ended(DWORD milliseconds = 5'000) const;

    /// What its window says, for who wonders why it has not ended.
    std::string shown() const;

private:
    /// Null while it has none.
    HWND window() const;
    void for_each_thread(DWORD(WINAPI* deed)(HANDLE)) const;

    std::filesystem::path log_;
    PROCESS_INFORMATION process_{};
};

} // namespace brx::checks
