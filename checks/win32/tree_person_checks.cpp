// What a person does to a tree, and what becomes of it.

#include "trees.h"

namespace brx::checks {

TEST_F(TreeTest, TwoClicksOnASignOpenAndClose) {
    TreeForm form(environment);
    show_food(form, [&](Hands& hands, HWND tree) {
        POINT sign{};
        ASSERT_TRUE(point_on_sign(tree, item(tree, 0), sign));
        hands.double_click(tree, sign.x, sign.y);
        EXPECT_EQ(tree_rows(tree).size(), 2U);
    });
}

TEST_F(TreeTest, AClickBesideTheNodesOnlyBringsTheFocus) {
    TreeForm form(environment);
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

TEST_F(TreeTest, TheKeysOfPagesMoveTheSelection) {
    TreeForm form(environment);
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
        const int page_down = row_after(VK_NEXT);
        EXPECT_GT(page_down, 3);
        EXPECT_LT(page_down, 19);
        EXPECT_EQ(row_after(VK_PRIOR), 0);
    });
}

TEST_F(TreeTest, AnAsteriskOpensTheSelectedNodeOnlyAndBackspaceGoesToItsParent) {
    TreeForm form(environment);
    show_food(form, [&](Hands& hands, HWND tree) {
        click_text(hands, tree, 0);
        form.events.clear();
        hands.key(VK_MULTIPLY);
        EXPECT_EQ(tree_rows(tree), (Rows{"-Fruit", "   Apple", "  +Pear", " Spice"}));
        EXPECT_EQ(form.events, "Expand Fruit. ");
        hands.key(VK_DOWN);
        hands.key(VK_BACK);
        EXPECT_EQ(selected_row(tree), 0);
        hands.type("sp");
        EXPECT_EQ(selected_row(tree), 3) << "They are no part of what is typed.";
    });
}

TEST_F(TreeTest, WhatTheControlRefusesIsNotShown) {
    TreeForm form(environment);
    show_food(form, [&](Hands& hands, HWND tree) {
        click_text(hands, tree, 0);
        click_sign(hands, tree, 0);
        click_sign(hands, tree, 0); // the window knows the children by now
        form.events.clear();
        // It is the code's turn while a tool comes, as where a server's wrapper waits for messages.
        run(hands, form, [&] {
            SendMessageW(tree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item(tree, 1)));
            EXPECT_EQ(selected_row(tree), 0);
            SendMessageW(tree, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(item(tree, 0)));
            EXPECT_EQ(tree_rows(tree), (Rows{"+Fruit", " Spice"}));
        });
        EXPECT_EQ(form.events, "");
    });
}

TEST_F(TreeTest, WhatToolsDoToTheTreeIsAPersonsDoing) {
    TreeForm form(environment);
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
    TreeForm form(environment);
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
