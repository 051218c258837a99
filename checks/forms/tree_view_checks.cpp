#include "one_tree.h"
#include "stand_in.h"

using namespace brx;
using namespace brx::checks;

namespace {

struct Trees : testing::Test, OneTree {};

using Deed = TreeView::Change::Kind;

std::vector<std::pair<Deed, int>> changes_of(TreeView& tree) {
    std::vector<std::pair<Deed, int>> all;
    for (const TreeView::Change& each : tree.take_changes()) all.emplace_back(each.kind, each.index);
    return all;
}
using Changes = std::vector<std::pair<Deed, int>>;

} // namespace

TEST_F(Trees, AreDrawnByTheCodesOfTheHostLanguage) {
    EXPECT_EQ(static_cast<int>(LabelEdit::automatic), 0);
    EXPECT_EQ(static_cast<int>(LabelEdit::manual), 1);
    EXPECT_EQ(static_cast<int>(LineStyle::tree_lines), 0);
    EXPECT_EQ(static_cast<int>(LineStyle::root_lines), 1);
    EXPECT_EQ(static_cast<int>(TreeStyle::text_only), 0);
    EXPECT_EQ(static_cast<int>(TreeStyle::plus_minus_text), 2);
    EXPECT_EQ(static_cast<int>(TreeStyle::tree_lines_text), 4);
    EXPECT_EQ(static_cast<int>(TreeStyle::tree_lines_plus_minus_text), 6);
}

TEST_F(Trees, WithoutASelectionNoneIsRead) {
    while_open([&] {
        add_food();
        tree.select(&tree.node("spice"));
        Reading seen = tree.read();
        EXPECT_EQ(seen.text, "Spice");
        tree.select(nullptr);
        tree.read(Aspect::selection, seen);
        EXPECT_EQ(seen.selected, -1);
        EXPECT_EQ(seen.text, "");
    });
}

TEST_F(Trees, ATreeThatIsShownAgainIsSeenAsItWasDesigned) {
    while_open([&] { tree.set_visible(false); });
    while_open([&] { EXPECT_TRUE(tree.visible()); });
}

TEST_F(Trees, AClickFiresNodeClickAndThenClickEachTime) {
    while_open([&] {
        add_food();
        EXPECT_TRUE(tree.user_click(tree.node("spice")));
        EXPECT_EQ(form.notes, (Notes{"NodeClick Spice", "Click"}));
        EXPECT_EQ(selected(), "Spice");
        EXPECT_TRUE(tree.user_click(tree.node("spice")));
        EXPECT_EQ(form.notes, (Notes{"NodeClick Spice", "Click", "NodeClick Spice", "Click"}));
    });
}

TEST_F(Trees, TheKeyboardFiresNodeClickWhenItComesToAnotherNode) {
    while_open([&] {
        add_food();
        EXPECT_TRUE(tree.user_select(tree.node("spice")));
        EXPECT_TRUE(tree.user_select(tree.node("spice")));
        EXPECT_EQ(form.notes, (Notes{"NodeClick Spice"}));
    });
}

TEST_F(Trees, ExpandFiresBeforeTheChildrenShow) {
    while_open([&] {
        add_food();
        form.on_expand = [&](TreeNode& node) {
            EXPECT_FALSE(node.expanded());
            EXPECT_FALSE(TreeView::in_view(*node.child()));
        };
        EXPECT_TRUE(tree.user_expand(tree.node("fruit")));
        EXPECT_TRUE(tree.node("fruit").expanded());
        EXPECT_TRUE(TreeView::in_view(tree.node("apple")));
        EXPECT_FALSE(TreeView::in_view(tree.node("core")));
        EXPECT_TRUE(tree.user_expand(tree.node("fruit"))) << "It is open already.";
        EXPECT_EQ(form.notes, (Notes{"Expand Fruit"}));
        EXPECT_EQ(selected(), "none") << "Only code selects here.";
    });
}

TEST_F(Trees, AnExpandHandlerMayReplaceOrRemoveWhatThereWasToShow) {
    while_open([&] {
        add_food();
        form.on_expand = [&](TreeNode& node) {
            tree.remove(*node.child());
            tree.add_child(node, "plum", "Plum");
        };
        EXPECT_TRUE(tree.user_expand(tree.node("fruit")));
        EXPECT_EQ(tree.read().lines, (Notes{"-Fruit", "  +Pear", "   Plum", " Spice"}));
        form.on_expand = [&](TreeNode& node) { tree.remove(*node.child()); };
        tree.user_expand(tree.node("pear"));
        EXPECT_FALSE(tree.node("pear").expanded()) << "Nothing is left to show.";
        EXPECT_EQ(tree.read().lines, (Notes{"-Fruit", "   Pear", "   Plum", " Spice"}));
        tree.user_collapse(tree.node("fruit"));
        form.on_expand = [&](TreeNode& node) { tree.remove(node); };
        tree.user_expand(tree.node("fruit"));
        EXPECT_EQ(tree.read().lines, (Notes{" Spice"}));
    });
}

TEST_F(Trees, ANodeWithoutChildrenCannotBeOpened) {
    while_open([&] {
        add_food();
        EXPECT_FALSE(tree.user_expand(tree.node("spice")));
        tree.user_expand(tree.node("fruit"));
        tree.user_expand(tree.node("pear"));
        form.notes.clear();
        tree.remove(tree.node("core"));
        EXPECT_FALSE(tree.node("pear").expanded()) << "With the last child it has closed.";
        tree.add_child(tree.node("pear"), "core", "Core");
        EXPECT_TRUE(tree.user_expand(tree.node("pear")));
        EXPECT_EQ(form.notes, (Notes{"Expand Pear"}));
    });
}

TEST_F(Trees, ClosingANodeMovesASelectionBelowItUpToItWithoutAnEvent) {
    while_open([&] {
        add_food();
        tree.user_expand(tree.node("fruit"));
        tree.user_expand(tree.node("pear"));
        form.notes.clear();
        tree.select(&tree.node("core"));
        EXPECT_TRUE(tree.user_collapse(tree.node("fruit")));
        EXPECT_EQ(selected(), "Fruit");
        tree.select(&tree.node("spice"));
        EXPECT_TRUE(tree.user_collapse(tree.node("fruit"))) << "It is closed already.";
        EXPECT_EQ(selected(), "Spice");
        tree.user_expand(tree.node("fruit"));
        EXPECT_EQ(tree.read().lines, (Notes{"-Fruit", "   Apple", "  -Pear", "     Core", " Spice"}))
            << "What was open within it is so still.";
        EXPECT_EQ(form.notes, (Notes{"Expand Fruit"}));
    });
}

TEST_F(Trees, WhatAPersonDoesNotSeeSheCannotReach) {
    while_open([&] {
        add_food();
        EXPECT_FALSE(tree.user_click(tree.node("apple")));
        EXPECT_FALSE(tree.user_select(tree.node("apple")));
        EXPECT_FALSE(tree.user_expand(tree.node("pear")));
        const auto refused_everything = [&] {
            return !tree.user_click(tree.node("spice")) && !tree.user_select(tree.node("spice")) &&
                   !tree.user_expand(tree.node("fruit"));
        };
        tree.set_enabled(false);
        EXPECT_TRUE(refused_everything());
        tree.set_enabled(true);
        form.frame.set_visible(false);
        EXPECT_TRUE(refused_everything());
        form.frame.set_visible(true);
        form.on_expand = [&](TreeNode&) {
            EXPECT_FALSE(tree.user_click(tree.node("spice"))) << "It is the code's turn.";
            EXPECT_FALSE(tree.user_expand(tree.node("fruit")));
        };
        EXPECT_EQ(form.notes, Notes{});
        EXPECT_TRUE(tree.user_expand(tree.node("fruit")));
        tree.set_enabled(false);
        EXPECT_FALSE(tree.user_collapse(tree.node("fruit")));
        EXPECT_EQ(form.notes, (Notes{"Expand Fruit"}));
    });
}

TEST_F(Trees, RowsAreTheNodesInViewWithTheirSigns) {
    while_open([&] {
        EXPECT_EQ(tree.read().lines, Notes{});
        add_food();
        EXPECT_EQ(tree.read().lines, (Notes{"+Fruit", " Spice"}));
        tree.user_expand(tree.node("fruit"));
        EXPECT_EQ(tree.read().lines, (Notes{"-Fruit", "   Apple", "  +Pear", " Spice"}));
        EXPECT_EQ(row_of(tree, &tree.node("spice")), 3);
        EXPECT_EQ(row_of(tree, &tree.node("core")), -1);
        EXPECT_EQ(row_of(tree, nullptr), -1);
        EXPECT_EQ(node_at(tree, 2), &tree.node("pear"));
        EXPECT_EQ(node_at(tree, 4), nullptr);
        EXPECT_EQ(node_at(tree, -1), nullptr);
    });
}

TEST_F(Trees, AnEngineIsToldInOrderWhatHappenedToTheNodesThatItShows) {
    while_open([&] {
        add_food();
        tree.select(&tree.node("spice"));
        EXPECT_EQ(changes_of(tree), Changes{}) << "Nobody shows it yet.";
        StandIn window(tree);
        tree.add("last", "Last");
        tree.user_expand(tree.node("fruit"));
        EXPECT_TRUE(has(window.seen, Aspect::lines));
        tree.remove(tree.node("pear"));
        tree.user_collapse(tree.node("fruit"));
        tree.user_collapse(tree.node("fruit")); // which changes nothing
        EXPECT_EQ(changes_of(tree),
                  (Changes{{Deed::added, 6}, {Deed::expanded, 1}, {Deed::removed, 3}, {Deed::collapsed, 1}}));
        EXPECT_EQ(changes_of(tree), Changes{}) << "They are told once.";
        tree.add("more", "More");
        window.seen = Aspect::none;
        tree.clear();
        tree.add("new", "New");
        tree.flush();
        EXPECT_TRUE(has(window.seen, Aspect::selection)) << "The selected node went.";
        EXPECT_EQ(changes_of(tree), (Changes{{Deed::cleared, 0}, {Deed::added, 1}}));
    });
}

TEST_F(Trees, EachShowingStartsWithAnEmptyTreeInItsDesignState) {
    while_open([&] {
        EXPECT_EQ(tree.label_edit(), LabelEdit::automatic);
        EXPECT_EQ(tree.line_style(), LineStyle::tree_lines);
        EXPECT_EQ(tree.style(), TreeStyle::tree_lines_plus_minus_text);
        tree.set_label_edit(LabelEdit::manual);
        tree.set_line_style(LineStyle::root_lines);
        tree.set_style(TreeStyle::text_only);
        add_food();
        tree.select(tree.first());
    });
    while_open([&] {
        EXPECT_EQ(tree.first(), nullptr);
        EXPECT_EQ(tree.selected(), nullptr);
        EXPECT_EQ(tree.label_edit(), LabelEdit::automatic);
        EXPECT_EQ(tree.line_style(), LineStyle::tree_lines);
        EXPECT_EQ(tree.style(), TreeStyle::tree_lines_plus_minus_text);
        EXPECT_EQ(tree.add("fruit", "Fruit").index(), 1);
    });
}

TEST_F(Trees, OtherLinesAndSignsAreShownWithoutAnEvent) {
    while_open([&] {
        StandIn window(tree);
        tree.set_style(TreeStyle::plus_minus_text);
        tree.flush();
        EXPECT_TRUE(has(window.seen, Aspect::value));
        window.seen = Aspect::none;
        tree.set_style(TreeStyle::plus_minus_text);
        tree.flush();
        EXPECT_EQ(window.seen, Aspect::none) << "It is so already.";
        EXPECT_EQ(form.notes, Notes{});
    });
}

TEST_F(Trees, APressOnASignOpensOrClosesAndThenClicks) {
    while_open([&] {
        add_food();
        form.on_expand = [&](TreeNode& node) { tree.select(&node); };
        EXPECT_TRUE(tree.user_toggle(tree.node("fruit")));
        EXPECT_EQ(form.notes, (Notes{"Expand Fruit", "Click"}));
        EXPECT_TRUE(tree.node("fruit").expanded());
        tree.select(&tree.node("apple"));
        form.on_click = [&] { EXPECT_EQ(selected(), "Fruit") << "The selection has moved up already."; };
        EXPECT_TRUE(tree.user_toggle(tree.node("fruit")));
        EXPECT_EQ(form.notes, (Notes{"Expand Fruit", "Click", "Click"}));
        EXPECT_FALSE(tree.node("fruit").expanded());
    });
}

TEST_F(Trees, ASignThatIsNotThereCannotBePressed) {
    while_open([&] {
        add_food();
        EXPECT_FALSE(tree.user_toggle(tree.node("spice"))) << "It has nothing below it.";
        EXPECT_FALSE(tree.user_toggle(tree.node("pear"))) << "It is out of sight.";
        tree.set_enabled(false);
        EXPECT_FALSE(tree.user_toggle(tree.node("fruit")));
        EXPECT_EQ(form.notes, Notes{});
    });
}

TEST_F(Trees, APressOnASignClicksNothingWhereItsHandlerTookTheTreeAway) {
    while_open([&] {
        add_food();
        for (const auto& take_away : std::vector<std::function<void()>>{
                 [&] { tree.set_visible(false); }, [&] { form.frame.set_enabled(false); },
                 [&] { form.unload(); }}) {
            form.on_expand = [&](TreeNode&) { take_away(); };
            EXPECT_TRUE(tree.user_toggle(tree.node("fruit")));
            EXPECT_EQ(form.notes, (Notes{"Expand Fruit"}));
            form.notes.clear();
            tree.set_visible(true);
            form.frame.set_enabled(true);
            tree.user_collapse(tree.node("fruit"));
        }
    });
}
