#include "browse/dlgItemSelect.h"
#include "forms/one_form.h"

#include <gtest/gtest.h>

using namespace brx;
using namespace brx::checks;

// What the item browser does for its caller beside the public class, and what nobody sees of its tree.

namespace {

struct ItemForm : testing::Test {
    ItemForm() {
        FakeBranch& line = host.browser->root.has("Line1", {"Speed"});
        line.has("Oven").has("Door");
        host.browser->root.has("Line2");
        host.group->items->answers["Line1.Speed"] = 0;
        form.set_OPCServer(host.connection);
        form.set_OPCGroup(host.group);
    }

    FakeHost host;
    ScriptedEngine engine;
    Environment environment{engine, host, host, Locale{}};
    dlgItemSelect form{environment};

    template <class Which> Which& find(const std::string& name) { return control_of<Which>(form, name); }
    TreeView& tree() { return find<TreeView>("TrView"); }

    /// Shows the form with a person before it who does this.
    void while_open(const std::function<void()>& story) {
        engine.while_open = [=, this](Form& shown) {
            const ModalTurn waiting(&shown);
            story();
        };
        form.show_modal();
    }
    void press(const char* button) { EXPECT_TRUE(find<Button>(button).user_click()); }
    void enter(const char* text) { EXPECT_TRUE(find<TextBox>("txtFullPath").user_text(text)); }
};

} // namespace

TEST_F(ItemForm, HasItsOwnHelpTopic) {
    while_open([&] { EXPECT_EQ(form.help_topic(), 197); });
}

TEST_F(ItemForm, KeysAndTagsAreTheWholePath) {
    while_open([&] {
        EXPECT_TRUE(tree().user_expand(tree().node("Line1")));
        const TreeNode& oven = tree().node("Line1.Oven");
        EXPECT_EQ(oven.text(), "Oven");
        EXPECT_EQ(oven.tag(), "Line1.Oven");
        EXPECT_EQ(tree().node("Line1").tag(), "Line1");
        EXPECT_TRUE(tree().user_expand(tree().node("Line1.Oven")));
        EXPECT_EQ(tree().node("Line1.Oven.Door").tag(), "Line1.Oven.Door");
    });
}

TEST_F(ItemForm, TheBrowserGetsAPathThatCountsFrom0) {
    while_open([&] {
        EXPECT_TRUE(tree().user_expand(tree().node("Line1")));
        EXPECT_EQ(host.browser->lower_bound, 0);
    });
}

TEST_F(ItemForm, AnUnreadBranchHasOnePlaceholderWithoutAKey) {
    while_open([&] {
        const TreeNode* under_root = tree().node("Line1").child();
        ASSERT_NE(under_root, nullptr);
        EXPECT_EQ(under_root->text(), "xxx");
        EXPECT_EQ(under_root->key(), "");
        EXPECT_EQ(under_root->next(), nullptr);
        EXPECT_TRUE(tree().user_expand(tree().node("Line1")));
        const TreeNode* deeper = tree().node("Line1.Oven").child();
        ASSERT_NE(deeper, nullptr);
        EXPECT_EQ(deeper->text(), "XXX");
        EXPECT_EQ(deeper->key(), "");
    });
}

TEST_F(ItemForm, TheTreeShowsLinesAndSignsFromTheRootOnAndItsTextsStay) {
    while_open([&] {
        EXPECT_EQ(tree().label_edit(), LabelEdit::manual);
        EXPECT_EQ(tree().line_style(), LineStyle::root_lines);
        EXPECT_EQ(tree().style(), TreeStyle::tree_lines_plus_minus_text);
    });
}

TEST_F(ItemForm, ThePanelCoversTheTreeOnlyWhereThereIsNothingToBrowse) {
    while_open([&] {
        EXPECT_FALSE(find<Panel>("picTrView").in_front());
        EXPECT_EQ(find<ListBox>("lstItem").back_color(), color::window);
        host.browser->root.branches.clear();
        press("cmdRefresh");
        EXPECT_TRUE(find<Panel>("picTrView").in_front());
        EXPECT_EQ(find<Panel>("picTrView").place(), tree().place());
        EXPECT_EQ(find<ListBox>("lstItem").back_color(), color::button_face);
        host.browser->root.has("Line1");
        press("cmdRefresh");
        EXPECT_FALSE(find<Panel>("picTrView").in_front());
        EXPECT_EQ(find<ListBox>("lstItem").back_color(), color::window);
    });
}

TEST_F(ItemForm, WithoutAGroupNoItemIsEverAccepted) {
    form.set_OPCGroup(nullptr);
    while_open([&] {
        enter("Line1.Speed");
        press("bnOK");
        EXPECT_TRUE(form.loaded());
        EXPECT_FALSE(form.OkClicked());
    });
    EXPECT_TRUE(host.group->items->validations.empty());
    EXPECT_TRUE(host.reports.empty());
}

TEST_F(ItemForm, WithoutAServerItReportsAndStaysEmpty) {
    form.set_OPCServer(nullptr);
    while_open([&] { EXPECT_EQ(tree().first(), nullptr); });
    ASSERT_EQ(host.reports.size(), 1U);
    EXPECT_EQ(host.reports[0].what.number, error::object_not_set);
    EXPECT_EQ(host.reports[0].what.location, "dlgItemSelect.Form_Load");
}

TEST_F(ItemForm, AcceptingGivesTheItemAndCancellingGivesNone) {
    while_open([&] {
        enter("Line1.Speed");
        press("bnOK");
        EXPECT_FALSE(form.loaded());
    });
    EXPECT_TRUE(form.OkClicked());
    EXPECT_EQ(form.Leaf(), "Line1.Speed");

    form.set_OPCServer(host.connection);
    form.set_OPCGroup(host.group);
    while_open([&] {
        EXPECT_FALSE(form.OkClicked());
        press("bnCancel");
        EXPECT_FALSE(form.loaded());
    });
    EXPECT_FALSE(form.OkClicked());
    EXPECT_EQ(form.Leaf(), "");
}

TEST_F(ItemForm, ARefusedItemIsForgottenUntilTheEntryChanges) {
    while_open([&] {
        enter("Nothing");
        EXPECT_EQ(form.Leaf(), "Nothing");
        press("bnOK");
        EXPECT_EQ(form.Leaf(), "");
        EXPECT_FALSE(form.OkClicked());
        enter("Line1");
        EXPECT_EQ(form.Leaf(), "Line1");
        enter("");
        EXPECT_EQ(form.Leaf(), "Line1");
    });
    EXPECT_EQ(form.Leaf(), "Line1");
}

TEST_F(ItemForm, SearchingFindsALeafInWhateverLetterCase) {
    while_open([&] {
        form.set_Leaf("line1.SPEED");
        host.browser->root.branches[1].leaves = {"Count"};
        const int before = host.calls.count("OPCBrowser.Item(2)");
        EXPECT_TRUE(form.SearchForPath(false));
        EXPECT_EQ(host.calls.count("OPCBrowser.Item(2)"), before) << "It was found before that.";
        form.set_Leaf("Line1.Spee");
        EXPECT_FALSE(form.SearchForPath(false));
        EXPECT_EQ(find<TextBox>("txtFullPath").text(), "");
        EXPECT_FALSE(form.SearchForPath(true));
        EXPECT_EQ(find<TextBox>("txtFullPath").text(), "Line1.Spee");
    });
}

TEST_F(ItemForm, SearchingWithoutABrowserFindsNothing) {
    host.connection->can_browse = false;
    while_open([&] {
        form.set_Leaf("Line1.Speed");
        EXPECT_FALSE(form.SearchForPath(false));
        EXPECT_FALSE(form.SearchForPath(true));
        EXPECT_EQ(find<TextBox>("txtFullPath").text(), "");
    });
}

TEST_F(ItemForm, AServerThatTurnsFlatListsEveryLeafWhenABranchIsExpanded) {
    while_open([&] {
        host.browser->organization = 2;
        EXPECT_TRUE(tree().user_expand(tree().node("Line1")));
        EXPECT_EQ(find<ListBox>("lstItem").text(0), "Line1.Speed");
        EXPECT_FALSE(tree().visible());
    });
}

TEST_F(ItemForm, AServerThatTurnsFlatKeepsItsLeavesListedWhereASignWasPressed) {
    while_open([&] {
        host.browser->organization = 2;
        EXPECT_TRUE(tree().user_toggle(tree().node("Line1")));
        EXPECT_EQ(find<ListBox>("lstItem").text(0), "Line1.Speed");
        EXPECT_FALSE(tree().visible());
    });
}

TEST_F(ItemForm, APressOnASignWhileNoBranchIsSelectedIsNoError) {
    while_open([&] {
        EXPECT_TRUE(tree().user_expand(tree().node("Line1")));
        tree().select(nullptr);
        EXPECT_TRUE(tree().user_toggle(tree().node("Line1")));
        EXPECT_FALSE(tree().node("Line1").expanded());
    });
    EXPECT_TRUE(host.reports.empty());
}

TEST_F(ItemForm, ManyLeavesAreReadWithOneCallEach) {
    std::vector<std::string>& leaves = host.browser->root.branches[1].leaves;
    for (int i = 0; i < 20'000; ++i) leaves.push_back("Tag" + std::to_string(i));
    while_open([&] {
        const std::size_t before = host.calls.made().size();
        EXPECT_TRUE(tree().user_select(tree().node("Line2")));
        EXPECT_EQ(host.calls.made().size() - before, 20'004U);
        EXPECT_EQ(find<ListBox>("lstItem").count(), 20'000);
        EXPECT_EQ(find<ListBox>("lstItem").text(19'999), "Tag19999");
    });
}
