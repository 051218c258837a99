#include "forms/error_reports.h"
#include "forms/showing.h"
#include "one_form.h"

#include <gtest/gtest.h>

using namespace brx;
using namespace brx::checks;

namespace {

/// A host that takes no report, and what its person is told.
struct ErrorReporting : testing::Test, OpenForm {
    ErrorReporting() {
        host.has_no_error_library();
        engine.while_asking = [this](const Message& message) {
            told.push_back(message.text);
            while_told();
            return message::ok;
        };
    }

    void fails(const std::string& place, std::int32_t number = 5) {
        environment.errors.Show(ErrorLibrary::brxError6, {number, "What", "Who", place, "Which"});
    }
    void fails_in_a_timer(const std::string& place, std::int32_t number = 5) {
        const TimerTurn timer;
        fails(place, number);
    }

    Notes told;
    std::function<void()> while_told = [] {};
};

ErrorReport report(std::int32_t number, const std::string& description) {
    return {number, description, "Source", "Unit.Procedure", "Application"};
}

} // namespace

TEST(ErrorMessage, HasNumberDescriptionAndPlaceUnderTheComponentsName) {
    EXPECT_EQ(error_message(report(13, "Type mismatch")),
              (Message{.text = "Error 13: Type mismatch\r\n\r\nUnit.Procedure",
                       .style = message::critical,
                       .title = "brxOpcDlgs6"}));
}

TEST(ErrorMessage, GivesAFailureCodeWholeAndKeepsTheLinesOfADescription) {
    EXPECT_EQ(error_message(report(-2147023174, "No server.\r\nTry later.")).text,
              "Error -2147023174: No server.\r\nTry later.\r\n\r\nUnit.Procedure");
}

TEST(ErrorMessage, DoesWithoutADescription) {
    EXPECT_EQ(error_message(report(5, "")).text, "Error 5\r\n\r\nUnit.Procedure");
}

TEST(ErrorMessage, GoesOnBehindANullCharacter) {
    EXPECT_EQ(error_message(report(5, std::string("a\0b", 3))).text, "Error 5: a b\r\n\r\nUnit.Procedure");
}

TEST_F(ErrorReporting, NothingIsToldThatTheHostTook) {
    host.error_classes[ErrorLibrary::brxError6] = ErrorClass::works;
    const ShowingScope showing;
    fails("A.a");
    EXPECT_EQ(told, Notes());
    EXPECT_EQ(host.reports.size(), 1U);
}

TEST_F(ErrorReporting, TellsOnceForEachNumberAndPlace) {
    const ShowingScope showing;
    for (int times = 0; times < 2; ++times) {
        fails("A.a", 5);
        fails("A.a", 6);
        fails("B.a", 5);
    }
    EXPECT_EQ(told,
              (Notes{"Error 5: What\r\n\r\nA.a", "Error 6: What\r\n\r\nA.a", "Error 5: What\r\n\r\nB.a"}));
}

TEST_F(ErrorReporting, AShowingWithinAnotherIsAPartOfIt) {
    {
        const ShowingScope outer;
        {
            const ShowingScope inner;
            fails("A.a");
            fails_in_a_timer("A.Timer1_Timer");
        }
        fails("A.a");
        fails_in_a_timer("B.Timer1_Timer");
        const ShowingScope next;
        fails("A.a");
        EXPECT_EQ(told.size(), 2U);
    }
    const ShowingScope later;
    fails("A.a");
    fails_in_a_timer("B.Timer1_Timer");
    EXPECT_EQ(told.size(), 4U);
}

TEST_F(ErrorReporting, WhatAFormReportsIsToldOnceInEachOfItsShowings) {
    const ShowingScope whole;
    const ShowingScope outer("Outer");
    for (int times = 0; times < 2; ++times) {
        const ShowingScope inner("Inner");
        fails("Inner.OK");
        fails("Inner.OK");
        fails("Outer.Close");
    }
    fails("Outer.Close");
    EXPECT_EQ(told, (Notes{"Error 5: What\r\n\r\nInner.OK", "Error 5: What\r\n\r\nOuter.Close",
                           "Error 5: What\r\n\r\nInner.OK"}));
}

TEST_F(ErrorReporting, WhatNoFormReportsBelongsToTheFormThatWasShownLast) {
    const ShowingScope whole;
    fails("Tools.a");
    fails("Tools.a");
    EXPECT_EQ(told.size(), 1U) << "None is shown yet.";
    const ShowingScope form_around("Form");
    for (int times = 0; times < 2; ++times) {
        const ShowingScope of_a_class;
        fails("Tools.a");
        fails("Tools.b");
    }
    EXPECT_EQ(told.size(), 3U);
}

TEST_F(ErrorReporting, AFormIsKnownByItsWholeName) {
    const ShowingScope longer_name("Former");
    for (int times = 0; times < 2; ++times) {
        const ShowingScope beginning("Form");
        fails("Former.a");
    }
    EXPECT_EQ(told.size(), 1U);
}

TEST_F(ErrorReporting, OfTimersIsToldOnceHoweverOftenAFormIsShown) {
    const ShowingScope whole;
    for (int times = 0; times < 2; ++times) {
        const ShowingScope inner("Inner");
        fails_in_a_timer("Inner.Timer1_Timer");
        fails_in_a_timer("Outer.Timer1_Timer");
    }
    EXPECT_EQ(told.size(), 1U);
}

TEST_F(ErrorReporting, TheShowingOfAFormBeginsBeforeItLoads) {
    const ShowingScope whole;
    form.on_load = [&] { fails("OneForm.Form_Load"); };
    for (int times = 0; times < 2; ++times) while_open([&] { fails("OneForm.Form_Load"); });
    EXPECT_EQ(told.size(), 2U);
}

TEST_F(ErrorReporting, OutsideOfAnyShowingEverythingIsTold) {
    fails("A.a");
    fails("A.a");
    EXPECT_EQ(told.size(), 2U);
}

TEST_F(ErrorReporting, TellsOnceOfAllTimersAndThenStillOfEverythingElse) {
    const ShowingScope showing;
    fails_in_a_timer("A.Timer1_Timer", 5);
    fails_in_a_timer("A.Timer1_Timer", 6);
    fails_in_a_timer("B.Timer1_Timer", 5);
    EXPECT_EQ(told.size(), 1U);
    fails("B.Timer1_Timer", 5);
    fails("A.Timer1_Timer", 5);
    EXPECT_EQ(told.size(), 2U) << "What a timer has told is told, what it has not is not.";
}

TEST_F(ErrorReporting, ATimerThatHasNothingNewToTellMayStillTellOnce) {
    const ShowingScope showing;
    fails("A.a");
    fails_in_a_timer("A.a");
    EXPECT_EQ(told.size(), 1U);
    fails_in_a_timer("A.Timer1_Timer");
    EXPECT_EQ(told.size(), 2U);
}

TEST_F(ErrorReporting, WhatAPersonDoesInADialogThatATimerOpenedIsNotTheTimers) {
    const ShowingScope showing;
    fails_in_a_timer("A.Timer1_Timer");
    {
        const TimerTurn timer;
        const ModalTurn dialog(&form);
        EXPECT_FALSE(turn::is_timer_running());
        fails("A.bnOK_Click");
    }
    EXPECT_EQ(told.size(), 2U);
    EXPECT_FALSE(turn::is_timer_running());
}

TEST_F(ErrorReporting, ATickIsATimersAlsoWithinOtherCode) {
    const TimerTurn timer;
    {
        const CodeTurn code;
        const TimerTurn inner;
        EXPECT_TRUE(turn::is_timer_running());
    }
    EXPECT_TRUE(turn::is_timer_running());
    {
        const ModalTurn dialog(&form);
        EXPECT_FALSE(turn::is_timer_running());
    }
    EXPECT_TRUE(turn::is_timer_running()) << "Its handler goes on.";
}

TEST_F(ErrorReporting, NoMessageComesOverThatOfAnError) {
    const ShowingScope showing;
    while_told = [&] {
        fails("A.b");
        fails_in_a_timer("A.Timer1_Timer");
    };
    fails("A.a");
    EXPECT_EQ(told, Notes{"Error 5: What\r\n\r\nA.a"});
    while_told = [] {};
    fails("A.b");
    fails_in_a_timer("A.Timer1_Timer");
    EXPECT_EQ(told.size(), 3U) << "They were not told then, so they are now.";
}

TEST_F(ErrorReporting, ATimerWaitsUntilAMessageIsAnsweredAndOtherCodeDoesNot) {
    const ShowingScope showing;
    {
        const ModalTurn question(nullptr);
        EXPECT_TRUE(turn::is_message_box_open());
        fails_in_a_timer("A.Timer1_Timer");
        EXPECT_EQ(told.size(), 0U);
        fails("A.a");
        EXPECT_EQ(told.size(), 1U);
        const ModalTurn dialog(&form);
        EXPECT_FALSE(turn::is_message_box_open()) << "A dialog lies over it.";
    }
    EXPECT_FALSE(turn::is_message_box_open());
    fails_in_a_timer("A.Timer1_Timer");
    EXPECT_EQ(told.size(), 2U);
}

TEST_F(ErrorReporting, AMessageThatCannotBeShownIsNoErrorOfItsOwnAndHindersNoOther) {
    const ShowingScope showing;
    const auto asked = engine.while_asking;
    engine.while_asking = [&](const Message& message) -> std::int32_t {
        asked(message);
        throw Error(error::out_of_memory);
    };
    fails("A.a");
    engine.while_asking = asked;
    const std::size_t before = told.size();
    fails("A.b");
    EXPECT_EQ(told.size(), before + 1);
    EXPECT_EQ(turn::top_form(), nullptr);
    EXPECT_EQ(host.all_reports.size(), 2U);
}

TEST_F(ErrorReporting, ItIsAPersonsTurnWhileSheIsTold) {
    const ShowingScope showing;
    while_told = [&] {
        EXPECT_FALSE(turn::is_code_running());
        EXPECT_TRUE(turn::is_message_box_open());
        EXPECT_EQ(turn::front(), nullptr);
        EXPECT_EQ(current_location(), "") << "Nobody reports what fails now.";
    };
    const CodeTurn code;
    fails("A.a");
    EXPECT_EQ(told.size(), 1U);
    EXPECT_TRUE(turn::is_code_running());
}

TEST_F(ErrorReporting, TheFormBelowIsBroughtUpToDateFirst) {
    while_open([&] {
        struct Watching : Peer {
            explicit Watching(Element& element) : Peer(element) {}
            Notes seen;
            void refresh(Aspect) override { seen.emplace_back("refreshed"); }
        } label(form.label);
        const ShowingScope showing;
        while_told = [&] { EXPECT_EQ(label.seen, Notes{"refreshed"}); };
        form.on_click = [&] {
            form.label.set_caption("Changed");
            EXPECT_EQ(label.seen, Notes());
            fails("A.a");
        };
        EXPECT_TRUE(form.button.user_click());
        EXPECT_EQ(told.size(), 1U);
    });
}

TEST_F(ErrorReporting, ATimersTickOfAFormCountsAsATimers) {
    while_open([&] {
        const ShowingScope showing;
        form.on_tick = [&] {
            EXPECT_TRUE(turn::is_timer_running());
            fails("OneForm.timer_Timer");
        };
        EXPECT_TRUE(form.timer.tick());
        EXPECT_FALSE(turn::is_timer_running());
        form.on_tick = [&] { fails("OneForm.somewhere else"); };
        EXPECT_TRUE(form.timer.tick());
        EXPECT_EQ(told, Notes{"Error 5: What\r\n\r\nOneForm.timer_Timer"});
    });
}
