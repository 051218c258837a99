#include "tests/trigger_form.h"

using namespace brx;
using namespace brx::checks;

// What the trigger dialog shows, and what its OK makes of it.

TEST_F(TriggerForm, OpensWithTheGroupsItemsAndTheOperators) {
    with_trigger("Count", 2, std::int32_t{7}, [&] {
        EXPECT_EQ(form.caption(), "Set Trigger");
        EXPECT_EQ(form.help_topic(), 196);
        EXPECT_EQ(items().count(), 6);
        EXPECT_EQ(items().text(0), "<None>");
        EXPECT_EQ(items().text(1), "Count");
        EXPECT_EQ(items().text(), "Count");
        EXPECT_EQ(operators().count(), 7);
        EXPECT_EQ(operators().text(5), " <= ");
        EXPECT_EQ(operators().text(), " > ");
        EXPECT_EQ(value().text(), "7");
        EXPECT_TRUE(value().enabled());
        EXPECT_EQ(value().back_color(), color::window);
        EXPECT_TRUE(ok().enabled());
    });
    EXPECT_FALSE(form.OkClicked());
    EXPECT_TRUE(host.reports.empty());
}

TEST_F(TriggerForm, HelpIsSetUpBeforeTheListsAreFilled) {
    with_trigger("Count", 2, std::int32_t{7}, [] {});
    const std::vector<std::string> calls = host.calls.members();
    ASSERT_FALSE(calls.empty());
    EXPECT_EQ(calls.front(), "hlxHelp.HelpFile");
}

TEST_F(TriggerForm, WithoutAnItemEverythingButTheItemIsClosed) {
    with_trigger("", 3, std::string("x"), [&] {
        EXPECT_EQ(items().text(), "<None>");
        EXPECT_EQ(operators().selected(), 0);
        EXPECT_FALSE(operators().enabled());
        EXPECT_EQ(operators().back_color(), color::button_face);
        EXPECT_FALSE(value().enabled());
        EXPECT_EQ(value().back_color(), color::button_face);
        EXPECT_EQ(value().text(), "");
        EXPECT_TRUE(ok().user_click());
    });
    EXPECT_TRUE(form.OkClicked());
    EXPECT_EQ(form.TriggerOPCItemID(), "<None>");
    EXPECT_EQ(form.TriggerExpression(), 0);
    EXPECT_EQ(form.TriggerValue(), Variant(std::string()));
}

TEST_F(TriggerForm, AnItemThatTheGroupLacksLeavesNoneSelected) {
    with_trigger("count", 2, std::int32_t{7}, [&] {
        EXPECT_EQ(items().text(), "<None>");
        EXPECT_EQ(items().count(), 6);
        EXPECT_TRUE(ok().user_click());
    });
    EXPECT_EQ(form.TriggerOPCItemID(), "<None>");
    EXPECT_EQ(form.TriggerExpression(), 0);
}

TEST_F(TriggerForm, AnItemThatIsCalledNoneStandsForNoItem) {
    host.group->items->has("<NONE>");
    with_trigger("Count", 2, std::int32_t{7}, [&] {
        pick("<NONE>");
        EXPECT_TRUE(press("bnOK"));
    });
    EXPECT_TRUE(form.OkClicked());
    EXPECT_EQ(form.TriggerOPCItemID(), "<NONE>");
    EXPECT_EQ(form.TriggerExpression(), 0);
    EXPECT_EQ(form.TriggerValue(), Variant(std::string()));
}

TEST_F(TriggerForm, WithoutAGroupTheTriggerCanStillBeCleared) {
    host.configuration->group = nullptr;
    with_trigger("Count", 2, std::int32_t{7}, [&] {
        EXPECT_TRUE(press("bnOK"));
        EXPECT_TRUE(form.loaded()); // nothing is selected
        pick("<None>");
        EXPECT_TRUE(press("bnOK"));
    });
    EXPECT_TRUE(form.OkClicked());
    EXPECT_EQ(form.TriggerOPCItemID(), "<None>");
    EXPECT_EQ(form.TriggerExpression(), 0);
    EXPECT_EQ(form.TriggerValue(), Variant(std::string()));
    ASSERT_EQ(host.reports.size(), 2U);
    EXPECT_EQ(host.reports[0].what.location, "CommonTools.ResolveOPCGroup");
    EXPECT_EQ(host.reports[1].what.location, "dlgEvaluation.BuildDlg");
}

TEST_F(TriggerForm, ChoosingAnItemOpensTheOperatorsAndAnOperatorTheValue) {
    with_trigger("", 0, std::string(), [&] {
        pick("Count");
        EXPECT_TRUE(operators().enabled());
        EXPECT_EQ(operators().back_color(), color::window);
        EXPECT_FALSE(value().enabled());
        EXPECT_TRUE(operators().user_select(4));
        EXPECT_TRUE(value().enabled());
        EXPECT_TRUE(value().user_text("5"));
        EXPECT_TRUE(operators().user_select(0));
        EXPECT_FALSE(value().enabled());
        EXPECT_EQ(value().text(), "");
    });
}

TEST_F(TriggerForm, AValueMakesTheTriggerAcceptableWhenItsFieldIsOpenedOrAKeyIsUsed) {
    const std::function<void()> deeds[] = {
        [&] { EXPECT_TRUE(operators().user_select(operators().selected() == 2 ? 3 : 2)); },
        [&] { EXPECT_EQ(value().user_key_press('8'), '8'); }, [&] { EXPECT_TRUE(value().user_key_up('8')); }};
    with_trigger("Count", 1, std::int32_t{7}, [&] {
        for (const auto& deed : deeds) {
            SCOPED_TRACE(&deed - deeds);
            value().set_text("");
            ok().set_enabled(false);
            deed();
            EXPECT_FALSE(ok().enabled());
            value().set_text("7");
            deed();
            EXPECT_TRUE(ok().enabled());
        }
    });
}

TEST_F(TriggerForm, WithoutAnOperatorAKeyDoesNotMakeTheTriggerAcceptable) {
    with_trigger("Count", 1, std::int32_t{7}, [&] {
        value().set_text("7");
        operators().select(-1);
        ok().set_enabled(false);
        value().user_key_press('8');
        value().user_key_up('8');
        EXPECT_FALSE(ok().enabled());
    });
}

TEST_F(TriggerForm, NoItemIsAlwaysAcceptable) {
    with_trigger("Count", 1, std::int32_t{7}, [&] {
        ok().set_enabled(false);
        pick("<None>");
        EXPECT_TRUE(ok().enabled());
    });
}

TEST_F(TriggerForm, TheValueIsConvertedToTheItemsType) {
    struct Case {
        const char* item;
        const char* text;
        Variant expected;
    };
    for (const Case& each :
         {Case{"Count", "2147483647", 2147483647}, Case{"Short", "-7", std::int16_t{-7}},
          Case{"Single", "1.5", 1.5F}, Case{"Flag", "true", true}, Case{"Text", "1e2", 100.0}}) {
        SCOPED_TRACE(each.item);
        with_trigger(each.item, 1, std::string(), [&] {
            EXPECT_TRUE(value().user_text(each.text));
            EXPECT_TRUE(ok().user_click());
        });
        EXPECT_TRUE(form.OkClicked());
        EXPECT_EQ(form.TriggerValue(), each.expected);
        EXPECT_EQ(form.TriggerExpression(), 1);
        EXPECT_EQ(form.TriggerOPCItemID(), each.item);
    }
    EXPECT_TRUE(messages.empty());
}

TEST_F(TriggerForm, AValueOfAnotherTypeIsToldAndTheDialogStays) {
    for (const char* item : {"Count", "Short", "Single", "Flag", "Text"}) {
        SCOPED_TRACE(item);
        messages.clear();
        with_trigger(item, 1, std::string("old"), [&] {
            EXPECT_TRUE(value().user_text("abc"));
            EXPECT_TRUE(ok().user_click());
            EXPECT_TRUE(form.loaded());
            EXPECT_EQ(form.focused(), &value());
        });
        EXPECT_EQ(messages, std::vector{invalid_value});
        EXPECT_FALSE(form.OkClicked());
        EXPECT_EQ(form.TriggerValue(), Variant(std::string("old")));
    }
}

TEST_F(TriggerForm, AnOperatorWithoutAValueKeepsTheDialogOpen) {
    with_trigger("Count", 0, std::string("old"), [&] {
        EXPECT_TRUE(operators().user_select(3));
        EXPECT_TRUE(ok().user_click());
        EXPECT_TRUE(form.loaded());
    });
    EXPECT_TRUE(messages.empty());
    EXPECT_EQ(form.TriggerExpression(), 0);
    EXPECT_EQ(form.TriggerValue(), Variant(std::string("old")));
}

TEST_F(TriggerForm, AlwaysNeedsNoValueAndKeepsTheFormerOne) {
    with_trigger("Count", 0, std::int32_t{3}, [&] { EXPECT_TRUE(ok().user_click()); });
    EXPECT_TRUE(form.OkClicked());
    EXPECT_EQ(form.TriggerExpression(), 0);
    EXPECT_EQ(form.TriggerValue(), Variant(std::int32_t{3}));
}

TEST_F(TriggerForm, ABooleanItemsOperatorGoesBackToAlways) {
    with_trigger("Flag", 2, std::string(), [&] {
        EXPECT_TRUE(value().user_text("True"));
        EXPECT_TRUE(ok().user_click());
        // Going back to "Always" empties the value, which is then no Boolean.
        EXPECT_EQ(operators().selected(), 0);
        EXPECT_EQ(value().text(), "");
        EXPECT_TRUE(form.loaded());
        EXPECT_TRUE(ok().user_click());
    });
    EXPECT_EQ(messages, std::vector{invalid_value});
    EXPECT_TRUE(form.OkClicked());
    EXPECT_EQ(form.TriggerExpression(), 0);
}

TEST_F(TriggerForm, AnOperatorCodeWithoutRoomIsAnOverflow) {
    EXPECT_THROW(form.set_TriggerExpression(32768), Error);
    form.set_TriggerExpression(6);
    EXPECT_EQ(form.TriggerExpression(), 6);
}

TEST_F(TriggerForm, CancelLeavesTheTriggerAsItWas) {
    with_trigger("Count", 1, std::int32_t{7}, [&] {
        EXPECT_TRUE(value().user_text("8"));
        EXPECT_TRUE(press("bnCancel"));
        EXPECT_FALSE(form.loaded());
    });
    EXPECT_FALSE(form.OkClicked());
    EXPECT_EQ(form.TriggerOPCItemID(), "Count");
    EXPECT_EQ(form.TriggerValue(), Variant(std::int32_t{7}));
}
