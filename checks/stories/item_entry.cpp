#include "browsing.h"

// The typed item path in the item browser: what is accepted and what the host gets.

using namespace brx;
using namespace brx::checks;

namespace {

const Message no_item = {.text = "Select an Item or type in an item in the text box.",
                         .style = message::exclamation,
                         .title = "No Item"};
const Message unknown_item = {
    .text = "The item is not known to the server.", .style = message::exclamation, .title = "Item Error"};

} // namespace

SCENARIO(ItemEntry, TypingEnablesOKAndEmptyingDisablesIt) {
    a_plant(its);
    const Browsing browsing(its);
    its.person.goes_to("txtFullPath");
    EXPECT_FALSE(its.person.can_press("bnOK"));
    its.person.types("x");
    EXPECT_TRUE(its.person.can_press("bnOK"));
    its.person.hits(Key::backspace);
    EXPECT_FALSE(its.person.can_press("bnOK"));
    its.person.pastes("Line1.Speed");
    EXPECT_TRUE(its.person.can_press("bnOK"));
    its.person.presses("bnCancel");
}

SCENARIO(ItemEntry, AKeyPressLooksAtTheTextBeforeTheKeyTakesEffect) {
    a_plant(its);
    its.host.browser->root.branches[0].leaves = {""};
    const Browsing browsing(its);
    its.person.clicks_node("TrView", "Line1");
    its.person.picks("lstItem", "");
    EXPECT_TRUE(its.person.can_press("bnOK"));
    its.person.goes_to("txtFullPath");
    its.person.hits(Key::backspace); // changes nothing in the empty box
    EXPECT_FALSE(its.person.can_press("bnOK"));
    its.person.presses("bnCancel");
}

SCENARIO(ItemEntry, WhatIsTypedIsAcceptedAsItStandsIfTheServerKnowsIt) {
    a_plant(its);
    its.host.group->items->answers["[myTopic]MyItem"] = 0;
    Browsing browsing(its);
    its.person.enters("txtFullPath", "[myTopic]MyItem");
    browsing.calls();
    its.person.presses("bnOK");
    EXPECT_TRUE(browsing.result());
    EXPECT_EQ(browsing.ItemID(), "[myTopic]MyItem");
    const Validation expected{{{"[myTopic]MyItem"}}, ShortArray{{0}}, StringArray{{""}}};
    EXPECT_EQ(its.host.group->items->validations, std::vector{expected});
    EXPECT_EQ(browsing.calls(), Calls({"OPCGroup.OPCItems", "OPCItems.Validate"}));
}

SCENARIO(ItemEntry, AnUnknownItemIsToldInTheServersWordsAndTheDialogStays) {
    a_plant(its);
    Browsing browsing(its);
    its.person.enters("txtFullPath", "Line1.speed");
    browsing.calls();
    its.person.presses("bnOK");
    its.person.answers(unknown_item);
    its.person.is_at("dlgItemSelect");
    EXPECT_EQ(its.person.reads("txtFullPath"), "Line1.speed");
    EXPECT_EQ(its.host.connection->error_codes, std::vector{FakeOPCItems::unknown_item});
    EXPECT_EQ(browsing.calls(), Calls({"OPCGroup.OPCItems", "OPCItems.Validate", "OPCGroup.Parent",
                                       "OPCServer.GetErrorString"}));
    EXPECT_TRUE(its.person.has_focus("txtFullPath"));
    its.person.types("Line1.Speed"); // in its place
    its.person.presses("bnOK");
    EXPECT_TRUE(browsing.result());
    EXPECT_EQ(browsing.ItemID(), "Line1.Speed");
}

SCENARIO(ItemEntry, ALeafThatTheServerRefusesCanBeCorrectedByTypingAtOnce) {
    a_plant(its);
    Browsing browsing(its);
    its.person.clicks_node("TrView", "Line1");
    its.host.group->items->answers.erase("Line1.Running");
    its.person.double_clicks("lstItem", "Running");
    its.person.answers(unknown_item);
    EXPECT_TRUE(its.person.has_focus("txtFullPath"));
    its.person.types("Line1.Speed");
    EXPECT_EQ(its.person.reads("txtFullPath"), "Line1.Speed");
    its.person.hits(Key::enter);
    EXPECT_TRUE(browsing.result());
    EXPECT_EQ(browsing.ItemID(), "Line1.Speed");
}

SCENARIO(ItemEntry, ARefusedItemDoesNotReachTheHost) {
    a_plant(its);
    Browsing browsing(its, "Line2.Count");
    its.person.enters("txtFullPath", "Nothing");
    its.person.presses("bnOK");
    its.person.answers(unknown_item);
    its.person.closes_the_window();
    EXPECT_FALSE(browsing.result());
    EXPECT_EQ(browsing.ItemID(), "Line2.Count");
}

SCENARIO(ItemEntry, AnyCodeButZeroIsARefusal) {
    a_plant(its);
    its.host.group->items->answers["Odd"] = 1;
    Browsing browsing(its);
    its.person.enters("txtFullPath", "Odd");
    its.person.presses("bnOK");
    its.person.answers(unknown_item);
    EXPECT_EQ(its.host.connection->error_codes, std::vector<std::int32_t>{1});
    its.person.presses("bnCancel");
    EXPECT_FALSE(browsing.result());
}

SCENARIO(ItemEntry, OKWithoutAnItemAsksForOne) {
    a_plant(its);
    its.host.browser->root.branches[0].leaves = {""};
    Browsing browsing(its);
    its.person.clicks_node("TrView", "Line1");
    its.person.picks("lstItem", "");
    its.person.presses("bnOK");
    its.person.answers(no_item);
    its.person.is_at("dlgItemSelect");
    EXPECT_TRUE(its.person.has_focus("txtFullPath"));
    EXPECT_TRUE(its.host.group->items->validations.empty());
    its.person.presses("bnCancel");
    EXPECT_FALSE(browsing.result());
}

SCENARIO(ItemEntry, TheHostsOwnMessageServiceShowsTheMessages) {
    a_plant(its);
    its.host.message_service = std::make_shared<FakeMessageService>(its.host.calls);
    its.host.browser->root.branches[0].leaves = {""};
    Browsing browsing(its);
    its.person.clicks_node("TrView", "Line1");
    its.person.picks("lstItem", "");
    its.person.presses("bnOK");
    its.person.enters("txtFullPath", "Nothing");
    its.person.presses("bnOK");
    EXPECT_EQ(its.host.message_service->shown, (std::vector<Message>{no_item, unknown_item}));
    its.person.presses("bnCancel");
    EXPECT_FALSE(browsing.result());
}

SCENARIO(ItemEntry, ADoubleClickOnALeafWithoutAnIdentifierAsksForAnItem) {
    a_plant(its);
    its.host.browser->failing = {"GetItemID"};
    const Browsing browsing(its);
    its.person.clicks_node("TrView", "Line1");
    its.person.double_clicks("lstItem", "Speed");
    its.person.answers(no_item);
    its.person.presses("bnCancel");
}

SCENARIO(ItemEntry, AServerThatCannotNameItsErrorIsReported) {
    a_plant(its);
    const Browsing browsing(its);
    its.person.enters("txtFullPath", "Nothing");
    its.host.calls.fail_at(4);
    its.person.presses("bnOK");
    its.expect_report(CallLog::failure_number, "dlgItemSelect.ValidateItem");
    its.person.is_at("dlgItemSelect");
    its.person.presses("bnCancel");
}

SCENARIO(ItemEntry, AnAnswerWithoutTheFirstElementIsReported) {
    a_plant(its);
    its.host.group->items->claimed_errors = LongArray{};
    const Browsing browsing(its);
    its.person.enters("txtFullPath", "Line1.Speed");
    its.person.presses("bnOK");
    its.expect_report(error::subscript_out_of_range, "dlgItemSelect.ValidateItem");
    its.person.presses("bnCancel");
}

SCENARIO(ItemEntry, NothingIsEverAddedToTheGroup) {
    a_plant(its);
    Browsing browsing(its);
    its.person.enters("txtFullPath", "Line1.Speed");
    its.person.presses("bnOK");
    EXPECT_TRUE(browsing.result());
    EXPECT_EQ(its.host.calls.count("OPCItems.AddItems"), 0);
}

SCENARIO(ItemEntry, AStartingItemShowsAndCanBeConfirmed) {
    a_plant(its);
    Browsing browsing(its, "Line2.Count");
    EXPECT_EQ(its.person.reads("txtFullPath"), "Line2.Count");
    EXPECT_TRUE(its.person.can_press("bnOK"));
    EXPECT_EQ(its.person.sees("TrView").selected, -1);
    its.person.presses("bnOK");
    EXPECT_TRUE(browsing.result());
    EXPECT_EQ(browsing.ItemID(), "Line2.Count");
}

SCENARIO(ItemEntry, AStartingItemIsReplacedByTypingAtOnce) {
    a_plant(its);
    Browsing browsing(its, "Line2.Count");
    EXPECT_TRUE(its.person.has_focus("txtFullPath"));
    its.person.types("Line1.Speed");
    EXPECT_EQ(its.person.reads("txtFullPath"), "Line1.Speed");
    its.person.hits(Key::enter);
    EXPECT_TRUE(browsing.result());
    EXPECT_EQ(browsing.ItemID(), "Line1.Speed");
}

SCENARIO(ItemEntry, TheKeyboardSelectsTheWholeEntryAndTheMousePlacesTheCaret) {
    a_plant(its);
    const Browsing browsing(its, "Line2.Count");
    const auto typing_gives = [&](const char* text, const char* result) {
        its.person.types(text);
        EXPECT_EQ(its.person.reads("txtFullPath"), result);
    };
    its.person.goes_to("txtFullPath");
    typing_gives("er", "Line2.Counter");
    its.person.clicks_node("TrView", "Line2");
    its.person.picks("lstItem", "Count");
    its.person.uses_accelerator('c'); // as "Cancel" has it too
    typing_gives("w", "w");
    its.person.uses_accelerator('c');
    EXPECT_TRUE(its.person.has_focus("bnCancel"));
    its.person.uses_accelerator('c');
    typing_gives("x", "x");
    its.person.hits(Key::tab);
    its.person.hits(Key::back_tab);
    typing_gives("y", "y");
    its.person.hits(Key::back_tab);
    EXPECT_TRUE(its.person.has_focus("lstItem"));
    its.person.hits(Key::tab);
    typing_gives("z", "z");
    its.person.goes_to("lstItem");
    its.person.goes_to("txtFullPath");
    typing_gives("oo", "zoo");
    its.person.presses("bnCancel");
}

SCENARIO(ItemEntry, AStartingItemShowsOnAFlatServerToo) {
    a_plant(its);
    its.host.browser->organization = 2;
    Browsing browsing(its, "Line2.Count");
    EXPECT_EQ(its.person.reads("txtFullPath"), "Line2.Count");
    EXPECT_EQ(its.person.lines_of("lstItem").size(), 7U);
    its.person.picks("lstItem", "Line1.Speed");
    EXPECT_EQ(its.person.reads("txtFullPath"), "Line1.Speed");
    its.person.presses("bnOK");
    EXPECT_TRUE(browsing.result());
    EXPECT_EQ(browsing.ItemID(), "Line1.Speed");
}

SCENARIO(ItemEntry, AStartingItemIsNotSearchedFor) {
    a_plant(its);
    Browsing browsing(its, "Nowhere at all");
    EXPECT_EQ(its.person.reads("txtFullPath"), "Nowhere at all");
    const Calls calls = browsing.calls();
    EXPECT_EQ(calls.last(3),
              Calls({"OPCBrowser.MoveToRoot", "OPCBrowser.ShowLeafs(True)", "OPCBrowser.Count"}));
    its.person.presses("bnCancel");
}

SCENARIO(ItemEntry, AStartingItemDoesNotShowWhereTheServerHasNoLeaf) {
    its.host.browser->root.has("Line1").has("Oven");
    Browsing browsing(its, "Line2.Count");
    EXPECT_EQ(its.person.reads("txtFullPath"), "");
    EXPECT_FALSE(its.person.can_press("bnOK"));
    its.person.presses("bnCancel");
}

SCENARIO(ItemEntry, AStartingItemDoesNotShowWhereTheServerCannotBrowse) {
    its.host.connection->can_browse = false;
    Browsing browsing(its, "Line2.Count");
    EXPECT_EQ(its.person.reads("txtFullPath"), "");
    EXPECT_FALSE(its.person.can_press("bnOK"));
    its.person.presses("bnCancel");
    EXPECT_FALSE(browsing.result());
    EXPECT_EQ(browsing.ItemID(), "Line2.Count");
}

SCENARIO(ItemEntry, CancelEscapeAndTheCloseBoxLeaveTheHostsItem) {
    a_plant(its);
    Browsing browsing(its, "Line2.Count");
    its.person.enters("txtFullPath", "Line1.Speed");
    its.person.presses("bnCancel");
    EXPECT_FALSE(browsing.result());
    EXPECT_EQ(browsing.ItemID(), "Line2.Count");

    browsing.show();
    EXPECT_EQ(its.person.reads("txtFullPath"), "Line2.Count");
    its.person.enters("txtFullPath", "Line1.Speed");
    its.person.hits(Key::escape);
    EXPECT_FALSE(browsing.result());
    EXPECT_EQ(browsing.ItemID(), "Line2.Count");

    browsing.show();
    its.person.enters("txtFullPath", "Line1.Speed");
    its.person.closes_the_window();
    EXPECT_FALSE(browsing.result());
    EXPECT_EQ(browsing.ItemID(), "Line2.Count");
}

SCENARIO(ItemEntry, TheChosenItemIsWhereTheNextShowingStarts) {
    a_plant(its);
    Browsing browsing(its);
    its.person.enters("txtFullPath", "Line1.Speed");
    its.person.presses("bnOK");
    EXPECT_TRUE(browsing.result());
    browsing.show();
    EXPECT_EQ(its.person.reads("txtFullPath"), "Line1.Speed");
    its.person.presses("bnCancel");
    EXPECT_FALSE(browsing.result());
    EXPECT_EQ(browsing.ItemID(), "Line1.Speed");
}

SCENARIO(LeafSelect, IsReportedAndNotShownForAWrongServerOrGroup) {
    a_plant(its);
    Showing select(*its.stage, "LeafSelect");
    select.set_ItemID("Line2.Count");

    select.show(nullptr, its.host.group);
    EXPECT_FALSE(select.result());
    its.expect_report(error::type_mismatch, "CommonTools.ResolveOPCServer");

    select.show(its.host.connection, nullptr);
    EXPECT_FALSE(select.result());
    its.expect_report(error::type_mismatch, "CommonTools.ResolveOPCGroup");

    select.show(its.host.group, its.host.connection);
    EXPECT_FALSE(select.result());
    its.expect_report(error::type_mismatch, "CommonTools.ResolveOPCServer");
    its.expect_report(error::type_mismatch, "CommonTools.ResolveOPCGroup");
    EXPECT_EQ(select.ItemID(), "Line2.Count");
}
