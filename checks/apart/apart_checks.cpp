#include "apart/apart_suite.h"
#include "apart/waiting_watch.h"

#include <thread>

// The dialogs with an OPC server in another process, as most are: calls travel by the system's proxies.

namespace brx::checks {

namespace {

std::string name_of_story(const testing::TestParamInfo<MainStory>& story) { return story.param.name; }

} // namespace

TEST_P(Apart, ThePersonDoesItAndEverythingIsGivenBack) {
    ApartPlay its;
    play(its, story());
    its.expect_clean_end();
}

TEST_P(Apart, TheSameWhenEachCallTakesItsTimeAndThePersonIsToldWhatIsWaitedFor) {
    ApartPlay its(L"--delay " + std::to_wstring(GetParam().delay));
    WaitingWatch watch;
    play(its, story());
    its.expect_clean_end();
    EXPECT_EQ(watch.seen().empty(), GetParam().in_ticks);
}

TEST_P(Apart, TheSameWhenTheServerIsSuspendedAndResumed) {
    ApartPlay its;
    WaitingWatch watch;
    its.server().suspend();
    std::thread somebody([&] {
        Sleep(1'600);
        its.server().resume();
    });
    play(its, story());
    somebody.join();
    its.expect_clean_end();
    EXPECT_EQ(watch.seen().empty(), GetParam().in_ticks);
}

INSTANTIATE_TEST_SUITE_P(EachDialog, Apart, testing::ValuesIn(main_stories()), name_of_story);

} // namespace brx::checks
