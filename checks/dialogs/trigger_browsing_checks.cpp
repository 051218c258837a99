#include "dialogs/trigger_form.h"

using namespace brx;
using namespace brx::checks;

// Whose the items are that the trigger dialog adds to the group.

TEST_F(TriggerForm, ABrowsedItemIsAddedAndIsTheCallersToRemove) {
    browsed = "New";
    with_trigger("Count", 1, std::int32_t{7}, [&] {
        EXPECT_TRUE(press("bnItem"));
        EXPECT_EQ(items().text(), "New");
        EXPECT_EQ(items().count(), 7);
        EXPECT_TRUE(press("bnCancel"));
    });
    EXPECT_TRUE(form.AddedNewItem());
    EXPECT_EQ(host.group->items->client_handles, (std::vector<LongArray>{{{0}}}));
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
