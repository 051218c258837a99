// What a person does to a tree, and what becomes of it.

#include "trees.h"

namespace brx::checks {

TEST_F(TreeTest, AClickOnANodeSelectsItAndTellsSoEachTime) {
    Trees form(environment);
    show_food(form, [&](Hands& hands, HWND tree) {
        click_text(hands, tree, 1);
        EXPECT_EQ(form.events, "NodeClick Spice. Click. ");
        EXPECT_EQ(selected_row(tree), 1);
        click_text(hands, tree, 1);
        EXPECT_EQ(form.events, "NodeClick Spice. Click. NodeClick Spice. Click. ");
        click_text(hands, tree, 0);
        EXPECT_EQ(selected_row(tree), 0);
        EXPECT_EQ(form.Tree.selected(), &form.Tree.node("fruit"));
    });
}

TEST_F(TreeTest, AClickOnTheSignOpensOrClosesAndThenTellsOfAClick) {
    Trees form(environment);
    show_food(form, [&](Hands& hands, HWND tree) {
        click_sign(hands, tree, 0);
        EXPECT_EQ(tree_rows(tree), (Rows{"-Fruit", "   Apple", "  +Pear", " Spice"}));
        EXPECT_EQ(form.events, "Expand Fruit. Click. ");
        EXPECT_EQ(selected_row(tree), -1);
        EXPECT_EQ(hands.focus(), tree);
        click_text(hands, tree, 1);
        form.events.clear();
        click_sign(hands, tree, 0);
        EXPECT_EQ(tree_rows(tree), (Rows{"+Fruit", " Spice"}));
        EXPECT_EQ(form.events, "Click. ");
        EXPECT_EQ(selected_row(tree), 0) << "The selection moves up with it.";
    });
}

TEST_F(TreeTest, ADoubleClickOnANodeClicksItAndThenOpensOrClosesIt) {
    Trees form(environment);
    show_food(form, [&](Hands& hands, HWND tree) {
        const auto double_click = [&](int row) {
            const POINT point = point_on_text(tree, item(tree, row));
            hands.double_click(tree, point.x, point.y);
        };
        double_click(0);
        EXPECT_EQ(form.events, "NodeClick Fruit. Click. Expand Fruit. Click. ");
        EXPECT_EQ(tree_rows(tree).size(), 4U);
        form.events.clear();
        double_click(0);
        EXPECT_EQ(tree_rows(tree).size(), 2U);
        EXPECT_EQ(form.events, "NodeClick Fruit. Click. Click. ");
        form.events.clear();
        double_click(1);
        EXPECT_EQ(form.events, "NodeClick Spice. Click. ");
        POINT sign{};
        ASSERT_TRUE(point_on_sign(tree, item(tree, 0), sign));
        hands.double_click(tree, sign.x, sign.y);
        EXPECT_EQ(tree_rows(tree).size(), 2U) << "Two clicks on the sign open and close.";
    });
}

TEST_F(TreeTest, AClickBesideTheNodesOnlyBringsTheFocus) {
    Trees form(environment);
    show_food(form, [&](Hands& hands, HWND tree) {
        click_text(hands, tree, 0);
        form.events.clear();
        hands.key(VK_TAB);
        const POINT text = point_on_text(tree, item(tree, 1));
        for (const POINT beside : {POINT{180, text.y}, POINT{1, text.y}, POINT{20, 140}})
            hands.click(tree, beside.x, beside.y);
        EXPECT_EQ(hands.focus(), tree);
        EXPECT_EQ(selected_row(tree), 0);
        EXPECT_EQ(form.events, "");
    });
}

TEST_F(TreeTest, TheFocusAloneSelectsNothing) {
    Trees form(environment);
    show_food(form, [&](Hands& hands, HWND tree) {
        EXPECT_EQ(hands.focus(), tree);
        EXPECT_EQ(selected_row(tree), -1);
        hands.key(VK_TAB);
        hands.key(VK_TAB);
        EXPECT_EQ(hands.focus(), tree);
        EXPECT_EQ(selected_row(tree), -1);
        EXPECT_EQ(form.events, "");
        hands.key(VK_DOWN);
        EXPECT_EQ(selected_row(tree), 0) << "The first key comes to the first node.";
        EXPECT_EQ(form.events, "NodeClick Fruit. ");
    });
}

TEST_F(TreeTest, TheKeysMoveTheSelection) {
    Trees form(environment);
    form.on_load = [&] {
        for (int i = 0; i < 30; ++i) form.Tree.add("", "Node " + std::to_string(i));
        form.Tree.select(form.Tree.first());
    };
    show_tree(form, [&](Hands& hands, HWND tree) {
        const auto row_after = [&](WORD key) {
            hands.key(key);
            EXPECT_EQ(selected_row(tree), row_of(form.Tree, form.Tree.selected()));
            return selected_row(tree);
        };
        EXPECT_EQ(row_after(VK_DOWN), 1);
        EXPECT_EQ(row_after(VK_DOWN), 2);
        EXPECT_EQ(row_after(VK_UP), 1);
        EXPECT_EQ(row_after(VK_END), 29);
        EXPECT_EQ(form.events, "NodeClick Node 1. NodeClick Node 2. NodeClick Node 1. NodeClick Node 29. ");
        const int page_up = row_after(VK_PRIOR);
        EXPECT_LT(page_up, 26);
        EXPECT_GT(page_up, 10);
        EXPECT_EQ(row_after(VK_NEXT), 29);
        EXPECT_EQ(row_after(VK_HOME), 0);
        form.events.clear();
        EXPECT_EQ(row_after(VK_UP), 0);
        EXPECT_EQ(form.events, "");
    });
}

TEST_F(TreeTest, TheKeysOpenAndCloseNodes) {
    Trees form(environment);
    show_food(form, [&](Hands& hands, HWND tree) {
        click_text(hands, tree, 0);
        form.events.clear();
        const Rows closed = {"+Fruit", " Spice"};
        const Rows open = {"-Fruit", "   Apple", "  +Pear", " Spice"};
        for (const auto& [opens, closes] :
             {std::pair<WORD, WORD>{VK_RIGHT, VK_LEFT}, {VK_ADD, VK_SUBTRACT}}) {
            hands.key(opens);
            EXPECT_EQ(tree_rows(tree), open) << opens;
            EXPECT_EQ(form.events, "Expand Fruit. ");
            hands.key(closes);
            EXPECT_EQ(tree_rows(tree), closed) << closes;
            EXPECT_EQ(form.events, "Expand Fruit. ");
            form.events.clear();
        }
        hands.key(VK_RIGHT);
        hands.key(VK_RIGHT);
        EXPECT_EQ(selected_row(tree), 1) << "Into an open node.";
        EXPECT_EQ(form.events, "Expand Fruit. NodeClick Apple. ");
        hands.key(VK_RIGHT);
        EXPECT_EQ(selected_row(tree), 1);
        hands.key(VK_LEFT);
        EXPECT_EQ(selected_row(tree), 0) << "Out of it.";
        hands.key(VK_DOWN);
        hands.key(VK_BACK);
        EXPECT_EQ(selected_row(tree), 0);
        EXPECT_EQ(form.events,
                  "Expand Fruit. NodeClick Apple. NodeClick Fruit. NodeClick Apple. NodeClick Fruit. ");
    });
}

TEST_F(TreeTest, AnAsteriskOpensTheSelectedNodeOnly) {
    Trees form(environment);
    show_food(form, [&](Hands& hands, HWND tree) {
        click_text(hands, tree, 0);
        form.events.clear();
        hands.key(VK_MULTIPLY);
        EXPECT_EQ(tree_rows(tree), (Rows{"-Fruit", "   Apple", "  +Pear", " Spice"}));
        EXPECT_EQ(form.events, "Expand Fruit. ");
    });
}

TEST_F(TreeTest, TypingGoesToTheNodeThatBeginsSo) {
    Trees form(environment);
    show_food(form, [&](Hands& hands, HWND tree) {
        click_text(hands, tree, 0);
        form.events.clear();
        hands.type("sp");
        EXPECT_EQ(selected_row(tree), 1);
        EXPECT_EQ(form.events, "NodeClick Spice. ");
    });
}

TEST_F(TreeTest, AKeyThatOpensOrClosesIsNoPartOfWhatIsTyped) {
    Trees form(environment);
    show_food(form, [&](Hands& hands, HWND tree) {
        click_text(hands, tree, 0);
        for (const WORD each : std::initializer_list<WORD>{VK_ADD, VK_MULTIPLY, VK_SUBTRACT}) hands.key(each);
        hands.type("sp");
        EXPECT_EQ(selected_row(tree), 1);
    });
}

TEST_F(TreeTest, EnterPressesTheDefaultButtonAndTabLeavesTheTree) {
    Trees form(environment);
    show_food(form, [&](Hands& hands, HWND tree) {
        click_text(hands, tree, 1);
        form.events.clear();
        hands.key(VK_RETURN);
        EXPECT_EQ(form.events, "Press. ");
        hands.key(VK_TAB);
        EXPECT_EQ(hands.focus(), hands.control("Trees", "Press"));
        EXPECT_EQ(selected_row(tree), 1);
    });
}

TEST_F(TreeTest, WhatTheControlRefusesIsNotShown) {
    Trees form(environment);
    show_food(form, [&](Hands& hands, HWND tree) {
        click_text(hands, tree, 0);
        click_sign(hands, tree, 0);
        click_sign(hands, tree, 0); // the window knows the children by now
        form.events.clear();
        POINT sign{};
        ASSERT_TRUE(point_on_sign(tree, item(tree, 0), sign));
        // It is the code's turn while input comes, as where a server's wrapper waits for messages.
        run(hands, form, [&] {
            SendMessageW(tree, WM_KEYDOWN, VK_DOWN, 1);
            EXPECT_EQ(selected_row(tree), 0);
            SendMessageW(tree, WM_KEYDOWN, VK_ADD, 1);
            SendMessageW(tree, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(sign.x, sign.y));
            EXPECT_EQ(tree_rows(tree), (Rows{"+Fruit", " Spice"}));
        });
        EXPECT_EQ(form.events, "");
    });
}

TEST_F(TreeTest, WhatToolsDoToTheTreeIsAPersonsDoing) {
    Trees form(environment);
    show_food(form, [&](Hands&, HWND tree) {
        const auto expand = [&](WPARAM action) {
            return SendMessageW(tree, TVM_EXPAND, action, reinterpret_cast<LPARAM>(item(tree, 0)));
        };
        for (int times = 0; times < 2; ++times) {
            EXPECT_TRUE(expand(TVE_EXPAND));
            EXPECT_TRUE(form.Tree.node("fruit").expanded());
            EXPECT_TRUE(expand(TVE_COLLAPSE));
            EXPECT_FALSE(form.Tree.node("fruit").expanded());
            EXPECT_TRUE(expand(TVE_TOGGLE));
            EXPECT_TRUE(expand(TVE_TOGGLE));
            EXPECT_FALSE(form.Tree.node("fruit").expanded());
        }
        form.events.clear();
        SendMessageW(tree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item(tree, 1)));
        EXPECT_EQ(form.events, "NodeClick Spice. ");
        SendMessageW(tree, TVM_SELECTITEM, TVGN_CARET, 0);
        EXPECT_EQ(selected_row(tree), 1) << "A person cannot select nothing.";
    });
}

TEST_F(TreeTest, ADisabledTreeTakesNoInput) {
    Trees form(environment);
    show_food(form, [&](Hands& hands, HWND tree) {
        run(hands, form, [&] { form.Tree.set_enabled(false); });
        EXPECT_FALSE(IsWindowEnabled(tree));
        EXPECT_EQ(hands.focus(), hands.control("Trees", "Press"));
        click_text(hands, tree, 1); // messages reach it all the same
        click_sign(hands, tree, 0);
        EXPECT_EQ(form.events, "");
        EXPECT_EQ(selected_row(tree), -1);
        run(hands, form, [&] { form.Tree.set_enabled(true); });
        click_text(hands, tree, 1);
        EXPECT_EQ(form.events, "NodeClick Spice. Click. ");
    });
}

} // namespace brx::checks
