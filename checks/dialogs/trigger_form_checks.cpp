#include "dialogs/trigger_form.h"

using namespace brx;
using namespace brx::checks;

// What of the trigger dialog a person cannot read off the screen, or only as a colour.

TEST_F(TriggerForm, HasItsHelpTopic) {
    with_trigger("Count", 2, std::int32_t{7}, [&] { EXPECT_EQ(form.help_topic(), 196); });
}

TEST_F(TriggerForm, ClosedFieldsHaveTheColourOfTheDialog) {
    with_trigger("", 3, std::string("x"), [&] {
        EXPECT_EQ(operators().back_color(), color::button_face);
        EXPECT_EQ(value().back_color(), color::button_face);
        pick("Count");
        EXPECT_EQ(operators().back_color(), color::window);
        EXPECT_EQ(value().back_color(), color::button_face);
        EXPECT_TRUE(operators().user_select(1));
        EXPECT_EQ(value().back_color(), color::window);
        pick("<None>");
        EXPECT_EQ(operators().back_color(), color::button_face);
        EXPECT_EQ(value().back_color(), color::button_face);
    });
}

TEST_F(TriggerForm, EachShowingStartsWithoutAnOutcome) {
    browsed = "New";
    with_trigger("Count", 1, std::int32_t{7}, [&] {
        EXPECT_TRUE(press("bnItem"));
        EXPECT_TRUE(value().user_text("8"));
        EXPECT_TRUE(press("bnOK"));
    });
    EXPECT_TRUE(form.OkClicked());
    EXPECT_TRUE(form.AddedNewItem());
    EXPECT_EQ(form.TriggerOPCItemID(), "New");
    with_trigger("Count", 1, std::int32_t{7}, [&] {
        EXPECT_FALSE(form.OkClicked());
        EXPECT_FALSE(form.AddedNewItem());
        EXPECT_TRUE(form.user_close());
    });
    EXPECT_FALSE(form.OkClicked());
}

TEST_F(TriggerForm, ATypeThatWasReadIsNotKeptForTheNextShowing) {
    with_trigger("Count", 1, std::int32_t{7}, [&] { EXPECT_TRUE(press("bnOK")); });
    EXPECT_EQ(form.TriggerValue(), Variant(std::int32_t{7}));
    host.calls.fail_on("OPCItem.CanonicalDataType");
    with_trigger("Count", 1, std::int32_t{7}, [&] { EXPECT_TRUE(press("bnOK")); });
    EXPECT_EQ(form.TriggerValue(), Variant(7.0));
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

TEST_F(TriggerForm, AnOperatorCodeWithoutRoomIsAnOverflow) {
    EXPECT_THROW(form.set_TriggerExpression(32768), Error);
    form.set_TriggerExpression(6);
    EXPECT_EQ(form.TriggerExpression(), 6);
}
