#include "common/call_gate.h"
#include "common/locales.h"
#include "forms/headless/engine.h"
#include "forms/parted_tick.h"
#include "forms/turn.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

using namespace brx;
using namespace brx::checks;

namespace {

using std::chrono::milliseconds;

struct WorkOf : testing::Test {
    Baton baton;
    HeadlessEngine engine{baton};
    HeadlessWork& work = engine.work();
};

} // namespace

TEST_F(WorkOf, IsShownOnceItHasLastedASecond) {
    const Work::Scope scope(work);
    work.pass(milliseconds(999));
    EXPECT_FALSE(work.is_shown());
    work.pass(milliseconds(1));
    EXPECT_TRUE(work.is_shown());
}

TEST_F(WorkOf, IsTheOutermostHandlers) {
    const Work::Scope outer(work);
    work.waits_for("the outer one");
    work.pass(milliseconds(1000));
    {
        const Work::Scope inner(work);
        EXPECT_EQ(work.report().what, "the outer one");
    }
    EXPECT_TRUE(work.is_shown());
}

TEST_F(WorkOf, StopsCountingWhileAPersonIsAskedSomethingAndBeginsAnewThen) {
    const Work::Scope scope(work);
    work.pass(milliseconds(5000));
    {
        const ModalTurn box(nullptr);
        EXPECT_FALSE(work.is_shown());
        const Work::Scope of_a_tick(work);
        EXPECT_FALSE(work.is_shown()) << "It has just begun.";
        work.pass(milliseconds(5000));
    }
    EXPECT_FALSE(work.is_shown());
    work.pass(milliseconds(1000));
    EXPECT_TRUE(work.is_shown());
}

TEST_F(WorkOf, GoesOnAfterAQuestionWithWhatItWas) {
    const Work::Scope scope(work);
    work.waits_for("the outer one");
    work.counts_to(5);
    work.has_done(2);
    {
        const ModalTurn box(nullptr);
        const Work::Scope of_another(work);
        work.waits_for("another");
        work.stop();
    }
    EXPECT_FALSE(work.is_stopped());
    EXPECT_EQ(told_what(work.report()), "the outer one");
    EXPECT_EQ(told_how_far(work.report(), Locale{}), "0 s - 2 of 5");
    work.stop();
    {
        const ModalTurn box(nullptr);
        const Work::Scope of_another(work);
        EXPECT_FALSE(work.is_stopped());
    }
    EXPECT_TRUE(work.is_stopped());
}

TEST_F(WorkOf, AStopThatWasMeantForOtherWorkComesToNothing) {
    unsigned turn = 0;
    {
        const Work::Scope scope(work);
        turn = work.report().turn;
    }
    const Work::Scope scope(work);
    work.stop(turn);
    EXPECT_FALSE(work.is_stopped());
    work.stop(work.report().turn);
    EXPECT_TRUE(work.is_stopped());
}

TEST_F(WorkOf, EachHandlerBeginsWithNothingStoppedAndNothingTold) {
    {
        const Work::Scope scope(work);
        work.waits_for("something");
        work.counts_to(5);
        work.stop();
        EXPECT_TRUE(work.is_stopped());
    }
    const Work::Scope scope(work);
    EXPECT_FALSE(work.is_stopped());
    EXPECT_EQ(told_what(work.report()), "Waiting for the server");
    EXPECT_EQ(told_how_far(work.report(), Locale{}), "0 s");
}

TEST_F(WorkOf, ADialogThatAnUndoingCallShowsObeysAStopItself) {
    const Work::Scope scope(work);
    const call_gate::Undoing undoing;
    {
        const Work::Pause pause;
        const Work::Scope of_the_dialog(work);
        work.pass(milliseconds(1000));
        work.stop();
        EXPECT_THROW(call_gate::pass(), Stopped);
    }
    work.pass(milliseconds(1000));
    work.stop();
    EXPECT_NO_THROW(call_gate::pass()) << "What is undone is undone.";
}

TEST_F(WorkOf, AListEndsBeforeTheNextLineWhenThatIsWanted) {
    const Work::Scope scope(work);
    std::vector<int> visited;
    const auto visit = [&](int i) {
        visited.push_back(i);
        if (i == 2) work.leave();
    };
    EXPECT_EQ(work.each(4, visit), 2);
    EXPECT_EQ(visited, (std::vector<int>{1, 2}));
    EXPECT_EQ(work.report().done, 2);
    EXPECT_EQ(work.report().total, 4);
    EXPECT_THROW(work.all(4, visit), Left);
    EXPECT_THROW(work.first_of(4, [](int) { return true; }), Left);
    work.stop();
    EXPECT_THROW(work.expect_no_stop(), Stopped);
    EXPECT_EQ(work.each(4, visit), 0);
    EXPECT_EQ(visited.size(), 2U);
}

TEST_F(WorkOf, AStopThatCameAtTheLastLineLeavesTheListWhole) {
    const Work::Scope scope(work);
    EXPECT_NO_THROW(work.all(2, [&](int i) {
        if (i == 2) work.stop();
    }));
}

TEST_F(WorkOf, WhoLeavesWhatSheHasStoppedHasStoppedIt) {
    const Work::Scope scope(work);
    work.stop();
    work.leave();
    EXPECT_TRUE(Work::refuses_calls());
}

TEST_F(WorkOf, IsToldWithTheUsersSignBetweenThousands) {
    Work::Report report{.what = "", .done = 12000, .total = 1234567, .lasted = milliseconds(1059999)};
    EXPECT_EQ(told_how_far(report, Locale{}), "1,059 s - 12,000 of 1,234,567");
    EXPECT_EQ(told_how_far(report, make_german()), "1.059 s - 12.000 of 1.234.567");
    report.done = 999;
    report.total = 1000;
    EXPECT_EQ(told_how_far(report, Locale{}), "1,059 s - 999 of 1,000");
}
