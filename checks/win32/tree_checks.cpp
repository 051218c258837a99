// How a tree shows what its control holds.

#include "trees.h"

#include "desk/native.h"
#include "forms/win32/dpi.h"
#include "forms/win32/wide.h"

namespace brx::checks {

namespace {

DWORD style_of(HWND window) { return static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE)); }

const std::vector<std::wstring> odd_names = {
    L"a & b && c",
    L"tab\there",
    L"  blanks around  ",
    L"\u05E9\u05DC\u05D5\u05DD \u202Ertl",
    L"\xD83D\xDE00 x",
    L"lone \xD800 surrogate",
    std::wstring(2000, L'w'),
    L"",
    L"xxx",
};

} // namespace

TEST_F(TreeTest, NamesAreShownExactlyAsTheyAre) {
    TreeForm form(environment);
    form.on_load = [&] {
        for (const std::wstring& each : odd_names) form.Tree.add("", from_wide(each));
    };
    show_tree(form, [&](Hands&, HWND tree) {
        ASSERT_EQ(items_in_view(tree).size(), odd_names.size());
        for (int i = 0; const std::wstring& each : odd_names)
            EXPECT_EQ(text_of_item(tree, item(tree, i++)), from_wide(each));
        EXPECT_TRUE(style_of(tree) & WS_HSCROLL) << "The widest scrolls.";
    });
}

TEST_F(TreeTest, ChildrenAreInTheWindowOnlyOnceTheirParentWasOpen) {
    TreeForm form(environment);
    show_food(form, [&](Hands& hands, HWND tree) {
        EXPECT_EQ(count(tree), 2);
        EXPECT_EQ(tree_rows(tree), (Rows{"+Fruit", " Spice"})) << "The sign shows that there are children.";
        run(hands, form, [&] { form.Tree.add_child(form.Tree.node("spice"), "pepper", "Pepper"); });
        EXPECT_EQ(tree_rows(tree), (Rows{"+Fruit", "+Spice"}));
        EXPECT_EQ(count(tree), 2);
        // What stands for children that are not known yet is replaced before they show.
        form.on_expand = [&](TreeNode& node) {
            form.Tree.remove(*node.child());
            form.Tree.add_child(node, "plum", "Plum");
            EXPECT_EQ(count(tree), 2);
        };
        click_sign(hands, tree, 0);
        EXPECT_EQ(count(tree), 4);
        EXPECT_EQ(tree_rows(tree), (Rows{"-Fruit", "  +Pear", "   Plum", "+Spice"}));
        click_sign(hands, tree, 0);
        form.on_expand = [](TreeNode&) {};
        run(hands, form, [&] { form.Tree.add_child(form.Tree.node("fruit"), "fig", "Fig"); });
        click_sign(hands, tree, 0);
        EXPECT_EQ(tree_rows(tree), (Rows{"-Fruit", "  +Pear", "   Plum", "   Fig", "+Spice"}));
    });
}

TEST_F(TreeTest, ANodeWhoseChildrenHaveGoneLosesItsSign) {
    TreeForm form(environment);
    show_food(form, [&](Hands& hands, HWND tree) {
        form.on_expand = [&](TreeNode& node) {
            while (node.child()) form.Tree.remove(*node.child());
        };
        click_sign(hands, tree, 0);
        EXPECT_EQ(tree_rows(tree), (Rows{" Fruit", " Spice"}));
        run(hands, form, [&] { form.Tree.add_child(form.Tree.node("fruit"), "plum", "Plum"); });
        EXPECT_EQ(tree_rows(tree), (Rows{"+Fruit", " Spice"}));
        form.on_expand = [](TreeNode&) {};
        click_sign(hands, tree, 0);
        EXPECT_EQ(tree_rows(tree), (Rows{"-Fruit", "   Plum", " Spice"}));
        run(hands, form, [&] { form.Tree.remove(form.Tree.node("plum")); });
        EXPECT_EQ(tree_rows(tree), (Rows{" Fruit", " Spice"}));
        EXPECT_FALSE(is_open(tree, item(tree, 0)));
        run(hands, form, [&] { form.Tree.add_child(form.Tree.node("fruit"), "fig", "Fig"); });
        EXPECT_EQ(tree_rows(tree), (Rows{"+Fruit", " Spice"})) << "It is closed.";
    });
}

TEST_F(TreeTest, AnyMixtureOfChangesShowsItsOutcome) {
    TreeForm form(environment);
    show_food(form, [&](Hands& hands, HWND tree) {
        click_sign(hands, tree, 0);
        run(hands, form, [&] {
            TreeView& all = form.Tree;
            all.add("a", "A");
            all.remove(all.node("a"));
            all.add("b", "B");
            all.add_child(all.node("fruit"), "fig", "Fig");
            all.remove(all.node("apple"));
            all.add_child(all.node("b"), "b1", "B1");
            all.add_child(all.node("fig"), "seed", "Seed");
            all.remove(all.node("spice"));
            all.add("c", "C");
        });
        EXPECT_EQ(tree_rows(tree), (Rows{"-Fruit", "  +Pear", "  +Fig", "+B", " C"}));
        run(hands, form, [&] {
            form.Tree.remove(form.Tree.node("fruit"));
            form.Tree.add("fruit", "Fruit again");
        });
        EXPECT_EQ(tree_rows(tree), (Rows{"+B", " C", " Fruit again"}));
        run(hands, form, [&] {
            form.Tree.add("gone", "Gone");
            form.Tree.clear();
            form.Tree.add("new", "New");
            form.Tree.select(form.Tree.first());
        });
        EXPECT_EQ(tree_rows(tree), (Rows{" New"}));
        EXPECT_EQ(selected_row(tree), 0);
        EXPECT_EQ(form.events, "Expand Fruit. Click. ");
    });
}

TEST_F(TreeTest, ATreeThatIsFilledAnewOpensAnew) {
    TreeForm form(environment);
    show_food(form, [&](Hands& hands, HWND tree) {
        click_sign(hands, tree, 0);
        run(hands, form, [&] {
            form.Tree.clear();
            form.add_food();
        });
        EXPECT_EQ(tree_rows(tree), (Rows{"+Fruit", " Spice"}));
        click_sign(hands, tree, 0);
        EXPECT_EQ(tree_rows(tree), (Rows{"-Fruit", "   Apple", "  +Pear", " Spice"}));
    });
}

TEST_F(TreeTest, TheSelectionIsTheControlsWhateverComesAndGoes) {
    TreeForm form(environment);
    form.on_load = [&] {
        form.add_food();
        form.Tree.select(&form.Tree.node("spice"));
    };
    show_tree(form, [&](Hands& hands, HWND tree) {
        EXPECT_EQ(selected_row(tree), 1);
        run(hands, form, [&] { form.Tree.remove(form.Tree.node("fruit")); });
        EXPECT_EQ(selected_row(tree), 0);
        run(hands, form, [&] {
            form.Tree.remove(form.Tree.node("spice"));
            form.Tree.add("last", "Last");
        });
        EXPECT_EQ(selected_row(tree), -1);
        run(hands, form, [&] { form.Tree.select(form.Tree.first()); });
        EXPECT_EQ(selected_row(tree), 0);
        run(hands, form, [&] { form.Tree.select(nullptr); });
        EXPECT_EQ(selected_row(tree), -1);
        EXPECT_EQ(form.events, "");
    });
}

TEST_F(TreeTest, ANodeThatIsSelectedWithinAClosedOneShowsSoOnceThatIsOpen) {
    TreeForm form(environment);
    show_food(form, [&](Hands& hands, HWND tree) {
        run(hands, form, [&] { form.Tree.select(&form.Tree.node("apple")); });
        EXPECT_EQ(tree_rows(tree), (Rows{"+Fruit", " Spice"})) << "Nothing opens for it.";
        EXPECT_EQ(selected_row(tree), -1);
        click_sign(hands, tree, 0);
        EXPECT_EQ(selected_row(tree), 1);
        click_sign(hands, tree, 0);
        EXPECT_EQ(selected_row(tree), 0) << "Closing moves it up.";
        run(hands, form, [&] { form.Tree.select(&form.Tree.node("apple")); });
        EXPECT_EQ(tree_rows(tree), (Rows{"+Fruit", " Spice"})) << "Nor does it open again.";
        EXPECT_EQ(selected_row(tree), -1);
        EXPECT_EQ(form.events, "Expand Fruit. Click. Click. ");
    });
}

TEST_F(TreeTest, AFormOpensWithWhatItsTreeAlreadyHolds) {
    TreeForm form(environment);
    form.on_load = [&] {
        for (int i = 0; i < 40; ++i) form.Tree.add(std::to_string(i), "Node " + std::to_string(i));
        form.Tree.select(&form.Tree.node("35"));
    };
    show_tree(form, [&](Hands&, HWND tree) {
        EXPECT_EQ(count(tree), 40);
        EXPECT_EQ(selected_row(tree), 35);
        const POINT point = point_on_text(tree, item(tree, 35));
        EXPECT_GT(point.y, 0) << "It has scrolled there.";
    });
    form.on_load = [] {};
    show_tree(form, [&](Hands&, HWND tree) { EXPECT_EQ(count(tree), 0); });
}

TEST_F(TreeTest, TheViewStaysWhereItIsWhenNodesComeBelowIt) {
    TreeForm form(environment);
    form.on_load = [&] {
        for (int i = 0; i < 40; ++i) form.Tree.add(std::to_string(i), "Node " + std::to_string(i));
    };
    show_tree(form, [&](Hands& hands, HWND tree) {
        const auto top = [&] { return SendMessageW(tree, TVM_GETNEXTITEM, TVGN_FIRSTVISIBLE, 0); };
        SendMessageW(tree, TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(item(tree, 30)));
        const LRESULT before = top();
        EXPECT_NE(before, reinterpret_cast<LRESULT>(item(tree, 0)));
        run(hands, form, [&] { form.Tree.add("new", "New"); });
        EXPECT_EQ(top(), before);
    });
}

TEST_F(TreeTest, LinesAndSignsFollowTheStylesAlsoWhileItIsOpen) {
    TreeForm form(environment);
    form.on_load = [&] {
        form.Tree.set_line_style(LineStyle::tree_lines); // as designed
        form.add_food();
    };
    show_tree(form, [&](Hands& hands, HWND tree) {
        const auto lines = [&] { return style_of(tree) & (TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT); };
        EXPECT_EQ(lines(), DWORD{TVS_HASBUTTONS | TVS_HASLINES});
        POINT sign{};
        EXPECT_FALSE(point_on_sign(tree, item(tree, 0), sign));
        run(hands, form, [&] { form.Tree.set_line_style(LineStyle::root_lines); });
        EXPECT_EQ(lines(), DWORD{TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT});
        EXPECT_TRUE(point_on_sign(tree, item(tree, 0), sign));
        run(hands, form, [&] { form.Tree.set_style(TreeStyle::tree_lines_text); });
        EXPECT_EQ(lines(), DWORD{TVS_HASLINES | TVS_LINESATROOT});
        run(hands, form, [&] { form.Tree.set_style(TreeStyle::plus_minus_text); });
        EXPECT_EQ(lines(), DWORD{TVS_HASBUTTONS | TVS_LINESATROOT});
        run(hands, form, [&] { form.Tree.set_style(TreeStyle::text_only); });
        EXPECT_EQ(lines(), DWORD{TVS_LINESATROOT});
    });
}

TEST_F(TreeTest, ItLooksLikeABoxAndShowsItsSelectionAlsoWithoutTheFocus) {
    TreeForm form(environment);
    show_food(form, [&](Hands& hands, HWND tree) {
        EXPECT_TRUE(GetWindowLongW(tree, GWL_EXSTYLE) & WS_EX_CLIENTEDGE);
        EXPECT_TRUE(style_of(tree) & TVS_SHOWSELALWAYS);
        EXPECT_FALSE(style_of(tree) & TVS_EDITLABELS);
        EXPECT_FALSE(style_of(tree) & TVS_NOTOOLTIPS);
        EXPECT_EQ(name_of(tree), "Tree");
        const auto color_of = [&](UINT message) {
            return static_cast<COLORREF>(SendMessageW(tree, message, 0, 0));
        };
        constexpr auto systems = static_cast<COLORREF>(-1); // whatever that is at any time
        EXPECT_EQ(color_of(TVM_GETBKCOLOR), systems);
        EXPECT_EQ(color_of(TVM_GETTEXTCOLOR), systems);
        run(hands, form, [&] {
            form.Tree.set_back_color(0xC0F0C0);
            form.Tree.set_fore_color(color::red);
        });
        EXPECT_EQ(color_of(TVM_GETBKCOLOR), COLORREF{0xC0F0C0});
        EXPECT_EQ(color_of(TVM_GETTEXTCOLOR), COLORREF{0xFF});
        run(hands, form, [&] { form.Tree.set_back_color(color::button_face); });
        EXPECT_EQ(color_of(TVM_GETBKCOLOR), GetSysColor(COLOR_BTNFACE));
    });
}

TEST_F(TreeTest, RowsAndIndentsGrowWithTheScale) {
    TreeForm form(environment);
    show_food(form, [&](Hands&, HWND tree) {
        const auto row_height = [&] { return SendMessageW(tree, TVM_GETITEMHEIGHT, 0, 0); };
        const auto indent = [&] { return SendMessageW(tree, TVM_GETINDENT, 0, 0); };
        const LRESULT height = row_height();
        EXPECT_GE(height, 15);
        EXPECT_EQ(indent(), 19);
        for (const int dpi : {192, 96}) {
            const RECT proposed{10, 10, 500, 500};
            SendMessageW(GetParent(tree), WM_DPICHANGED, MAKEWPARAM(dpi, dpi),
                         reinterpret_cast<LPARAM>(&proposed));
            EXPECT_NEAR(static_cast<double>(row_height()), static_cast<double>(height * dpi / 96),
                        dpi / 32.0);
            EXPECT_EQ(indent(), 19 * dpi / 96);
        }
    });
}

TEST_F(TreeTest, ATreeThatIsFilledWhileItIsHiddenStaysHidden) {
    TreeForm form(environment);
    show_food(form, [&](Hands& hands, HWND tree) {
        run(hands, form, [&] { form.Tree.set_visible(false); });
        run(hands, form, [&] { form.Tree.add("more", "More"); });
        EXPECT_FALSE(IsWindowVisible(tree));
        run(hands, form, [&] { form.Tree.set_visible(true); });
        EXPECT_TRUE(IsWindowVisible(tree));
        EXPECT_EQ(count(tree), 3);
        run(hands, form, [&] { form.Tree.set_place({20, 30, 100, 110}); });
        RECT place{};
        GetWindowRect(tree, &place);
        MapWindowPoints(nullptr, GetParent(tree), reinterpret_cast<POINT*>(&place), 2);
        const RECT wanted{20, 30, 120, 140};
        EXPECT_TRUE(EqualRect(&place, &wanted));
    });
}

} // namespace brx::checks
