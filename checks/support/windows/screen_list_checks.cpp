// The same tools, where a control has lines, rows or tabs.

#include "windows/screen_test.h"

namespace brx::checks {

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

} // namespace brx::checks
