#include "forms/list_tools.h"
#include "one_form.h"
#include "stand_in.h"

#include <gtest/gtest.h>

using namespace brx;
using namespace brx::checks;

namespace {
struct Controls : testing::Test, OpenForm {};
} // namespace

TEST(Colors, OfTheSystemAreItsNumbersWithTheTopBitSet) {
    EXPECT_EQ(color::window, 0x8000'0005U);
    EXPECT_EQ(color::window_text, 0x8000'0008U);
    EXPECT_EQ(color::button_face, 0x8000'000FU);
    EXPECT_EQ(color::button_text, 0x8000'0012U);
}

TEST(Lengths, InTwipsAreRoundedToPixelsAwayFromZero) {
    EXPECT_EQ(twips(7), 0);
    EXPECT_EQ(twips(8), 1);
    EXPECT_EQ(twips(-7), 0);
    EXPECT_EQ(twips(-8), -1);
    EXPECT_EQ(twips(1440), 96);
}

TEST_F(Controls, WhatBecomesDifferentIsToldToTheEngineAsWhatItIs) {
    while_open([&] {
        ListBox& list = form.list;
        EXPECT_EQ(told_of(list, [&] { list.set_back_color(color::red); }), Aspect::colors);
        EXPECT_EQ(told_of(list, [&] { list.set_fore_color(color::red); }), Aspect::colors);
        EXPECT_EQ(told_of(list, [&] { list.set_place({5, 6, 70, 80}); }), Aspect::place);
        EXPECT_EQ(told_of(list, [&] { list.clear(); }), Aspect::none) << "It was empty.";
        EXPECT_EQ(told_of(form.panel, [&] { form.panel.bring_to_front(); }), Aspect::order);
        EXPECT_EQ(told_of(form.panel, [&] { form.panel.send_to_back(); }), Aspect::order);
        EXPECT_EQ(told_of(form.box, [&] { form.box.select_all(); }), Aspect::selection);
    });
}

TEST_F(Controls, AreDrawnInTheSystemsColoursWhereTheirDesignSaysNothing) {
    while_open([&] {
        for (const Control* each :
             std::initializer_list<Control*>{&form.frame, &form.label, &form.check, &form.button}) {
            EXPECT_EQ(each->back_color(), color::button_face) << each->name();
            EXPECT_EQ(each->fore_color(), color::button_text) << each->name();
        }
        for (const Control* each : std::initializer_list<Control*>{&form.box, &form.list, &form.combo}) {
            EXPECT_EQ(each->back_color(), color::window) << each->name();
            EXPECT_EQ(each->fore_color(), color::window_text) << each->name();
        }
    });
}

TEST_F(Controls, ASelectionThatMovesOrGoesWithItsLinesIsToldToTheEngine) {
    while_open([&] {
        ListBox& list = form.list;
        const auto clear = [&] { list.clear(); };
        list.add_line("one");
        EXPECT_EQ(told_of(list, clear), Aspect::lines) << "Nothing was selected.";
        list.add_line("one");
        list.select(0);
        EXPECT_EQ(told_of(list, [&] { list.insert_line(1, "below"); }), Aspect::lines);
        EXPECT_EQ(told_of(list, [&] { list.insert_line(0, "above"); }), Aspect::lines | Aspect::selection);
        EXPECT_EQ(told_of(list, clear), Aspect::lines | Aspect::selection);
        list.add_line("one");
        list.select(0);
        EXPECT_EQ(told_of(list, clear), Aspect::lines | Aspect::selection);
    });
}

TEST_F(Controls, OfAListOnlyWhatIsAskedForIsReadAgain) {
    while_open([&] {
        form.list.add_line("one");
        Reading seen;
        seen.lines = {"as they were"};
        form.list.select(0);
        form.list.read(Aspect::selection, seen);
        EXPECT_EQ(seen.lines, Notes{"as they were"});
        EXPECT_EQ(seen.text, "one");
    });
}

TEST_F(Controls, AListTellsHowManyOfItsFirstLinesAreAsTheyWere) {
    while_open([&] {
        for (const char* each : {"one", "two", "three"}) form.list.add_line(each);
        EXPECT_EQ(form.list.take_kept_lines(), 0);
        form.list.insert_line(2, "before the last");
        form.list.insert_line(1, "second");
        form.list.add_line("last");
        EXPECT_EQ(form.list.take_kept_lines(), 1);
        EXPECT_EQ(form.list.take_kept_lines(), 6);
        form.list.clear();
        form.list.add_line("anew");
        EXPECT_EQ(form.list.take_kept_lines(), 0);
    });
}

TEST_F(Controls, ALineIsSoughtFromThereOnAndFromTheFirstOneBesideTheLines) {
    while_open([&] {
        for (const char* each : {"pear", "plum"}) form.list.add_line(each);
        EXPECT_EQ(form.list.line_beginning_with("p", 0), 0);
        EXPECT_EQ(form.list.line_beginning_with("p", 1), 1);
        for (const int beside : {-1, 2, 7})
            EXPECT_EQ(form.list.line_beginning_with("p", beside), 0) << beside;
    });
}

TEST_F(Controls, EditCommandsComeBackWithoutKeyPressAndBackspaceIsACharacter) {
    while_open([&] {
        form.on_key = [](std::int32_t& key) { key = 0; };
        for (const std::int32_t command : {1, 3, 22, 24, 26})
            EXPECT_EQ(form.box.user_key_press(command), command);
        EXPECT_EQ(form.notes, Notes());
        for (const std::int32_t other : {2, 8, 9, 23, 25, 27}) EXPECT_EQ(form.box.user_key_press(other), 0);
        EXPECT_EQ(form.notes, Notes(6, "box_KeyPress"));
        form.box.set_enabled(false);
        EXPECT_EQ(form.box.user_key_press(22), 0);
    });
}

TEST_F(Controls, SettingEnabledVisibleOrColoursFiresNothing) {
    while_open([&] {
        form.list.set_enabled(false);
        form.list.set_visible(false);
        form.list.set_back_color(color::red);
        form.list.set_fore_color(color::red);
        EXPECT_TRUE(form.notes.empty());
    });
}

TEST_F(Controls, ClearingAListSelectsNothingWithoutClick) {
    while_open([&] {
        form.combo.add_line("one", 7);
        form.combo.select(0);
        form.notes.clear();
        form.combo.clear();
        EXPECT_EQ(form.combo.selected(), -1);
        EXPECT_EQ(form.combo.count(), 0);
        EXPECT_EQ(form.combo.text(), "");
        form.combo.add_line("two");
        form.combo.select(0);
        form.combo.select(-1);
        EXPECT_EQ(form.notes, (Notes{"combo_Click"}));
    });
}

TEST_F(Controls, LinesKeepTheirItemDataWhenOthersAreInserted) {
    while_open([&] {
        form.list.add_line("a", 1);
        form.list.add_line("c", INT32_MAX);
        form.list.select(1);
        form.list.insert_line(1, "b", -2);
        EXPECT_EQ(form.list.text(1), "b");
        EXPECT_EQ(form.list.data(1), -2);
        EXPECT_EQ(form.list.data(2), INT32_MAX);
        form.list.add_line("d");
        form.list.insert_line(4, "e");
        EXPECT_EQ(form.list.data(3), 0) << "It was given no number.";
        EXPECT_EQ(form.list.data(4), 0) << "It was given no number.";
        EXPECT_EQ(form.list.selected(), 2) << "The selection stays on its line.";
    });
}

TEST_F(Controls, AbsentLinesAreAnInvalidArgument) {
    while_open([&] {
        for (const auto& deed : std::vector<std::function<void()>>{
                 [&] { form.list.select(0); }, [&] { form.list.select(-2); },
                 [&] { static_cast<void>(form.list.text(0)); },
                 [&] { static_cast<void>(form.list.data(-1)); }, [&] { form.list.insert_line(1, "x"); }}) {
            EXPECT_EQ(number_of_error(deed), error::invalid_procedure_call);
        }
        EXPECT_FALSE(form.list.user_select(0));
    });
}

TEST_F(Controls, ListToolsAddReadAndSelectByItemData) {
    while_open([&] {
        EXPECT_EQ(hlxListTools::selected_data(form.combo), 0);
        hlxListTools::add(form.combo, "one", 11);
        hlxListTools::add(form.combo, "two", 22);
        hlxListTools::add(form.combo, "none");
        hlxListTools::select_data(form.combo, 22);
        EXPECT_EQ(form.combo.text(), "two");
        EXPECT_EQ(hlxListTools::selected_data(form.combo), 22);
        hlxListTools::select_data(form.combo, 33);
        EXPECT_EQ(form.combo.text(), "two") << "No line has it.";
        form.combo.select(2);
        EXPECT_EQ(hlxListTools::selected_data(form.combo), 0);
    });
}

TEST_F(Controls, ACheckBoxFiresClickWhenItsValueBecomesDifferent) {
    while_open([&] {
        form.check.set_value(2);
        EXPECT_TRUE(form.check.user_toggle());
        EXPECT_EQ(form.check.value(), 0);
        EXPECT_TRUE(form.check.user_toggle());
        EXPECT_EQ(form.check.value(), 1);
        form.check.set_value(1);
        EXPECT_EQ(form.notes, (Notes{"check_Click", "check_Click", "check_Click"}));
    });
}

TEST_F(Controls, ATimerTicksOnlyWhileItIsEnabledAndItsFormLoaded) {
    EXPECT_FALSE(form.timer.tick());
    while_open([&] {
        EXPECT_TRUE(form.timer.tick());
        form.timer.set_enabled(false);
        EXPECT_FALSE(form.timer.tick());
        EXPECT_EQ(form.notes, (Notes{"timer_Timer"}));
    });
    EXPECT_FALSE(form.timer.tick());
}

TEST_F(Controls, ATimerDoesNotTickDuringAnotherHandlerUnlessAMessageIsUp) {
    while_open([&] {
        form.on_click = [&] {
            EXPECT_FALSE(form.timer.tick()) << "The handler runs.";
            engine.while_asking = [&](const Message&) {
                EXPECT_TRUE(form.timer.tick()) << "The handler waits in a modal loop.";
                return message::ok;
            };
            form.show_message({"Hello", 0, "Greeting"});
            EXPECT_FALSE(form.timer.tick());
        };
        form.button.user_click();
        EXPECT_EQ(form.notes, (Notes{"button_Click", "timer_Timer"}));
    });
}

TEST_F(Controls, NothingAPersonDoesGetsThroughWhileAHandlerRunsOrAMessageIsUp) {
    while_open([&] {
        form.on_click = [&] {
            EXPECT_FALSE(form.check.user_toggle());
            EXPECT_FALSE(form.user_close());
            engine.while_asking = [&](const Message&) {
                EXPECT_FALSE(form.check.user_toggle());
                EXPECT_FALSE(form.user_close());
                return message::ok;
            };
            form.show_message({"Hello", 0, "Greeting"});
        };
        form.button.user_click();
        EXPECT_EQ(form.check.value(), 0);
    });
}
