#include "sample/windows/objects_stage.h"

#include <gmock/gmock.h>

#include <array>
#include <chrono>
#include <functional>
#include <set>
#include <thread>

namespace brx::checks {

namespace {

using testing::HasSubstr;
using namespace std::chrono_literals;

/// The sample host running as a program of its own; ended with the check.
class HostProgram {
public:
    HostProgram(const std::filesystem::path& program, const std::wstring& arguments) {
        std::wstring line = L"\"" + program.wstring() + L"\" " + arguments;
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        if (!CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                            &startup, &process_))
            ADD_FAILURE() << "the program does not start: error " << GetLastError();
    }
    HostProgram(const HostProgram&) = delete;
    HostProgram& operator=(const HostProgram&) = delete;
    ~HostProgram() {
        TerminateProcess(process_.hProcess, 99);
        WaitForSingleObject(process_.hProcess, 5000);
        CloseHandle(process_.hThread);
        CloseHandle(process_.hProcess);
    }

    /// A visible window of the program by class and, unless it is null, title; null when none comes.
    HWND window(const wchar_t* kind, const wchar_t* title = nullptr) const {
        for (int i = 0; i < 300; ++i) {
            for (HWND each = nullptr; (each = FindWindowExW(nullptr, each, kind, title)) != nullptr;) {
                DWORD owner = 0;
                GetWindowThreadProcessId(each, &owner);
                if (owner == process_.dwProcessId && IsWindowVisible(each)) return each;
            }
            std::this_thread::sleep_for(100ms);
        }
        ADD_FAILURE() << "the window does not come";
        return nullptr;
    }
    DWORD exit_code() const {
        DWORD code = STILL_ACTIVE;
        if (WaitForSingleObject(process_.hProcess, 30000) == WAIT_OBJECT_0)
            GetExitCodeProcess(process_.hProcess, &code);
        return code;
    }

private:
    PROCESS_INFORMATION process_{};
};

std::string text_of_box(HWND box) {
    std::array<wchar_t, 1000> text{};
    GetDlgItemTextW(box, 0xFFFF, text.data(), static_cast<int>(text.size()));
    std::string result;
    for (const wchar_t* c = text.data(); *c; ++c) result += static_cast<char>(*c);
    return result;
}

using Names = std::set<std::wstring>;

BOOL CALLBACK add_name(HWND window, LPARAM names) {
    const auto atom = static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(GetPropW(window, L"brx.Name")));
    std::array<wchar_t, 100> name{};
    if (atom != 0 && GlobalGetAtomNameW(atom, name.data(), static_cast<int>(name.size())) > 0)
        reinterpret_cast<Names*>(names)->insert(name.data());
    return TRUE;
}

/// The names that UI tests find the controls by.
Names names_in(HWND window) {
    Names names;
    EnumChildWindows(window, add_name, reinterpret_cast<LPARAM>(&names));
    return names;
}

std::wstring quoted(const std::filesystem::path& path) { return L"\"" + path.wstring() + L"\""; }

TEST(SampleProgram, OpensMakesItsDatabaseAndEnds) {
    const CheckFolder folder;
    const HostProgram program(host_program(), quoted(folder.file(L"host.db")));
    const HWND window = program.window(L"brxSampleHost");
    for (int i = 0; i < 200 && !std::filesystem::exists(folder.file(L"host.db")); ++i)
        std::this_thread::sleep_for(100ms);
    EXPECT_TRUE(std::filesystem::exists(folder.file(L"host.db")));
    EXPECT_THAT(names_in(window),
                testing::IsSupersetOf({L"lstServers", L"bnSelect", L"bnAdd", L"bnInformation", L"bnConnect",
                                       L"bnRemove", L"txtLog", L"stbStatus"}));
    PostMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(program.exit_code(), 0U);
}

TEST(SampleProgram, TellsThatItsDatabaseIsDamaged) {
    const CheckFolder folder;
    write_file(folder.file(L"host.db"), std::string(5000, '?'));
    const HostProgram program(host_program(), quoted(folder.file(L"host.db")));
    const HWND box = program.window(L"#32770");
    EXPECT_THAT(text_of_box(box), HasSubstr("it is not a database"));
    PostMessageW(box, WM_COMMAND, IDOK, 0);
    EXPECT_EQ(program.exit_code(), 1U);
}

TEST(SampleProgram, TellsThatItsObjectsAreMissing) {
    const CheckFolder folder;
    const auto alone = folder.file(L"brxSampleHost.exe");
    std::filesystem::copy_file(host_program(), alone);
    const HostProgram program(alone, quoted(folder.file(L"host.db")));
    const HWND box = program.window(L"#32770");
    EXPECT_THAT(text_of_box(box), HasSubstr("brxSample.dll could not be loaded"));
    PostMessageW(box, WM_COMMAND, IDOK, 0);
    EXPECT_EQ(program.exit_code(), 1U);
}

TEST(SampleProgram, TellsThatTheDialogsAreMissingAndGoesOn) {
    const CheckFolder folder;
    for (const wchar_t* file : {L"brxSampleHost.exe", L"brxSample.dll"})
        std::filesystem::copy_file(host_program().parent_path() / file, folder.file(file));
    const HostProgram program(folder.file(L"brxSampleHost.exe"), quoted(folder.file(L"host.db")));
    const HWND box = program.window(L"#32770");
    EXPECT_THAT(text_of_box(box), HasSubstr("brxOpcDlgs6.dll could not be loaded"));
    PostMessageW(box, WM_COMMAND, IDOK, 0);
    PostMessageW(program.window(L"brxSampleHost"), WM_CLOSE, 0, 0);
    EXPECT_EQ(program.exit_code(), 0U);
}

TEST(SampleProgram, ExplainsItsCommandLine) {
    const HostProgram program(host_program(), L"--nonsense");
    const HWND box = program.window(L"#32770");
    EXPECT_THAT(text_of_box(box), HasSubstr("--plant"));
    PostMessageW(box, WM_COMMAND, IDOK, 0);
    EXPECT_EQ(program.exit_code(), 2U);
}

} // namespace

} // namespace brx::checks
