#include "sample/windows/host_program.h"
#include "sample/windows/objects_stage.h"

#include <gmock/gmock.h>

#include <chrono>
#include <thread>

namespace brx::checks {

namespace {

using testing::HasSubstr;
using namespace std::chrono_literals;

std::wstring quoted(const std::filesystem::path& path) { return L"\"" + path.wstring() + L"\""; }

TEST(SampleProgram, OpensMakesItsDatabaseAndEnds) {
    const CheckFolder folder;
    const HostProgram program(host_program(), quoted(folder.file(L"host.db")));
    const HWND window = program.window(L"brxSampleHost");
    for (int i = 0; i < 200 && !std::filesystem::exists(folder.file(L"host.db")); ++i)
        std::this_thread::sleep_for(100ms);
    EXPECT_TRUE(std::filesystem::exists(folder.file(L"host.db")));
    const Controls controls = controls_of(window);
    for (const wchar_t* name :
         {L"lstServers", L"bnSelect", L"bnAdd", L"bnInformation", L"bnBrowse", L"lstConfigurations",
          L"bnNewConfiguration", L"bnConfigure", L"bnRun", L"lstTests", L"chtValues", L"bnEditTest",
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
    EXPECT_TRUE(comes_true([&] { return IsWindow(dialog) == FALSE; }));
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
    PostMessageW(host.list(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 130));
    PostMessageW(host.list(), WM_LBUTTONUP, 0, MAKELPARAM(20, 130));
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
