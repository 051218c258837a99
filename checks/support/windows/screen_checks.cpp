// The tools of the stories themselves, on a dialog made of the system's controls alone.

#include "windows/screen_test.h"

#include <chrono>
#include <stdexcept>
#include <thread>
#include <utility>

namespace brx::checks {

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
    EXPECT_TRUE(screen.copy(" and here"));
    EXPECT_TRUE(screen.key(Key::control_v));
    EXPECT_EQ(screen.look("txtBox").text, "from elsewhere and here");
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

TEST_F(WindowsScreenTest, AThreadThatHangsEndsTheDeed) {
    const UINT usual = std::exchange(patience, 200);
    EXPECT_THROW(ui.start([] { Sleep(1000); }), std::runtime_error);
    EXPECT_THROW(screen.press("bnOK"), std::runtime_error);
    patience = usual;
}

} // namespace brx::checks
