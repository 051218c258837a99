#include "adapters/to_com.h"
#include "sample/windows/host_program.h"
#include "sample/windows/objects_stage.h"

#include <commctrl.h>

#include <gtest/gtest.h>

namespace brx::checks {

namespace {

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

TEST(SampleProgramConfigurations, WhatTheDialogChangesIsThereAfterARestart) {
    OpenHost host;
    const OpenConfiguration before(host, L"bnConfigure");
    EXPECT_EQ(before.reads(L"txtName"), "Filler head 1");
    EXPECT_EQ(before.reads(L"cboPieceTimeUnit"), "Seconds");
    before.type_over(L"txtName", L"Filler head 2");
    before.type_over(L"txtSubgroupSize", L"7");
    before.press(L"chkActive");
    before.remove_test();
    before.next_tab(L"txtPieceTimeInterval");
    before.type_over(L"txtPieceTimeInterval", L"90");
    PostMessageW(before.control(L"cboPieceTimeUnit"), WM_KEYDOWN, VK_DOWN, 1);
    before.close();
    EXPECT_TRUE(comes_true([&] { return host.rows(L"lstTests") == 1; }));
    host.start_again();
    EXPECT_EQ(host.rows(L"lstTests"), 1);
    const OpenConfiguration after(host, L"bnConfigure");
    EXPECT_EQ(after.reads(L"txtName"), "Filler head 2");
    EXPECT_EQ(after.reads(L"txtSubgroupSize"), "7");
    EXPECT_EQ(after.reads(L"txtPieceTimeInterval"), "90");
    EXPECT_EQ(after.reads(L"cboPieceTimeUnit"), "Minutes");
    EXPECT_EQ(after.reads(L"txtPieceEval"), "Filler.Head 1.Ready =  True");
    EXPECT_EQ(SendMessageW(after.control(L"chkActive"), BM_GETCHECK, 0, 0), BST_UNCHECKED);
}

TEST(SampleProgramConfigurations, TheCloseBoxOfTheDialogChangesNothing) {
    OpenHost host;
    const OpenConfiguration before(host, L"bnConfigure");
    before.type_over(L"txtName", L"Filler head 2");
    before.type_over(L"txtSubgroupSize", L"7");
    before.press(L"chkActive");
    EXPECT_TRUE(comes_true(
        [&] { return SendMessageW(before.control(L"chkActive"), BM_GETCHECK, 0, 0) == BST_UNCHECKED; }));
    before.leave();
    host.start_again();
    EXPECT_EQ(host.rows(L"lstTests"), 2);
    const OpenConfiguration after(host, L"bnConfigure");
    EXPECT_EQ(after.reads(L"txtName"), "Filler head 1");
    EXPECT_EQ(after.reads(L"txtSubgroupSize"), "3");
    EXPECT_EQ(SendMessageW(after.control(L"chkActive"), BM_GETCHECK, 0, 0), BST_CHECKED);
}

TEST(SampleProgramConfigurations, TheLogTellsWhetherTheDialogWasClosedOrLeft) {
    const OpenHost host;
    const auto ends = [&](const std::string& text) {
        return comes_true([&] { return host.last_log_line().ends_with(text); });
    };
    OpenConfiguration(host, L"bnConfigure").leave();
    EXPECT_TRUE(ends("Configure: Filler head 1 left, and its settings are as they were."))
        << host.last_log_line();
    const OpenConfiguration dialog(host, L"bnConfigure");
    dialog.type_over(L"txtName", L"Filler head 2");
    dialog.close();
    EXPECT_TRUE(ends("Configure: Filler head 2 closed, and its settings are kept.")) << host.last_log_line();
}

TEST(SampleProgramConfigurations, TheLogTellsThatItWasLeftWithSomeOfItsSettingsKept) {
    const OpenHost host;
    const OpenConfiguration dialog(host, L"bnConfigure");
    dialog.type_over(L"txtName", L"Filler head 2");
    dialog.type_over(L"txtSubgroupSize", L"99999999999"); // more than a host can be told
    dialog.press(L"bnClose");
    const HWND box = host.program().window(L"#32770", L"Unexpected Error");
    EXPECT_NE(text_of_box(box).find("dlgConfiguration.bnClose_Click"), std::string::npos) << text_of_box(box);
    PostMessageW(box, WM_COMMAND, IDOK, 0);
    EXPECT_TRUE(comes_true([&] { return dialog.is_open_to_input(); }));
    dialog.leave();
    EXPECT_TRUE(comes_true([&] {
        return host.last_log_line().ends_with(
            "Configure: Filler head 2 left after an error: some of its settings are kept.");
    })) << host.last_log_line();
}

TEST(SampleProgramConfigurations, OfANewOneTheFirstTestIsSelected) {
    const OpenHost host;
    const auto opened = [&](const wchar_t* title) { return host.program().window(L"#32770", title); };
    const auto press = [](HWND dialog, const wchar_t* button) {
        PostMessageW(controls_of(dialog)[button], BM_CLICK, 0, 0);
    };
    const OpenConfiguration dialog(host, L"bnNewConfiguration");
    dialog.press(L"bnAdd");
    const HWND test = opened(L"OPC Test Configuration");
    press(test, L"bnTest");
    const HWND picker = host.program().window(nullptr, L"Select Characteristic");
    PostMessageW(controls_of(picker)[L"lstRecords"], WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_TRUE(comes_true([&] { return IsWindowEnabled(controls_of(picker)[L"bnOK"]) != FALSE; }));
    press(picker, L"bnOK");
    EXPECT_TRUE(comes_true([&] { return IsWindowEnabled(test) != FALSE; }));
    press(test, L"bnItem");
    const HWND browser = opened(L"Select Item");
    for (const wchar_t each : std::wstring(L"Filler.Head 1.Weight"))
        PostMessageW(controls_of(browser)[L"txtFullPath"], WM_CHAR, each, 1);
    press(browser, L"bnOK");
    EXPECT_TRUE(comes_true([&] { return IsWindowEnabled(controls_of(test)[L"bnOK"]) != FALSE; }));
    press(test, L"bnOK");
    EXPECT_TRUE(comes_true([&] { return dialog.is_open_to_input(); }));
    dialog.leave();
    EXPECT_TRUE(comes_true([&] { return host.rows(L"lstTests") == 1; }));
    EXPECT_TRUE(comes_true([&] {
        return SendMessageW(host.control(L"lstTests"), LVM_GETNEXTITEM, static_cast<WPARAM>(-1),
                            LVNI_SELECTED) == 0;
    }));
    EXPECT_TRUE(IsWindowEnabled(host.control(L"bnEditTest")));
}

TEST(SampleProgramConfigurations, OneThatIsClosedWithoutTestsIsRemovedOnceConfirmed) {
    OpenHost host;
    const OpenConfiguration dialog(host, L"bnConfigure");
    dialog.remove_test();
    dialog.remove_test();
    const auto answer = [&](WPARAM button) {
        dialog.press(L"bnClose");
        PostMessageW(host.program().window(L"#32770", L"No Test Exists"), WM_COMMAND, button, 0);
    };
    answer(IDCANCEL);
    EXPECT_TRUE(comes_true([&] { return dialog.is_open_to_input(); }));
    EXPECT_EQ(host.rows(L"lstConfigurations"), 1);
    answer(IDOK);
    EXPECT_TRUE(comes_true([&] { return host.is_open_to_input(); }));
    EXPECT_TRUE(comes_true([&] { return host.rows(L"lstConfigurations") == 0; }));
    host.start_again();
    EXPECT_EQ(host.rows(L"lstConfigurations"), 0);
}

TEST(SampleProgramConfigurations, ANewOneIsOfTheSelectedServerAndGoesAgainWithoutTests) {
    const OpenHost host;
    host.select_row(VK_DOWN, 1);
    const OpenConfiguration dialog(host, L"bnNewConfiguration");
    EXPECT_EQ(dialog.reads(L"txtServer"), "LINE1.Simulation.Filling.1");
    EXPECT_EQ(host.rows(L"lstConfigurations"), 2);
    dialog.leave();
    EXPECT_TRUE(comes_true([&] { return host.rows(L"lstConfigurations") == 1; }));
    EXPECT_TRUE(comes_true([&] { return host.rows(L"lstTests") == 2; }));
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

/// A test of the server that cannot be connected.
void add_a_test_of_the_kiln(const std::string& file) {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    {
        const HostManifest manifest;
        const auto host = create_by_name(L"brxSample.Host");
        put(host.get(), "DatabaseFile", file);
        const Variant added = call(host.get(), "AddConfiguration", {std::int32_t{3}});
        const auto tests = get_object(dispatch_of(std::get<ObjectPtr>(added)).get(), "Tests");
        const Variant test = call(tests.get(), "Add");
        put(dispatch_of(std::get<ObjectPtr>(test)).get(), "OPCItemID", std::string("Zone 1.Temperature"));
    }
    CoUninitialize();
}

TEST(SampleProgramConfigurations, ATestWithoutAValueSaysWhy) {
    const OpenHost host(add_a_test_of_the_kiln);
    EXPECT_TRUE(comes_true([&] { return host.cell(L"lstTests", 0, 4).find_first_of("0123456789") == 0; }))
        << host.cell(L"lstTests", 0, 4);
    host.select_row(VK_END, 2);
    EXPECT_TRUE(comes_true([&] { return host.cell(L"lstTests", 0, 1) == "Zone 1.Temperature"; }));
    EXPECT_EQ(host.cell(L"lstTests", 0, 4), "not connected");
}

} // namespace

} // namespace brx::checks
