#include "sample/windows/objects_stage.h"

#include <commctrl.h>
#include <gmock/gmock.h>

#include <array>
#include <chrono>
#include <functional>
#include <map>
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

/// Controls by the names that UI tests find them by.
using Controls = std::map<std::wstring, HWND>;

BOOL CALLBACK add_control(HWND window, LPARAM controls) {
    const auto atom = static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(GetPropW(window, L"brx.Name")));
    std::array<wchar_t, 100> name{};
    if (atom != 0 && GlobalGetAtomNameW(atom, name.data(), static_cast<int>(name.size())) > 0)
        reinterpret_cast<Controls*>(controls)->emplace(name.data(), window);
    return TRUE;
}

Controls controls_of(HWND window) {
    Controls controls;
    EnumChildWindows(window, add_control, reinterpret_cast<LPARAM>(&controls));
    return controls;
}

bool comes_true(const std::function<bool()>& condition) {
    for (int i = 0; i < 300; ++i, std::this_thread::sleep_for(100ms))
        if (condition()) return true;
    return false;
}

/// The host with its servers connected and the first one selected.
class OpenHost {
public:
    OpenHost() {
        EXPECT_TRUE(comes_true([&] { return SendMessageW(list(), LVM_GETITEMCOUNT, 0, 0) == 3; }));
        EXPECT_TRUE(comes_true([&] { return IsWindowEnabled(control(L"bnBrowse")) != FALSE; }));
    }

    const HostProgram& program() const { return program_; }
    HWND control(const wchar_t* name) const { return controls_of(window_)[name]; }
    HWND list() const { return control(L"lstServers"); }
    bool is_open_to_input() const { return IsWindowEnabled(window_) != FALSE; }
    void press(const wchar_t* button) const { PostMessageW(control(button), BM_CLICK, 0, 0); }
    void select_row(WPARAM key, LRESULT row) const {
        PostMessageW(list(), WM_KEYDOWN, key, 1);
        EXPECT_TRUE(comes_true([&] {
            return SendMessageW(list(), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED) == row;
        }));
    }
    int default_button() const { return LOWORD(SendMessageW(window_, DM_GETDEFID, 0, 0)); }

private:
    CheckFolder folder_;
    HostProgram program_{host_program(), L"--plant \"" + folder_.file(L"host.db").wstring() + L"\""};
    HWND window_ = program_.window(L"brxSampleHost");
};

std::wstring quoted(const std::filesystem::path& path) { return L"\"" + path.wstring() + L"\""; }

TEST(SampleProgram, OpensMakesItsDatabaseAndEnds) {
    const CheckFolder folder;
    const HostProgram program(host_program(), quoted(folder.file(L"host.db")));
    const HWND window = program.window(L"brxSampleHost");
    for (int i = 0; i < 200 && !std::filesystem::exists(folder.file(L"host.db")); ++i)
        std::this_thread::sleep_for(100ms);
    EXPECT_TRUE(std::filesystem::exists(folder.file(L"host.db")));
    const Controls controls = controls_of(window);
    for (const wchar_t* name : {L"lstServers", L"bnSelect", L"bnAdd", L"bnInformation", L"bnBrowse",
                                L"bnConnect", L"bnRemove", L"txtItem", L"txtLog", L"stbStatus"})
        EXPECT_TRUE(controls.contains(name)) << std::string(name, name + wcslen(name));
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

TEST(SampleProgram, BrowsesTheItemsOfTheSelectedServer) {
    const OpenHost host;
    host.press(L"bnBrowse");
    const HWND dialog = host.program().window(L"#32770", L"Select Item");
    EXPECT_FALSE(host.is_open_to_input());
    PostMessageW(dialog, WM_CLOSE, 0, 0);
    EXPECT_TRUE(comes_true([&] { return host.is_open_to_input(); }));
    EXPECT_FALSE(IsWindow(dialog));
}

TEST(SampleProgram, TellsThatTheServerToBrowseIsNotConnected) {
    const OpenHost host;
    host.select_row(VK_END, 2);
    host.press(L"bnBrowse");
    const HWND box = host.program().window(L"#32770");
    EXPECT_THAT(text_of_box(box), HasSubstr("Connect it again to browse its items."));
    PostMessageW(box, WM_COMMAND, IDOK, 0);
    EXPECT_TRUE(comes_true([&] { return host.is_open_to_input(); }));
}

TEST(SampleProgram, EnterPressesTheButtonWithTheFocusAndOtherwiseServerInformation) {
    const OpenHost host;
    const int usual = GetDlgCtrlID(host.control(L"bnInformation"));
    const int browse = GetDlgCtrlID(host.control(L"bnBrowse"));
    EXPECT_EQ(host.default_button(), usual);
    host.press(L"bnBrowse");
    PostMessageW(host.program().window(L"#32770", L"Select Item"), WM_CLOSE, 0, 0);
    EXPECT_TRUE(comes_true([&] { return host.default_button() == browse; }));
    PostMessageW(host.list(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 300));
    PostMessageW(host.list(), WM_LBUTTONUP, 0, MAKELPARAM(20, 300));
    EXPECT_TRUE(comes_true([&] { return host.default_button() == usual; }));
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
