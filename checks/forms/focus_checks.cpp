#include "forms/focus.h"
#include "one_form.h"

#include <gtest/gtest.h>

using namespace brx;
using namespace brx::checks;

// Where the focus is, and what comes with it.

namespace {

struct Focus : testing::Test, OpenForm {};

} // namespace

TEST_F(Focus, TheFocusStartsInABoxThatOnlyDisplaysWhereThereIsNothingElse) {
    class Readings : public Form {
    public:
        explicit Readings(Environment& on)
            : Form(on, {.name = "Readings", .caption = "Readings", .size = {200, 100}}) {}
        TextBox shown{*this, "shown", {.place = {0, 0, 90, 23}, .tab = 1, .text = "7", .display_only = true}};
        TextBox second{*this, "second", {.place = {0, 30, 90, 23}, .tab = 2, .display_only = true}};
        Button close{*this, "close", {.place = {0, 60, 75, 23}, .caption = "Close", .tab = 3}};
    };
    Readings readings(environment);
    engine.while_open = [&](Form&) {
        EXPECT_EQ(readings.focused(), &readings.close);
        EXPECT_TRUE(readings.shown.user_take_focus()) << "She can read and copy it all the same.";
        EXPECT_TRUE(readings.shown.all_selected());
        readings.close.set_enabled(false);
        EXPECT_EQ(readings.first_focusable(), &readings.shown);
        readings.shown.set_enabled(false);
        readings.second.set_enabled(false);
        EXPECT_EQ(readings.first_focusable(), nullptr);
    };
    readings.show_modal();
}

TEST_F(Focus, TheKeyboardSelectsTheTextOfABoxAndTheMouseDoesNot) {
    while_open([&] {
        form.list.user_focus();
        form.box.set_text("other");
        EXPECT_FALSE(form.box.all_selected());
        form.notes.clear();
        EXPECT_TRUE(form.box.user_press());
        EXPECT_FALSE(form.box.all_selected());
        EXPECT_TRUE(form.box.user_take_focus()) << "The focus is here already.";
        EXPECT_TRUE(form.box.all_selected());
        EXPECT_TRUE(form.box.user_press());
        EXPECT_FALSE(form.box.all_selected());
        form.list.user_take_focus();
        EXPECT_TRUE(form.box.user_take_focus());
        EXPECT_TRUE(form.box.all_selected());
        form.list.user_focus();
        EXPECT_TRUE(form.box.user_focus()) << "As from a tool.";
        form.list.user_focus();
        EXPECT_TRUE(form.box.user_press());
        EXPECT_FALSE(form.box.all_selected());
        EXPECT_EQ(form.notes, (Notes{"box_GotFocus", "box_LostFocus", "box_GotFocus", "box_LostFocus",
                                     "box_GotFocus", "box_LostFocus", "box_GotFocus"}));
        form.box.set_enabled(false);
        EXPECT_FALSE(form.box.user_take_focus());
        EXPECT_FALSE(form.box.user_press());
    });
}

TEST_F(Focus, AMousePressKeepsTheSelectionThatTheFormMakesAsTheFocusComes) {
    form.on_got_focus = [&] { form.box.select_all(); };
    while_open([&] {
        form.list.user_focus();
        EXPECT_TRUE(form.box.user_press());
        EXPECT_TRUE(form.box.all_selected());
        EXPECT_TRUE(form.box.user_press());
        EXPECT_FALSE(form.box.all_selected()) << "The second one places the caret.";
    });
}

TEST_F(Focus, TheFocusCannotGoWhereInputIsNotTaken) {
    while_open([&] {
        form.check.set_enabled(false);
        EXPECT_EQ(number_of_error([&] { form.check.set_focus(); }), error::invalid_procedure_call);
        EXPECT_FALSE(form.check.user_focus());
        EXPECT_FALSE(form.label.user_focus());
        EXPECT_EQ(form.focused(), &form.box);
    });
}

TEST_F(Focus, TheFocusServiceSelectsTheWholeText) {
    while_open([&] {
        form.list.user_focus();
        hlxFocus::select_text(form.box);
        EXPECT_EQ(form.focused(), &form.box);
        EXPECT_TRUE(form.box.all_selected());
        form.box.user_text("x");
        EXPECT_FALSE(form.box.all_selected());
    });
}
