#include "sample/windows/host_program.h"

#include <gmock/gmock.h>

namespace brx::checks {

namespace {

using testing::HasSubstr;

/// Whether the component beside the host has the dialog for configurations.
bool has_configuration_dialog() {
    const HostManifest manifest;
    CLSID clsid{};
    return SUCCEEDED(CLSIDFromProgID(L"brxOpcDlgs6.ConfigurationSetup", &clsid));
}

TEST(SampleProgramConfigurations, ThoseOfTheSelectedServerAreListedWithTheirTests) {
    const OpenHost host;
    EXPECT_TRUE(
        comes_true([&] { return host.rows(L"lstConfigurations") == 1 && host.rows(L"lstTests") == 2; }));
    host.select_row(VK_END, 2);
    EXPECT_TRUE(
        comes_true([&] { return host.rows(L"lstConfigurations") == 0 && host.rows(L"lstTests") == 0; }));
    EXPECT_FALSE(IsWindowEnabled(host.control(L"bnConfigure")));
    EXPECT_FALSE(IsWindowEnabled(host.control(L"bnEditTest")));
    EXPECT_TRUE(IsWindowEnabled(host.control(L"bnNewConfiguration")));
}

TEST(SampleProgramConfigurations, TheSelectedTestIsEdited) {
    const OpenHost host;
    host.press(L"bnEditTest");
    const HWND dialog = host.program().window(L"#32770", L"OPC Test Configuration");
    EXPECT_FALSE(host.is_open_to_input());
    PostMessageW(dialog, WM_CLOSE, 0, 0);
    EXPECT_TRUE(comes_true([&] { return host.is_open_to_input(); }));
    EXPECT_EQ(host.rows(L"lstTests"), 2);
}

/// One that its dialog leaves without tests goes again, and so does one that no dialog can be shown for.
TEST(SampleProgramConfigurations, ANewOneWithoutTestsGoesAgain) {
    const OpenHost host;
    host.press(L"bnNewConfiguration");
    if (has_configuration_dialog()) {
        PostMessageW(host.program().window(L"#32770", L"Configuration Properties"), WM_CLOSE, 0, 0);
    } else {
        const HWND box = host.program().window(L"#32770", L"OPC Collection Sample Host");
        EXPECT_THAT(text_of_box(box), HasSubstr("brxOpcDlgs6.ConfigurationSetup cannot be made"));
        PostMessageW(box, WM_COMMAND, IDOK, 0);
    }
    EXPECT_TRUE(comes_true([&] { return host.is_open_to_input(); }));
    EXPECT_TRUE(comes_true([&] { return host.rows(L"lstConfigurations") == 1; }));
}

TEST(SampleProgramConfigurations, EnterMeansWhatADoubleClickInTheListWithTheFocusMeans) {
    const OpenHost host;
    const auto enter_means = [&](const wchar_t* list, const wchar_t* button) {
        PostMessageW(host.control(list), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 30));
        PostMessageW(host.control(list), WM_LBUTTONUP, 0, MAKELPARAM(20, 30));
        return comes_true([&] { return host.default_button() == GetDlgCtrlID(host.control(button)); });
    };
    EXPECT_TRUE(enter_means(L"lstTests", L"bnEditTest"));
    EXPECT_TRUE(enter_means(L"lstConfigurations", L"bnConfigure"));
    EXPECT_TRUE(enter_means(L"lstServers", L"bnInformation"));
}

} // namespace

} // namespace brx::checks
