// What a person does to a tree, and what becomes of it.

#include "rules/rule.h"
#include "rules/tree_form.h"

#include <vector>

namespace brx::checks {

namespace {

const Lines closed = {"+Fruit", " Spice"};
const Lines open = {"-Fruit", "   Apple", "  +Pear", " Spice"};

class Trees : public RuleOf<TreeForm> {
protected:
    Trees() {
        form().on_load = [this] { form().add_food(); };
    }
    Lines rows() { return screen().look("Tree").lines; }
    std::string selected() { return screen().look("Tree").text; }
    TreeView& tree() { return form().Tree; }
};

} // namespace

TEST_F(Trees, AClickOnANodeSelectsItAndTellsSoEachTime) {
    while_open([&] {
        for (int times = 0; times < 2; ++times) {
            person.clicks_node("Tree", "Spice");
            EXPECT_EQ(told(), "NodeClick Spice. Click. ");
            EXPECT_EQ(selected(), "Spice");
        }
        person.clicks_node("Tree", "Fruit");
        EXPECT_EQ(tree().selected(), &tree().node("fruit"));
    });
}

TEST_F(Trees, AClickOnTheSignOpensOrClosesAndThenTellsOfAClick) {
    while_open([&] {
        person.hits(Key::tab);
        person.expands("Tree", "Fruit");
        EXPECT_EQ(rows(), open);
        EXPECT_EQ(told(), "Expand Fruit. Click. ");
        EXPECT_EQ(selected(), "");
        EXPECT_EQ(focused(), "Tree");
        person.clicks_node("Tree", "Apple");
        told();
        form().on_click = [&] { EXPECT_EQ(tree().selected(), &tree().node("fruit")); };
        person.collapses("Tree", "Fruit");
        EXPECT_EQ(rows(), closed);
        EXPECT_EQ(told(), "Click. ");
        EXPECT_EQ(selected(), "Fruit") << "The selection moved up with it.";
    });
}

TEST_F(Trees, ADoubleClickOnANodeClicksItAndThenOpensOrClosesIt) {
    while_open([&] {
        EXPECT_TRUE(screen().double_click("Tree", 0));
        EXPECT_EQ(told(), "NodeClick Fruit. Click. Expand Fruit. Click. ");
        EXPECT_EQ(rows(), open);
        EXPECT_TRUE(screen().double_click("Tree", 0));
        EXPECT_EQ(told(), "NodeClick Fruit. Click. Click. ");
        EXPECT_EQ(rows(), closed);
        EXPECT_TRUE(screen().double_click("Tree", 1));
        EXPECT_EQ(told(), "NodeClick Spice. Click. ");
    });
}

TEST_F(Trees, TheFocusAloneSelectsNothing) {
    while_open([&] {
        EXPECT_EQ(focused(), "Tree");
        person.hits(Key::tab);
        person.hits(Key::tab);
        EXPECT_EQ(focused(), "Tree");
        EXPECT_EQ(selected(), "");
        EXPECT_EQ(told(), "");
        person.hits(Key::down);
        EXPECT_EQ(told(), "NodeClick Fruit. ") << "The first key comes to the first node.";
    });
}

TEST_F(Trees, TheKeysMoveTheSelection) {
    form().on_load = [this] {
        for (int i = 0; i < 30; ++i) tree().add("", "Node " + std::to_string(i));
        tree().select(tree().first());
    };
    while_open([&] {
        const auto after = [&](Key key) {
            person.hits(key);
            return selected();
        };
        EXPECT_EQ(after(Key::up), "Node 0");
        EXPECT_EQ(told(), "") << "It was there.";
        EXPECT_EQ(after(Key::down), "Node 1");
        EXPECT_EQ(after(Key::down), "Node 2");
        EXPECT_EQ(after(Key::up), "Node 1");
        EXPECT_EQ(after(Key::end), "Node 29");
        EXPECT_EQ(after(Key::home), "Node 0");
        EXPECT_EQ(
            told(),
            "NodeClick Node 1. NodeClick Node 2. NodeClick Node 1. NodeClick Node 29. NodeClick Node 0. ");
    });
}

TEST_F(Trees, TheKeysOpenAndCloseNodes) {
    while_open([&] {
        person.clicks_node("Tree", "Fruit");
        told();
        for (const auto& [opens, closes] : {std::pair{Key::right, Key::left}, {Key::plus, Key::minus}}) {
            person.hits(opens);
            EXPECT_EQ(rows(), open);
            person.hits(closes);
            EXPECT_EQ(rows(), closed);
            EXPECT_EQ(told(), "Expand Fruit. ");
        }
        person.hits(Key::right);
        for (int times = 0; times < 2; ++times) {
            person.hits(Key::right);
            EXPECT_EQ(selected(), "Apple") << "Into an open node, and no further.";
        }
        person.hits(Key::left);
        EXPECT_EQ(selected(), "Fruit") << "Out of it.";
        EXPECT_EQ(told(), "Expand Fruit. NodeClick Apple. NodeClick Fruit. ");
    });
}

TEST_F(Trees, TheSpaceBarClicksTheSelectedNode) {
    while_open([&] {
        EXPECT_EQ(focused(), "Tree");
        screen().key(Key::space);
        EXPECT_EQ(told(), "") << "None is selected.";
        person.hits(Key::down);
        person.hits(Key::right);
        told();
        person.hits(Key::space);
        EXPECT_EQ(told(), "NodeClick Fruit. Click. ");
        EXPECT_EQ(selected(), "Fruit");
        EXPECT_EQ(rows(), open);
    });
}

TEST_F(Trees, ABlankWithinWhatIsTypedClicksNothing) {
    form().on_load = [this] {
        for (const char* each : {"Head", "Head 1", "Head 2"}) tree().add("", each);
        tree().select(tree().first());
    };
    while_open([&] {
        person.types("head 2");
        // Some systems leave the blank out of what they look for (Wine).
        EXPECT_EQ(told().find(" Click. "), std::string::npos);
    });
}

TEST_F(Trees, TypingGoesToTheNodeThatBeginsSo) {
    while_open([&] {
        person.clicks_node("Tree", "Fruit");
        for (const Key each : {Key::plus, Key::minus}) person.hits(each); // no part of what is typed
        told();
        person.types("sp");
        EXPECT_EQ(told(), "NodeClick Spice. ");
    });
}

TEST_F(Trees, EnterPressesTheDefaultButtonAndTabLeavesTheTree) {
    while_open([&] {
        person.clicks_node("Tree", "Spice");
        told();
        person.hits(Key::enter);
        EXPECT_EQ(told(), "Press. ");
        person.hits(Key::tab);
        EXPECT_EQ(focused(), "Press");
        EXPECT_EQ(selected(), "Spice");
    });
}

TEST_F(Trees, ExpandFiresBeforeTheChildrenShow) {
    while_open([&] {
        form().on_expand = [&](TreeNode& node) {
            EXPECT_FALSE(node.expanded());
            EXPECT_FALSE(TreeView::in_view(*node.child()));
        };
        person.expands("Tree", "Fruit");
        EXPECT_TRUE(TreeView::in_view(tree().node("apple")));
        EXPECT_FALSE(TreeView::in_view(tree().node("core")));
    });
}

TEST_F(Trees, AnExpandHandlerMayReplaceOrRemoveWhatThereWasToShow) {
    while_open([&] {
        form().on_expand = [&](TreeNode& node) {
            tree().remove(*node.child());
            tree().add_child(node, "plum", "Plum");
        };
        person.expands("Tree", "Fruit");
        EXPECT_EQ(rows(), (Lines{"-Fruit", "  +Pear", "   Plum", " Spice"}));
        form().on_expand = [&](TreeNode& node) { tree().remove(*node.child()); };
        person.expands("Tree", "Pear");
        EXPECT_FALSE(tree().node("pear").expanded()) << "Nothing is left to show.";
        EXPECT_EQ(rows(), (Lines{"-Fruit", "   Pear", "   Plum", " Spice"}));
        person.collapses("Tree", "Fruit");
        form().on_expand = [&](TreeNode& node) { tree().remove(node); };
        person.expands("Tree", "Fruit");
        EXPECT_EQ(rows(), (Lines{" Spice"}));
    });
}

TEST_F(Trees, WhatWasOpenWithinAClosedNodeIsSoStill) {
    while_open([&] {
        person.expands("Tree", "Fruit");
        person.expands("Tree", "Pear");
        code([&] { tree().select(&tree().node("core")); });
        told();
        person.collapses("Tree", "Fruit");
        EXPECT_EQ(selected(), "Fruit") << "The selection moves up without a word.";
        person.expands("Tree", "Fruit");
        EXPECT_EQ(rows(), (Lines{"-Fruit", "   Apple", "  -Pear", "     Core", " Spice"}));
        EXPECT_EQ(told(), "Click. Expand Fruit. Click. ");
    });
}

TEST_F(Trees, APressOnASignClicksNothingWhereItsHandlerTookTheTreeAway) {
    for (const Story& take_away :
         {Story([&] { tree().set_visible(false); }), Story([&] { tree().set_enabled(false); }),
          Story([&] { form().unload(); })}) {
        form().on_expand = [&](TreeNode&) { take_away(); };
        while_open([&] {
            person.expands("Tree", "Fruit");
            EXPECT_EQ(told(), "Expand Fruit. ");
        });
    }
}

TEST_F(Trees, ADisabledTreeTakesNoInput) {
    while_open([&] {
        code([&] { tree().set_enabled(false); });
        EXPECT_EQ(focused(), "Press");
        EXPECT_FALSE(screen().choose("Tree", 1));
        EXPECT_FALSE(screen().expand("Tree", 0));
        EXPECT_EQ(told(), "");
        code([&] { tree().set_enabled(true); });
        person.clicks_node("Tree", "Spice");
        EXPECT_EQ(told(), "NodeClick Spice. Click. ");
    });
}

} // namespace brx::checks
