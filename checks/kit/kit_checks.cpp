// What the check kit's program makes of the logs of check programs.

#include "kit/outcome.h"
#include "kit/sentence.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace brx::kit;

namespace {

Outcome read(const char* log) {
    std::istringstream in(log);
    return outcome_of(in);
}

constexpr const char* one_of_each = "[ RUN      ] RulesTest.Holds\r\n"
                                    "[       OK ] RulesTest.Holds (1 ms)\r\n"
                                    "[ RUN      ] RulesTest.Breaks/0\r\n"
                                    "rules.cpp:12: Failure\r\n"
                                    "  Actual: 2\r\n"
                                    "[  FAILED  ] RulesTest.Breaks/0, where GetParam() = 2 (1 ms)\r\n"
                                    "[ RUN      ] RulesTest.Waits\r\n"
                                    "rules.cpp:30: Skipped\r\n"
                                    "it needs an administrator\r\n"
                                    "\r\n"
                                    "[  SKIPPED ] RulesTest.Waits (0 ms)\r\n"
                                    "[==========] 3 tests ran.\r\n"
                                    "[  FAILED  ] 1 test, listed below:\r\n"
                                    "[  FAILED  ] RulesTest.Breaks/0, where GetParam() = 2\r\n"
                                    "1 passed, 1 failed, 1 skipped\r\n";

} // namespace

TEST(SentenceTest, NamesOfChecksAreSplitIntoWords) {
    EXPECT_EQ(sentence("RegistrationTest.ForTheUserNothingIsLeftBehind"),
              "Registration: for the user nothing is left behind");
    EXPECT_EQ(sentence("ServicesTest.AMessageBoxIsModal"), "Services: a message box is modal");
    EXPECT_EQ(sentence("Lists.TheCOMObjectIsALine"), "Lists: the COM object is a line");
    EXPECT_EQ(sentence("SystemHandlesCheck.NoticesPens"), "System handles: notices pens");
}

TEST(SentenceTest, TheValueOfACheckStandsBehindIt) {
    EXPECT_EQ(sentence("EachDialog/Apart.TheServerDies/ServerSelect"),
              "Apart: the server dies (ServerSelect)");
}

TEST(SentenceTest, WhatIsNoNameStaysAsItIs) { EXPECT_EQ(sentence("fr-FR 1e3"), "fr-FR 1e3"); }

TEST(OutcomeTest, ALogTellsWhatFailedAndWhatWasSkippedAndWhy) {
    const Outcome outcome = read(one_of_each);
    EXPECT_TRUE(outcome.closed);
    EXPECT_EQ(closing_line(outcome), "1 passed, 1 failed, 1 skipped");
    ASSERT_EQ(outcome.failures.size(), 1U) << "The list at the end names it again.";
    EXPECT_EQ(outcome.failures[0].check, "RulesTest.Breaks/0");
    EXPECT_EQ(outcome.failures[0].text, "rules.cpp:12: Failure\n  Actual: 2\n");
    ASSERT_EQ(outcome.skips.size(), 1U);
    EXPECT_EQ(outcome.skips[0].check, "RulesTest.Waits");
    EXPECT_EQ(outcome.skips[0].text, "it needs an administrator");
    EXPECT_EQ(complaint(outcome, {.status = 1}, false), "");
}

TEST(OutcomeTest, AProgramWithoutGoogleTestTellsItInLines) {
    const Outcome outcome = read("FAILED: CStr of 1.5\nSKIPPED: no French\n4 passed, 1 failed, 1 skipped\n");
    ASSERT_EQ(outcome.failures.size(), 1U);
    EXPECT_EQ(outcome.failures[0].check, "CStr of 1.5");
    ASSERT_EQ(outcome.skips.size(), 1U);
    EXPECT_EQ(outcome.skips[0].text, "no French");
}

TEST(OutcomeTest, WithoutItsClosingLineAProgramHasFailedWhateverItsStatus) {
    const Outcome outcome = read("[ RUN      ] RulesTest.Crashes\nsome words\n");
    EXPECT_FALSE(outcome.closed);
    EXPECT_EQ(complaint(outcome, {.status = 0}, true),
              "it ended with status 0 before its closing line, in RulesTest.Crashes");
    EXPECT_EQ(complaint(outcome, {.in_time = false}, true),
              "it was ended at its time limit, in RulesTest.Crashes");
    EXPECT_FALSE(read("1 passed, 0 failed, 0 skippers\n").closed);
    EXPECT_FALSE(read("").closed);
}

TEST(OutcomeTest, AProgramThatEndsBadlyAfterItsChecksHasFailed) {
    const Outcome outcome = read("3 passed, 0 failed, 0 skipped\n");
    EXPECT_EQ(complaint(outcome, {}, false), "");
    EXPECT_EQ(complaint(outcome, {.status = 5}, false), "all its checks passed, but it ended with status 5");
    EXPECT_EQ(complaint(outcome, {.in_time = false}, false), "it was ended at its time limit");
}

TEST(OutcomeTest, AProgramThatRanNothingHasFailedUnlessNothingOfItWasAsked) {
    const Outcome outcome = read("0 passed, 0 failed, 0 skipped\n");
    EXPECT_EQ(complaint(outcome, {.status = 1}, false), "no check ran");
    EXPECT_EQ(complaint(outcome, {.status = 1}, true), "");
}
