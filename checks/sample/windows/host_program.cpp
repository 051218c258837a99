#include "sample/windows/host_program.h"

#include "com/bstr.h"

#include <commctrl.h>

#include <array>
#include <chrono>
#include <thread>
#include <vector>

namespace brx::checks {

using namespace std::chrono_literals;

HostProgram::HostProgram(const std::filesystem::path& program, const std::wstring& arguments) {
    std::wstring line = L"\"" + program.wstring() + L"\" " + arguments;
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    if (!CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                        &process_))
        ADD_FAILURE() << "the program does not start: error " << GetLastError();
}

HostProgram::~HostProgram() {
    TerminateProcess(process_.hProcess, 99);
    WaitForSingleObject(process_.hProcess, 5000);
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
}

HWND HostProgram::window(const wchar_t* kind, const wchar_t* title) const {
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

DWORD HostProgram::exit_code() const {
    DWORD code = STILL_ACTIVE;
    if (WaitForSingleObject(process_.hProcess, 30000) == WAIT_OBJECT_0)
        GetExitCodeProcess(process_.hProcess, &code);
    return code;
}

std::string text_of_box(HWND box) {
    std::array<wchar_t, 1000> text{};
    GetDlgItemTextW(box, 0xFFFF, text.data(), static_cast<int>(text.size()));
    std::string result;
    for (const wchar_t* c = text.data(); *c; ++c) result += static_cast<char>(*c);
    return result;
}

namespace {

BOOL CALLBACK add_control(HWND window, LPARAM controls) {
    const auto atom = static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(GetPropW(window, L"brx.Name")));
    std::array<wchar_t, 100> name{};
    if (atom != 0 && GlobalGetAtomNameW(atom, name.data(), static_cast<int>(name.size())) > 0)
        reinterpret_cast<Controls*>(controls)->emplace(name.data(), window);
    return TRUE;
}

} // namespace

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

OpenHost::OpenHost(const std::function<void(const std::string& file)>& prepare) {
    prepare(folder_.name_of(L"host.db"));
    start();
}

OpenHost::OpenHost(std::wstring source) : source_(std::move(source)) { start(); }

void OpenHost::start() {
    program_.emplace(host_program(), source_ + L" \"" + folder_.file(L"host.db").wstring() + L"\"");
    window_ = program_->window(L"brxSampleHost");
    EXPECT_TRUE(comes_true([&] { return rows(L"lstServers") == 3; }));
    EXPECT_TRUE(comes_true([&] { return IsWindowEnabled(control(L"bnBrowse")) != FALSE; }));
}

void OpenHost::start_again() {
    PostMessageW(window_, WM_CLOSE, 0, 0);
    EXPECT_EQ(program_->exit_code(), 0U);
    start();
}

void OpenHost::kill_and_start_again() {
    program_.reset();
    start();
}

void OpenHost::select_row(WPARAM key, LRESULT row) const {
    PostMessageW(list(), WM_KEYDOWN, key, 1);
    EXPECT_TRUE(comes_true([&] {
        return SendMessageW(list(), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED) == row;
    }));
}

LRESULT OpenHost::rows(const wchar_t* list) const {
    return SendMessageW(control(list), LVM_GETITEMCOUNT, 0, 0);
}

/// The list writes the text where its own process can.
std::string OpenHost::cell(const wchar_t* list, int row, int column) const {
    struct There {
        LVITEMW item;
        std::array<wchar_t, 200> text;
    } there{};
    void* const place =
        VirtualAllocEx(program_->process(), nullptr, sizeof there, MEM_COMMIT, PAGE_READWRITE);
    there.item.iSubItem = column;
    there.item.cchTextMax = static_cast<int>(there.text.size());
    there.item.pszText = static_cast<There*>(place)->text.data();
    WriteProcessMemory(program_->process(), place, &there, sizeof there, nullptr);
    SendMessageW(control(list), LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(place));
    ReadProcessMemory(program_->process(), place, &there, sizeof there, nullptr);
    VirtualFreeEx(program_->process(), place, 0, MEM_RELEASE);
    return text_of(there.text.data(), wcslen(there.text.data()));
}

std::string OpenHost::last_log_line() const {
    std::vector<wchar_t> text(20000);
    SendMessageW(control(L"txtLog"), WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    std::string log = text_of(text.data(), wcslen(text.data()));
    while (log.ends_with('\n') || log.ends_with('\r')) log.pop_back();
    return log.substr(log.rfind('\n') + 1);
}

OpenConfiguration::OpenConfiguration(const OpenHost& host, const wchar_t* button) : host_(host) {
    host.press(button);
    dialog_ = host.program().window(L"#32770", L"Configuration Properties");
    EXPECT_FALSE(host.is_open_to_input());
}

std::string OpenConfiguration::reads(const wchar_t* box) const {
    std::array<wchar_t, 200> text{};
    SendMessageW(control(box), WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    return text_of(text.data(), wcslen(text.data()));
}

void OpenConfiguration::type_over(const wchar_t* box, const std::wstring& text) const {
    SendMessageW(control(box), EM_SETSEL, 0, -1);
    for (const wchar_t each : text) PostMessageW(control(box), WM_CHAR, each, 1);
    const std::string wanted = text_of(text.c_str(), text.size());
    EXPECT_TRUE(comes_true([&] { return reads(box) == wanted; }));
}

void OpenConfiguration::next_tab(const wchar_t* control_there) const {
    PostMessageW(control(L"TabStrip1"), WM_KEYDOWN, VK_RIGHT, 1);
    EXPECT_TRUE(comes_true([&] { return IsWindowVisible(control(control_there)) != FALSE; }));
}

void OpenConfiguration::remove_test() const {
    const HWND list = control(L"lvwTest");
    const LRESULT tests = SendMessageW(list, LVM_GETITEMCOUNT, 0, 0);
    PostMessageW(list, WM_KEYDOWN, VK_HOME, 1);
    press(L"bnRemove");
    EXPECT_TRUE(comes_true([&] { return SendMessageW(list, LVM_GETITEMCOUNT, 0, 0) == tests - 1; }));
}

void OpenConfiguration::leave() const {
    PostMessageW(dialog_, WM_CLOSE, 0, 0);
    wait_for_host();
}

void OpenConfiguration::close() const {
    press(L"bnClose");
    wait_for_host();
}

void OpenConfiguration::wait_for_host() const {
    EXPECT_TRUE(comes_true([&] { return IsWindow(dialog_) == FALSE && host_.is_open_to_input(); }));
}

} // namespace brx::checks
