#include "tests/trigger_form.h"

using namespace brx;
using namespace brx::checks;

// What the trigger dialog asks the server for: other items and the types of items.

TEST_F(TriggerForm, ATypeThatCannotBeReadIsToldAndTheValueBecomesADouble) {
    with_trigger("Count", 1, std::string(), [&] {
        host.group->items->Remove(LongArray{{host.group->items->handle_of("Count")}});
        EXPECT_TRUE(value().user_text("7"));
        EXPECT_TRUE(ok().user_click());
    });
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(messages[0].title, "Error Getting Data Type");
    EXPECT_EQ(messages[0].style, message::exclamation);
    EXPECT_EQ(messages[0].text, "The item is not known to the server.");
    EXPECT_EQ(host.connection->error_codes, std::vector{error::subscript_out_of_range});
    EXPECT_EQ(form.TriggerValue(), Variant(7.0));
}

TEST_F(TriggerForm, ATypeThatCannotBeReadIsToldBeforeTheDialogShows) {
    host.calls.fail_on("OPCItem.CanonicalDataType");
    with_trigger("Count", 1, std::int32_t{7}, [&] { EXPECT_EQ(messages, std::vector{no_data_type}); });
    EXPECT_EQ(messages.size(), 1U);
    EXPECT_EQ(host.connection->error_codes, std::vector{CallLog::failure_number});
    EXPECT_TRUE(host.reports.empty());
}

TEST_F(TriggerForm, TheTypeOfABrowsedItemIsReadAtOnce) {
    browsed = "New";
    with_trigger("Count", 1, std::int32_t{7}, [&] {
        host.calls.fail_on("OPCItem.CanonicalDataType");
        EXPECT_TRUE(press("bnItem"));
        EXPECT_EQ(messages, std::vector{no_data_type});
        EXPECT_EQ(items().text(), "New");
    });
}

TEST_F(TriggerForm, ABrowsedItemIsAddedAndIsTheCallersToRemove) {
    browsed = "New";
    with_trigger("Count", 1, std::int32_t{7}, [&] {
        EXPECT_TRUE(press("bnItem"));
        EXPECT_EQ(items().text(), "New");
        EXPECT_EQ(items().count(), 7);
        EXPECT_TRUE(press("bnCancel"));
    });
    EXPECT_TRUE(form.AddedNewItem());
    EXPECT_NE(host.group->items->handle_of("New"), 0);
    EXPECT_TRUE(host.group->items->removed.empty());
}

TEST_F(TriggerForm, ABrowsedItemThatTheGroupHasIsSelected) {
    browsed = "Flag";
    host.group->items->answers["Flag"] = 0;
    with_trigger("Count", 1, std::int32_t{7}, [&] {
        EXPECT_TRUE(press("bnItem"));
        EXPECT_EQ(items().text(), "Flag");
    });
    EXPECT_FALSE(form.AddedNewItem());
    EXPECT_TRUE(host.group->items->added.empty());
}

TEST_F(TriggerForm, ABrowsedItemThatCannotBeAddedChangesNothingSilently) {
    browsed = "Odd";
    host.group->items->claimed_errors = LongArray{{0}};
    with_trigger("Count", 1, std::int32_t{7}, [&] {
        EXPECT_TRUE(press("bnItem"));
        EXPECT_EQ(items().text(), "Count");
        EXPECT_EQ(items().count(), 6);
    });
    EXPECT_FALSE(form.AddedNewItem());
    EXPECT_TRUE(messages.empty());
    EXPECT_TRUE(host.reports.empty());
}

TEST_F(TriggerForm, ACancelledBrowserChangesNothing) {
    with_trigger("Count", 1, std::int32_t{7}, [&] {
        EXPECT_TRUE(press("bnItem"));
        EXPECT_EQ(items().text(), "Count");
    });
    EXPECT_FALSE(form.AddedNewItem());
}

TEST_F(TriggerForm, ARefusedItemMakesTheOneAddedBeforeNobodysToRemove) {
    browsed = "New";
    with_trigger("Count", 1, std::int32_t{7}, [&] {
        EXPECT_TRUE(press("bnItem"));
        browsed = "Odd";
        host.group->items->claimed_errors = LongArray{{0}};
        EXPECT_TRUE(press("bnItem"));
        EXPECT_EQ(items().text(), "New");
    });
    EXPECT_FALSE(form.AddedNewItem());
}

TEST_F(TriggerForm, AnItemThatTheGroupHasLeavesTheAddedOneTheCallersToRemove) {
    browsed = "New";
    host.group->items->answers["Flag"] = 0;
    with_trigger("Count", 1, std::int32_t{7}, [&] {
        EXPECT_TRUE(press("bnItem"));
        browsed = "Flag";
        EXPECT_TRUE(press("bnItem"));
        EXPECT_EQ(items().text(), "Flag");
    });
    EXPECT_TRUE(form.AddedNewItem());
}

TEST_F(TriggerForm, AGroupThatIsGoneCannotBeBrowsedAndIsReportedOnce) {
    with_trigger("Count", 1, std::int32_t{7}, [&] {
        host.configuration->group = nullptr;
        EXPECT_TRUE(press("bnItem"));
    });
    ASSERT_EQ(host.reports.size(), 1U);
    EXPECT_EQ(host.reports[0].what.location, "CommonTools.ResolveOPCGroup");
}
