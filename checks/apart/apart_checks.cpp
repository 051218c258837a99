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
    const ULONGLONG begun = GetTickCount64();
    play(its, story());
    EXPECT_GE(GetTickCount64() - begun, its.calls().size() * GetParam().delay);
    its.expect_clean_end();
    EXPECT_EQ(watch.seen().empty(), GetParam().in_ticks);
}

TEST_P(Apart, TheSameWhenTheServerIsSuspendedAndResumed) {
    ApartPlay its;
    WaitingWatch watch;
    its.server().suspend();
    std::thread somebody([&] {
        Sleep(2'000);
        its.server().resume();
    });
    const ULONGLONG begun = GetTickCount64();
    play(its, story());
    somebody.join();
    EXPECT_TRUE(its.calls().size() > 0 && GetTickCount64() - begun >= 2'000);
    its.expect_clean_end();
    EXPECT_EQ(watch.seen().empty(), GetParam().in_ticks);
}

INSTANTIATE_TEST_SUITE_P(EachDialog, Apart, testing::ValuesIn(main_stories()), name_of_story);

} // namespace brx::checks
