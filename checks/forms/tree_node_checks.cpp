#include "one_tree.h"

using namespace brx;
using namespace brx::checks;

namespace {
struct TreeNodes : testing::Test, OneTree {};
} // namespace

TEST_F(TreeNodes, NodesLieInTheOrderInWhichTheyWereAdded) {
    add_food();
    TreeNode& fruit = tree.node("fruit");
    EXPECT_EQ(tree.first(), &fruit);
    EXPECT_EQ(fruit.previous(), nullptr);
    EXPECT_EQ(fruit.parent(), nullptr);
    EXPECT_EQ(fruit.next()->text(), "Spice");
    EXPECT_EQ(fruit.next()->next(), nullptr);
    EXPECT_EQ(fruit.child()->text(), "Apple");
    EXPECT_EQ(fruit.child()->next()->text(), "Pear");
    EXPECT_EQ(fruit.child()->next()->previous(), fruit.child());
    EXPECT_EQ(fruit.child()->parent(), &fruit);
    EXPECT_EQ(TreeView::depth(tree.node("core")), 2);
    EXPECT_EQ(fruit.index(), 1);
    EXPECT_EQ(tree.node(4).text(), "Core");
    EXPECT_EQ(tree.node(5).text(), "Spice");
    EXPECT_EQ(fruit.tag(), "");
    fruit.set_tag("kept");
    EXPECT_EQ(tree.node(1).tag(), "kept");
}

TEST_F(TreeNodes, AKeyIsUniqueInTheWholeTreeAndComparedExactly) {
    add_food();
    EXPECT_EQ(number_of_error([&] { tree.add("apple", "Another"); }), 35602);
    EXPECT_EQ(number_of_error([&] { tree.add_child(tree.node("spice"), "apple", "Another"); }), 35602);
    EXPECT_EQ(tree.node("spice").child(), nullptr) << "Nothing was added.";
    EXPECT_EQ(tree.node("spice").index(), 5);
    EXPECT_EQ(tree.add("Apple", "Another").index(), 6);
    tree.add("", "without a key");
    tree.add("", "without a key");
}

TEST_F(TreeNodes, AKeyOrNumberThatIsNotThereIsAnError) {
    add_food();
    EXPECT_EQ(number_of_error([&] { static_cast<void>(tree.node("plum")); }), 35601);
    EXPECT_EQ(number_of_error([&] { static_cast<void>(tree.node("")); }), 35601);
    EXPECT_EQ(number_of_error([&] { static_cast<void>(tree.node("FRUIT")); }), 35601);
    for (const int index : {0, -1, 6})
        EXPECT_EQ(number_of_error([&] { static_cast<void>(tree.node(index)); }), 35600) << index;
    tree.remove(tree.node("pear"));
    EXPECT_EQ(number_of_error([&] { static_cast<void>(tree.node("pear")); }), 35601);
    EXPECT_EQ(number_of_error([&] { static_cast<void>(tree.node("core")); }), 35601) << "It went along.";
    EXPECT_EQ(number_of_error([&] { static_cast<void>(tree.node(4)); }), 35600);
}

TEST_F(TreeNodes, ANumberIsNotUsedAgainBeforeTheTreeIsClearedAndAKeyIsFreeAtOnce) {
    add_food();
    tree.remove(tree.node("spice"));
    EXPECT_EQ(tree.add("spice", "Spice").index(), 6);
    tree.clear();
    EXPECT_EQ(tree.first(), nullptr);
    EXPECT_EQ(tree.add("fruit", "Fruit").index(), 1);
}

TEST_F(TreeNodes, RemovingANodeLinksItsNeighbours) {
    for (const char* key : {"a", "b", "c"}) tree.add(key, key);
    tree.remove(tree.node("b"));
    EXPECT_EQ(tree.node("a").next(), &tree.node("c"));
    EXPECT_EQ(tree.node("c").previous(), &tree.node("a"));
    tree.remove(tree.node("c"));
    EXPECT_EQ(tree.add("d", "d").previous(), &tree.node("a"));
    tree.remove(tree.node("a"));
    EXPECT_EQ(tree.first(), &tree.node("d"));
    EXPECT_EQ(tree.node("d").previous(), nullptr);
}

TEST_F(TreeNodes, RemovingANodeElsewhereLeavesTheSelectionAlone) {
    while_open([&] {
        add_food();
        tree.select(&tree.node("core"));
        tree.remove(tree.node("spice"));
        tree.remove(tree.node("apple"));
        EXPECT_EQ(selected(), "Core");
    });
}

TEST_F(TreeNodes, WhenTheSelectedNodeGoesANeighbourOrItsParentIsSelectedAndNothingFires) {
    while_open([&] {
        add_food();
        tree.select(&tree.node("apple"));
        tree.remove(tree.node("apple"));
        EXPECT_EQ(selected(), "Pear");
        tree.select(&tree.node("core"));
        tree.remove(tree.node("core"));
        EXPECT_EQ(selected(), "Pear") << "The parent.";
        tree.add_child(tree.node("pear"), "core", "Core");
        tree.select(&tree.node("core"));
        tree.remove(tree.node("fruit"));
        EXPECT_EQ(selected(), "Spice") << "It went along with what was removed.";
        tree.add("last", "Last");
        tree.select(&tree.node("last"));
        tree.remove(tree.node("last"));
        EXPECT_EQ(selected(), "Spice") << "The one before.";
        tree.remove(tree.node("spice"));
        EXPECT_EQ(selected(), "none");
        EXPECT_EQ(form.events, "");
    });
}

TEST_F(TreeNodes, CodeSelectsAndClearsWithoutAnEvent) {
    while_open([&] {
        add_food();
        tree.select(&tree.node("core"));
        EXPECT_EQ(selected(), "Core");
        tree.select(nullptr);
        EXPECT_EQ(selected(), "none");
        tree.select(&tree.node("core"));
        tree.clear();
        EXPECT_EQ(selected(), "none");
        EXPECT_EQ(form.events, "");
    });
}

TEST_F(TreeNodes, ATreeOfManyLevelsIsRemovedAtOnce) {
    TreeNode* deepest = &tree.add("", "root");
    for (int i = 0; i < 200'000; ++i) deepest = &tree.add_child(*deepest, "", "x");
    tree.remove(*tree.first());
    EXPECT_EQ(tree.first(), nullptr);
}
