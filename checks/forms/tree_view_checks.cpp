#include "one_tree.h"
#include "stand_in.h"

using namespace brx;
using namespace brx::checks;

namespace {

struct TreeViews : testing::Test, OneTree {};

using Deed = TreeView::Change::Kind;

std::vector<std::pair<Deed, int>> changes_of(TreeView& tree) {
    std::vector<std::pair<Deed, int>> all;
    for (const TreeView::Change& each : tree.take_changes()) all.emplace_back(each.kind, each.index);
    return all;
}
using Changes = std::vector<std::pair<Deed, int>>;

} // namespace

TEST_F(TreeViews, AreDrawnByTheCodesOfTheHostLanguage) {
    EXPECT_EQ(static_cast<int>(LabelEdit::automatic), 0);
    EXPECT_EQ(static_cast<int>(LabelEdit::manual), 1);
    EXPECT_EQ(static_cast<int>(LineStyle::tree_lines), 0);
    EXPECT_EQ(static_cast<int>(LineStyle::root_lines), 1);
    EXPECT_EQ(static_cast<int>(TreeStyle::text_only), 0);
    EXPECT_EQ(static_cast<int>(TreeStyle::plus_minus_text), 2);
    EXPECT_EQ(static_cast<int>(TreeStyle::tree_lines_text), 4);
    EXPECT_EQ(static_cast<int>(TreeStyle::tree_lines_plus_minus_text), 6);
}

TEST_F(TreeViews, WithoutASelectionNoneIsRead) {
    while_open([&] {
        add_food();
        tree.select(&tree.node("spice"));
        Reading seen = tree.read();
        EXPECT_EQ(seen.text, "Spice");
        tree.select(nullptr);
        seen.lines = {"as they were"};
        tree.read(Aspect::selection, seen);
        EXPECT_EQ(seen.lines, (Notes{"as they were"}));
        EXPECT_EQ(seen.text, "");
        seen.text = "as it was";
        tree.read(Aspect::colors, seen);
        EXPECT_EQ(seen.text, "as it was");
        EXPECT_EQ(seen.selected, -1);
    });
}

TEST_F(TreeViews, ATreeThatIsShownAgainIsSeenAsItWasDesigned) {
    while_open([&] { tree.set_visible(false); });
    while_open([&] { EXPECT_TRUE(tree.visible()); });
}

TEST_F(TreeViews, ANodeWithoutChildrenCannotBeOpened) {
    while_open([&] {
        add_food();
        EXPECT_FALSE(tree.user_expand(tree.node("spice")));
        tree.user_expand(tree.node("fruit"));
        tree.user_expand(tree.node("pear"));
        form.events.clear();
        tree.remove(tree.node("core"));
        EXPECT_FALSE(tree.node("pear").expanded()) << "With the last child it has closed.";
        tree.add_child(tree.node("pear"), "core", "Core");
        EXPECT_TRUE(tree.user_expand(tree.node("pear")));
        EXPECT_EQ(form.events, "Expand Pear. ");
    });
}

TEST_F(TreeViews, RowsAreTheNodesInViewWithTheirSigns) {
    while_open([&] {
        EXPECT_EQ(tree.read().lines, Notes{});
        add_food();
        EXPECT_EQ(tree.read().lines, (Notes{"+Fruit", " Spice"}));
        tree.user_expand(tree.node("fruit"));
        EXPECT_EQ(tree.read().lines, (Notes{"-Fruit", "   Apple", "  +Pear", " Spice"}));
        EXPECT_EQ(tree.read(2).lines, (Notes{"-Fruit", "   Apple"}));
        EXPECT_EQ(row_of(tree, &tree.node("spice")), 3);
        EXPECT_EQ(row_of(tree, &tree.node("core")), -1);
        EXPECT_EQ(row_of(tree, nullptr), -1);
        EXPECT_EQ(node_at(tree, 2), &tree.node("pear"));
        EXPECT_EQ(node_at(tree, 4), nullptr);
        EXPECT_EQ(node_at(tree, -1), nullptr);
    });
}

TEST_F(TreeViews, AnEngineIsToldInOrderWhatHappenedToTheNodesThatItShows) {
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
        tree.add("told of by reading everything", "Other");
        tree.forget_changes();
        EXPECT_EQ(changes_of(tree), Changes{});
        tree.add("more", "More");
        window.seen = Aspect::none;
        tree.clear();
        tree.add("new", "New");
        tree.flush();
        EXPECT_TRUE(has(window.seen, Aspect::selection)) << "The selected node went.";
        EXPECT_EQ(changes_of(tree), (Changes{{Deed::cleared, 0}, {Deed::added, 1}}));
    });
}

TEST_F(TreeViews, EachShowingStartsWithAnEmptyTreeInItsDesignState) {
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

TEST_F(TreeViews, OtherLinesAndSignsAreShownWithoutAnEvent) {
    while_open([&] {
        StandIn window(tree);
        tree.set_style(TreeStyle::plus_minus_text);
        tree.flush();
        EXPECT_TRUE(has(window.seen, Aspect::value));
        window.seen = Aspect::none;
        tree.set_style(TreeStyle::plus_minus_text);
        tree.flush();
        EXPECT_EQ(window.seen, Aspect::none) << "It is so already.";
        EXPECT_EQ(form.events, "");
    });
}
