// The tools of the scenarios themselves, on a dialog made of the system's controls alone.

#include "windows/described.h"
#include "windows/native.h"
#include "windows/plain_dialog.h"
#include "windows/windows_screen.h"

#include <gtest/gtest.h>

#include <chrono>

namespace brx::checks {

namespace {

using Events = std::vector<std::string>;

/// The dialog is on the screen.
class WindowsScreenTest : public testing::Test {
protected:
    WindowsScreenTest() {
        ui.start([this] { dialog.run(); });
    }

    Events events() {
        Events events;
        ui.call([&] { events = dialog.take_events(); });
        return events;
    }
    HWND window(const std::string& name) {
        HWND found = nullptr;
        ui.call([&] {
            for (const HWND form : windows_of(ui.id()))
                if (name_of(form) == "dlgPlain") found = name == "dlgPlain" ? form : find_control(form, name);
        });
        return found;
    }

    UiThread ui;
    WindowsScreen screen{ui};
    PlainDialog dialog{ui.window()};
};

} // namespace

TEST_F(WindowsScreenTest, SeesTheDialogInFrontAndItsControls) {
    EXPECT_EQ(screen.front(), "dlgPlain");
    EXPECT_EQ(screen.caption(), "Plain");
    EXPECT_TRUE(ui.busy());
    EXPECT_EQ(screen.look("lblBox").text, "&Text:");
    EXPECT_TRUE(screen.look("txtBox").focused);
    EXPECT_FALSE(screen.look("bnOff").enabled);
    EXPECT_TRUE(screen.look("bnOff").visible);
    EXPECT_FALSE(screen.look("bnHidden").visible);
    EXPECT_TRUE(screen.look("bnHidden").enabled);
    EXPECT_FALSE(screen.look("bnNone").exists);
    const Sight list = screen.look("lstBox");
    ASSERT_EQ(list.lines.size(), 50U);
    EXPECT_EQ(list.lines.back(), "Line 49");
    EXPECT_EQ(list.selected, -1);
    EXPECT_EQ(list.text, "");
}

TEST_F(WindowsScreenTest, PressesWhatAPersonCouldPress) {
    EXPECT_FALSE(screen.press("bnOff"));
    EXPECT_FALSE(screen.press("bnHidden"));
    EXPECT_FALSE(screen.press("bnUnder"));
    EXPECT_FALSE(screen.press("bnNone"));
    EXPECT_EQ(events(), Events{});
    EXPECT_TRUE(screen.press("bnOK"));
    EXPECT_EQ(dialog.take_events(), Events{"OK"});
    EXPECT_EQ(screen.front(), "");
    EXPECT_FALSE(ui.busy());
    EXPECT_FALSE(screen.press("bnOK"));
}

TEST_F(WindowsScreenTest, WaitsForEverythingThatFollowsFromADeed) {
    EXPECT_TRUE(screen.press("bnChain"));
    EXPECT_EQ(events(), Events{"end of chain"});
}

TEST_F(WindowsScreenTest, ChoosesLinesAlsoThoseOutOfView) {
    EXPECT_TRUE(screen.choose("lstBox", 1));
    EXPECT_EQ(events(), Events{"list 1"});
    EXPECT_TRUE(screen.choose("lstBox", 47));
    EXPECT_EQ(events(), Events{"list 47"});
    EXPECT_EQ(screen.look("lstBox").text, "Line 47");
    EXPECT_TRUE(screen.look("lstBox").focused);
    EXPECT_FALSE(screen.choose("lstBox", 50));
    EXPECT_FALSE(screen.choose("lstBox", -1));
    EXPECT_TRUE(screen.double_click("lstBox", 2));
    EXPECT_EQ(events(), (Events{"list 2", "list twice 2"}));
}

TEST_F(WindowsScreenTest, ChoosesInADropDownListAtOnce) {
    EXPECT_TRUE(screen.choose("cboBox", 2));
    EXPECT_EQ(events(), Events{"combo 2"});
    EXPECT_TRUE(screen.choose("cboBox", 44));
    EXPECT_EQ(events(), Events{"combo 44"});
    EXPECT_EQ(screen.look("cboBox").selected, 44);
    EXPECT_EQ(screen.look("cboBox").text, "Line 44");
    EXPECT_FALSE(screen.choose("cboBox", 50));
    EXPECT_EQ(screen.front(), "dlgPlain");
}

TEST_F(WindowsScreenTest, SeesTheRowsOfATree) {
    Sight tree = screen.look("treBox");
    ASSERT_EQ(tree.lines.size(), 30U);
    EXPECT_EQ(tree.lines[0], " Node 0");
    EXPECT_EQ(tree.lines[1], "+Node 1");
    EXPECT_EQ(tree.selected, -1);
    EXPECT_EQ(tree.text, "");
    EXPECT_TRUE(screen.expand("treBox", 1));
    EXPECT_TRUE(screen.choose("treBox", 3));
    tree = screen.look("treBox");
    ASSERT_EQ(tree.lines.size(), 32U);
    EXPECT_EQ(tree.lines[1], "-Node 1");
    EXPECT_EQ(tree.lines[3], "   Inner 1");
    EXPECT_EQ(tree.lines[4], " Node 2");
    EXPECT_EQ(tree.selected, 3);
    EXPECT_EQ(tree.text, "Inner 1");
}

TEST_F(WindowsScreenTest, ClicksIntoATreeAlsoWhereItIsOutOfView) {
    EXPECT_TRUE(screen.choose("treBox", 27));
    EXPECT_EQ(events(), Events{"node 27"});
    EXPECT_TRUE(screen.look("treBox").focused);
    EXPECT_TRUE(screen.expand("treBox", 28));
    EXPECT_EQ(events(), Events{"open 28"});
    EXPECT_FALSE(screen.expand("treBox", 28)) << "It is open.";
    EXPECT_TRUE(screen.collapse("treBox", 28));
    EXPECT_EQ(events(), Events{"close 28"});
    EXPECT_FALSE(screen.collapse("treBox", 28));
    EXPECT_FALSE(screen.expand("treBox", 0)) << "It has no sign.";
    EXPECT_TRUE(screen.double_click("treBox", 0));
    EXPECT_EQ(events(), (Events{"node 0", "tree twice"}));
    EXPECT_FALSE(screen.choose("treBox", 30));
    EXPECT_FALSE(screen.choose("treBox", -1));
    ui.call([&] { EnableWindow(window("treBox"), FALSE); });
    EXPECT_FALSE(screen.choose("treBox", 1));
    EXPECT_FALSE(screen.expand("treBox", 1));
}

TEST_F(WindowsScreenTest, TheKeysOfATreeWork) {
    EXPECT_TRUE(screen.choose("treBox", 0));
    events();
    EXPECT_TRUE(screen.key(Key::down));
    EXPECT_TRUE(screen.key(Key::right));
    EXPECT_EQ(events(), (Events{"node 1", "open 1"}));
    EXPECT_TRUE(screen.type("in"));
    EXPECT_EQ(screen.look("treBox").text, "Inner 0");
    EXPECT_TRUE(screen.key(Key::left));
    EXPECT_EQ(screen.look("treBox").text, "Node 1");
    events();
    EXPECT_TRUE(screen.key(Key::left));
    EXPECT_TRUE(screen.key(Key::plus));
    EXPECT_TRUE(screen.key(Key::minus));
    EXPECT_EQ(events(), (Events{"close 1", "open 1", "close 1"}));
}

TEST_F(WindowsScreenTest, SeesTheRowsOfATableAsTheyAreDrawn) {
    Sight table = screen.look("lvwBox");
    ASSERT_EQ(table.lines.size(), 30U);
    EXPECT_EQ(table.lines[1], "Row 1 | Value 1");
    EXPECT_EQ(table.lines[2], "*Row 2* | red:Value 2");
    EXPECT_EQ(table.selected, -1);
    EXPECT_EQ(table.text, "");
    EXPECT_TRUE(screen.choose("lvwBox", 3));
    table = screen.look("lvwBox");
    EXPECT_EQ(table.selected, 3);
    EXPECT_EQ(table.text, "Row 3");
    EXPECT_TRUE(table.focused);
}

TEST_F(WindowsScreenTest, ChoosesRowsOfATableAlsoThoseOutOfView) {
    EXPECT_TRUE(screen.choose("lvwBox", 1));
    EXPECT_TRUE(screen.choose("lvwBox", 28));
    EXPECT_EQ(events(), (Events{"row 1", "row 28"}));
    EXPECT_FALSE(screen.choose("lvwBox", 30));
    EXPECT_FALSE(screen.choose("lvwBox", -1));
    EXPECT_TRUE(screen.double_click("lvwBox", 0));
    EXPECT_EQ(events(), (Events{"row 0", "table twice"}));
    EXPECT_TRUE(screen.key(Key::down));
    EXPECT_TRUE(screen.type("r"));
    EXPECT_EQ(screen.look("lvwBox").text, "Row 2") << "The next one that begins so.";
    ui.call([&] { EnableWindow(window("lvwBox"), FALSE); });
    EXPECT_FALSE(screen.choose("lvwBox", 1));
}

TEST_F(WindowsScreenTest, SeesAndChoosesTabs) {
    Sight tabs = screen.look("tabBox");
    EXPECT_EQ(tabs.lines, (Events{"&One", "&Two", "T&hree"}));
    EXPECT_EQ(tabs.selected, 0);
    EXPECT_EQ(tabs.text, "&One");
    EXPECT_TRUE(screen.choose("tabBox", 2));
    EXPECT_EQ(events(), Events{"tab 2"});
    tabs = screen.look("tabBox");
    EXPECT_EQ(tabs.text, "T&hree");
    EXPECT_TRUE(tabs.focused);
    EXPECT_TRUE(screen.key(Key::left));
    EXPECT_EQ(screen.look("tabBox").selected, 1);
    EXPECT_FALSE(screen.choose("tabBox", 3));
    EXPECT_FALSE(screen.choose("tabBox", -1));
}

TEST_F(WindowsScreenTest, SetsDatesAndTimesByTyping) {
    for (const char* each : {"2026-11-21", "2028-02-29", "1999-12-31", "2001-01-01"}) {
        EXPECT_TRUE(screen.set_date("dtpDay", each)) << each;
        EXPECT_EQ(screen.look("dtpDay").text, each);
    }
    for (const char* each : {"00:00:00", "09:05:07", "12:00:01", "13:04:05", "23:59:59"}) {
        EXPECT_TRUE(screen.set_date("dtpTime", each)) << each;
        EXPECT_EQ(screen.look("dtpTime").text, each);
    }
    EXPECT_TRUE(screen.look("dtpTime").focused);
    EXPECT_FALSE(screen.set_date("dtpDay", "2027-02-29")) << "There is no such day.";
    EXPECT_FALSE(screen.set_date("dtpDay", "soon"));
    EXPECT_FALSE(screen.set_date("dtpOff", "2026-11-21"));
    EXPECT_FALSE(screen.set_date("txtBox", "2026-11-21"));
}

TEST_F(WindowsScreenTest, TicksACheckBox) {
    EXPECT_TRUE(screen.toggle("chkBox"));
    EXPECT_EQ(events(), Events{"tick box 1"});
    EXPECT_EQ(screen.look("chkBox").selected, 1);
    EXPECT_TRUE(screen.toggle("chkBox"));
    EXPECT_EQ(events(), Events{"tick box 0"});
}

TEST_F(WindowsScreenTest, TypesKeyByKeyAndAnyCharacter) {
    EXPECT_TRUE(screen.type("a"));
    EXPECT_EQ(events(), (Events{"down 65", "character 97", "change", "up 65"}));
    EXPECT_TRUE(screen.type("B"));
    EXPECT_EQ(events(), (Events{"down 66", "character 66", "change", "up 66"}));
    const std::string text = "\\\\PC-7.x_&!\"\xC3\xA4\xE2\x82\xAC\xF0\x9F\x8D\x8E";
    EXPECT_TRUE(screen.type(text));
    EXPECT_EQ(screen.look("txtBox").text, "aB" + text);
    EXPECT_TRUE(screen.key(Key::backspace));
    EXPECT_TRUE(screen.focus("lstBox"));
    EXPECT_FALSE(screen.type("x")) << "The focus is not in a text box.";
}

TEST_F(WindowsScreenTest, PastesAndFocusesByAClick) {
    EXPECT_TRUE(screen.focus("bnOK"));
    EXPECT_TRUE(screen.look("bnOK").focused);
    EXPECT_TRUE(screen.focus("txtBox"));
    EXPECT_TRUE(screen.look("txtBox").focused);
    EXPECT_EQ(events(), Events{});
    EXPECT_TRUE(screen.paste("from elsewhere"));
    EXPECT_EQ(events(), Events{"change"});
    EXPECT_EQ(screen.look("txtBox").text, "from elsewhere");
    EXPECT_FALSE(screen.focus("bnOff"));
}

TEST_F(WindowsScreenTest, TheKeysOfADialogWork) {
    EXPECT_TRUE(screen.key(Key::tab));
    EXPECT_TRUE(screen.look("chkBox").focused);
    EXPECT_TRUE(screen.key(Key::space));
    EXPECT_EQ(screen.look("chkBox").selected, 1);
    EXPECT_TRUE(screen.key(Key::tab));
    EXPECT_TRUE(screen.key(Key::down));
    EXPECT_TRUE(screen.key(Key::down));
    EXPECT_EQ(screen.look("lstBox").selected, 1);
    EXPECT_TRUE(screen.key(Key::up));
    EXPECT_EQ(screen.look("lstBox").selected, 0);
    EXPECT_TRUE(screen.key(Key::back_tab));
    EXPECT_TRUE(screen.look("chkBox").focused);
    EXPECT_TRUE(screen.accelerator('T'));
    EXPECT_TRUE(screen.look("txtBox").focused) << "The label's letter leads to the box after it.";
    EXPECT_TRUE(screen.accelerator('k'));
    EXPECT_EQ(screen.look("chkBox").selected, 0);
    events();
    EXPECT_TRUE(screen.key(Key::f1));
    EXPECT_EQ(events(), Events{"help"});
    EXPECT_TRUE(screen.key(Key::enter));
    EXPECT_EQ(dialog.take_events(), Events{"OK"});
}

TEST_F(WindowsScreenTest, EscapeAndTheCloseBoxClose) {
    EXPECT_TRUE(screen.key(Key::escape));
    EXPECT_EQ(dialog.take_events(), Events{"Cancel"});
    EXPECT_FALSE(screen.key(Key::escape)) << "The host's window is nobody's dialog.";
    ui.start([this] { dialog.run(); });
    EXPECT_TRUE(screen.close_box());
    EXPECT_EQ(dialog.take_events(), Events{"close box"});
    EXPECT_FALSE(screen.close_box());
}

TEST_F(WindowsScreenTest, ReadsAndAnswersAMessageBox) {
    EXPECT_FALSE(screen.message());
    EXPECT_FALSE(screen.answer(message::ok));
    EXPECT_TRUE(screen.press("bnMessage"));
    EXPECT_EQ(screen.front(), "message");
    const Message expected{"Salt\r\n\r\nPepper & more", message::ok_cancel + message::exclamation, "Spices"};
    EXPECT_EQ(screen.message(), expected);
    EXPECT_FALSE(screen.press("bnOK")) << "The message lies over the dialog.";
    EXPECT_FALSE(screen.close_box());
    EXPECT_FALSE(screen.look("txtBox").enabled);
    EXPECT_FALSE(screen.answer(message::ok + 5));
    EXPECT_TRUE(screen.answer(message::cancel));
    EXPECT_EQ(events(), Events{"answer 2"});
    EXPECT_EQ(screen.front(), "dlgPlain");
    EXPECT_TRUE(screen.accelerator('M'));
    EXPECT_TRUE(screen.answer(message::ok));
    EXPECT_EQ(events(), Events{"answer 1"});
}

TEST_F(WindowsScreenTest, TimePassesByWholeTicksOnly) {
    std::this_thread::sleep_for(std::chrono::milliseconds(1200));
    EXPECT_EQ(events(), Events{}) << "Time stands still.";
    screen.pass_ticks(3);
    EXPECT_EQ(events(), (Events{"tick", "tick", "tick"}));
    ui.call([&] { KillTimer(window("dlgPlain"), 7); });
    std::this_thread::sleep_for(std::chrono::milliseconds(2600));
    screen.pass_ticks(1);
    EXPECT_EQ(events(), Events{}) << "A timer that was stopped does not tick.";
}

TEST_F(WindowsScreenTest, DeedsWhileCodeRunsComeToNothing) {
    bool pressed = true;
    Sight sight;
    ui.call([&] {
        pressed = screen.press("bnOff");
        sight = screen.look("txtBox");
    });
    EXPECT_FALSE(pressed);
    EXPECT_TRUE(sight.focused);
}

TEST_F(WindowsScreenTest, JobsRunWhileADialogIsOpenAndTheirFailuresComeBack) {
    bool ran = false;
    ui.start([&] { ran = true; });
    EXPECT_TRUE(ran);
    EXPECT_TRUE(ui.busy());
    EXPECT_THROW(ui.start([] { throw std::runtime_error("no"); }), std::runtime_error);
    EXPECT_EQ(screen.front(), "dlgPlain");
}

TEST_F(WindowsScreenTest, ADescriptionIsReadWithItsEscapesUndone) {
    ui.call([&] {
        dialog.description = L"dlgPlain\tform\t1\t1\t-1\t0\ttab\\t return\\r line\\n slash\\\\0 NUL\\0 end\n";
        using namespace std::string_literals;
        EXPECT_EQ(described(window("dlgPlain")).front().text, "tab\t return\r line\n slash\\0 NUL\0 end"s);
    });
}

TEST_F(WindowsScreenTest, DifferencesBetweenWindowsAndControlsAreTold) {
    const auto differences = [&](const wchar_t* description) {
        std::string found;
        ui.call([&] {
            dialog.description = description;
            found = differences_in(window("dlgPlain"));
        });
        return found;
    };
    EXPECT_EQ(differences(L"dlgPlain\tform\t1\t1\t-1\t0\tPlain\n"
                          L"lblBox\tlabel\t1\t1\t-1\t0\t&Text:\n"
                          L"chkBox\tcheck_box\t1\t1\t0\t0\tTic&k\n"
                          L"lstBox\tlist_box\t1\t1\t-1\t50\t\n"
                          L"treBox\ttree_view\t1\t1\t-1\t30\t\n"
                          L"treBox\trow\t1\t1\t-1\t0\t Node 0\n"
                          L"treBox\trow\t1\t1\t-1\t0\t+Node 1\n"
                          L"lvwBox\tlist_view\t1\t1\t-1\t30\t\n"
                          L"lvwBox\tcolumn\t1\t1\t-1\t0\tName\n"
                          L"lvwBox\tcolumn\t1\t1\t-1\t0\tValue\n"
                          L"lvwBox\trow\t1\t1\t-1\t0\tRow 0 | Value 0\n"
                          L"lvwBox\trow\t1\t1\t-1\t0\tRow 1 | Value 1\n"
                          L"lvwBox\trow\t1\t1\t-1\t0\t*Row 2* | red:Value 2\n"
                          L"tabBox\ttab_strip\t1\t1\t0\t3\t&One\n"
                          L"tabBox\trow\t1\t1\t-1\t0\t&One\n"
                          L"dtpDay\tdate_picker\t1\t1\t-1\t0\t2026-11-21\n"
                          L"bnOff\tbutton\t0\t1\t-1\t0\tOff\n"
                          L"bnHidden\tbutton\t1\t0\t-1\t0\tHidden\n"
                          L"Timer1\ttimer\t1\t0\t-1\t0\t\n"),
              "");
    EXPECT_EQ(differences(L"dlgPlain\tform\t1\t1\t-1\t0\tPl\\tain\n"
                          L"chkBox\tcheck_box\t1\t0\t1\t0\tTic&k\n"
                          L"lstBox\tlist_box\t1\t1\t3\t49\tLine 3\n"
                          L"treBox\ttree_view\t1\t1\t2\t31\tNode 2\n"
                          L"treBox\trow\t1\t1\t-1\t0\t Node 0\n"
                          L"treBox\trow\t1\t1\t-1\t0\t-Node 1\n"
                          L"lvwBox\tlist_view\t1\t1\t1\t31\tRow 1\n"
                          L"lvwBox\tcolumn\t1\t1\t-1\t0\tItem\n"
                          L"lvwBox\trow\t1\t1\t-1\t0\tRow 0 | red:Value 0\n"
                          L"tabBox\ttab_strip\t1\t1\t1\t3\t&Two\n"
                          L"tabBox\trow\t1\t1\t-1\t0\tOne\n"
                          L"dtpDay\tdate_picker\t1\t1\t-1\t0\t2026-11-22\n"
                          L"lblBox\tpanel\t1\t1\t1\t0\t&Text:\n"
                          L"bnOff\tbutton\t1\t1\t-1\t0\tOff\n"
                          L"bnNone\tbutton\t1\t1\t-1\t0\tNone\n"),
              "dlgPlain: the caption is \"Plain\", but should be \"Pl\tain\"\n"
              "dlgPlain.chkBox: visible is true, but should be false\n"
              "dlgPlain.chkBox: the selected line or value is 0, but should be 1\n"
              "dlgPlain.lstBox: the text is \"\", but should be \"Line 3\"\n"
              "dlgPlain.lstBox: the number of lines is 50, but should be 49\n"
              "dlgPlain.lstBox: the selected line or value is -1, but should be 3\n"
              "dlgPlain.treBox: the text is \"\", but should be \"Node 2\"\n"
              "dlgPlain.treBox: a row is \"+Node 1\", but should be \"-Node 1\"\n"
              "dlgPlain.treBox: the number of lines is 30, but should be 31\n"
              "dlgPlain.treBox: the selected line or value is -1, but should be 2\n"
              "dlgPlain.lvwBox: the text is \"\", but should be \"Row 1\"\n"
              "dlgPlain.lvwBox: the number of columns is 2, but should be 1\n"
              "dlgPlain.lvwBox: a column is \"Name\", but should be \"Item\"\n"
              "dlgPlain.lvwBox: a row is \"Row 0 | Value 0\", but should be \"Row 0 | red:Value 0\"\n"
              "dlgPlain.lvwBox: the number of lines is 30, but should be 31\n"
              "dlgPlain.lvwBox: the selected line or value is -1, but should be 1\n"
              "dlgPlain.tabBox: the text is \"&One\", but should be \"&Two\"\n"
              "dlgPlain.tabBox: a row is \"&One\", but should be \"One\"\n"
              "dlgPlain.tabBox: the selected line or value is 0, but should be 1\n"
              "dlgPlain.dtpDay: the text is \"2026-11-21\", but should be \"2026-11-22\"\n"
              "dlgPlain.lblBox: in front is false, but should be true\n"
              "dlgPlain.bnOff: enabled is false, but should be true\n"
              "dlgPlain.bnNone: it has no window\n");
    EnableWindow(ui.window(), TRUE);
    EXPECT_EQ(differences(L"dlgPlain\tform\t1\t1\t-1\t0\tPlain\n"),
              "dlgPlain: \"Host\" takes input at the same time\n");
}

TEST_F(WindowsScreenTest, AThreadThatHangsEndsTheDeed) {
    const UINT usual = std::exchange(patience, 200);
    EXPECT_THROW(ui.start([] { Sleep(1000); }), std::runtime_error);
    EXPECT_THROW(screen.press("bnOK"), std::runtime_error);
    patience = usual;
}

} // namespace brx::checks
