#include "host/error_tally.h"
#include "host/log.h"
#include "host/words.h"

#include <gtest/gtest.h>

namespace brx::host {

namespace {

TEST(StoreWords, SayAQualityWithItsReasonAndItsLimits) {
    EXPECT_EQ(quality_in_words(0), "bad");
    EXPECT_EQ(quality_in_words(0x04), "bad, configuration error");
    EXPECT_EQ(quality_in_words(0x08), "bad, not connected");
    EXPECT_EQ(quality_in_words(0x1C), "bad, out of service");
    EXPECT_EQ(quality_in_words(0x44), "uncertain, last usable value");
    EXPECT_EQ(quality_in_words(0x56), "uncertain, engineering units exceeded, at its high limit");
    EXPECT_EQ(quality_in_words(0xC0), "good");
    EXPECT_EQ(quality_in_words(0xD8), "good, local override");
    EXPECT_EQ(quality_in_words(0x11), "bad, sensor failure, at its low limit");
}

TEST(StoreWords, SayAQualityThatNobodyHasAWordForByItsNumber) {
    EXPECT_EQ(quality_in_words(0x3C), "bad, status 15");
    EXPECT_EQ(quality_in_words(0x80), "of unknown quality, status 0");
    EXPECT_EQ(quality_in_words(0x4C), "uncertain, status 3");
}

TEST(StoreWords, HaveNoEyeForWhatOnlyTheVendorKnows) {
    EXPECT_EQ(quality_in_words(0x7F08), "bad, not connected");
    EXPECT_EQ(quality_in_words(-1), "good, status 15, constant"); // a 16-bit quality whose sign was kept
}

class StoreErrors : public testing::Test {
protected:
    bool add(const ReportedError& error, double now) { return errors.add(error, now); }
    std::string last_line() const { return log.line(log.count()); }

    const ReportedError ticking{91, "Object variable not set", "dlgConfiguration.Timer1_Timer"};
    const ReportedError pressed{13, "Type mismatch", "dlgServerAdd.bnOK_Click"};
    Log log;
    ErrorTally errors{log};
};

TEST_F(StoreErrors, OfATimerAreToldInOneBoxForAsLongAsTheyKeepComing) {
    EXPECT_TRUE(add(ticking, 100));
    EXPECT_EQ(errors.more_like(ticking), "");
    for (int second = 101; second <= 120; ++second) EXPECT_FALSE(add(ticking, second));
    EXPECT_EQ(errors.more_like(ticking), "and 20 more like it");
    errors.box_closed(ticking, 120);
    for (int second = 121; second <= 141; ++second) EXPECT_FALSE(add(ticking, second));
    EXPECT_EQ(errors.last(141),
              "Error 91 in dlgConfiguration.Timer1_Timer: Object variable not set, and 41 more like it");
    EXPECT_EQ(log.count(), 1U);
}

TEST_F(StoreErrors, OfATimerAreToldAgainAfterTheyHadStopped) {
    add(ticking, 100);
    errors.box_closed(ticking, 105);
    add(ticking, 106);
    EXPECT_FALSE(add(ticking, 165));
    EXPECT_TRUE(add(ticking, 226));
    EXPECT_EQ(log.line(1), "Error 91 in dlgConfiguration.Timer1_Timer: Object variable not set");
    EXPECT_EQ(log.line(2),
              "Error 91 in dlgConfiguration.Timer1_Timer: Object variable not set, and 2 more like it");
    EXPECT_EQ(log.count(), 3U);
}

/// It rests for as long as the box has kept it.
TEST_F(StoreErrors, OfATimerAreStillTheSameAfterALongLookAtTheirBox) {
    add(ticking, 100);
    errors.box_closed(ticking, 400);
    EXPECT_FALSE(add(ticking, 701));
}

TEST_F(StoreErrors, ThatAPersonMeetsAgainAreToldAgain) {
    EXPECT_TRUE(add(pressed, 100));
    errors.box_closed(pressed, 102);
    EXPECT_TRUE(add(pressed, 103));
    EXPECT_EQ(log.count(), 2U);
}

TEST_F(StoreErrors, AreOnlyCountedWhileTheirBoxIsOpen) {
    EXPECT_TRUE(add(pressed, 100));
    EXPECT_FALSE(add(pressed, 300));
    EXPECT_EQ(errors.more_like(pressed), "and 1 more like it");
}

TEST_F(StoreErrors, OfAnotherNumberOrPlaceAreToldBesides) {
    EXPECT_TRUE(add(ticking, 100));
    ReportedError other = ticking;
    other.number = 13;
    EXPECT_TRUE(add(other, 101));
    other.location = "dlgServerInformation.Timer1_Timer";
    EXPECT_TRUE(add(other, 102));
    EXPECT_FALSE(add(ticking, 103));
    EXPECT_EQ(errors.more_like(other), "");
    EXPECT_EQ(errors.last(103).substr(0, 9), "Error 91 ");
}

TEST_F(StoreErrors, AreNotToldForEver) {
    EXPECT_EQ(errors.last(100), "");
    add(ticking, 100);
    add(ticking, 101);
    errors.box_closed(ticking, 101);
    EXPECT_NE(errors.last(150), "");
    EXPECT_EQ(errors.last(163), "");
    EXPECT_EQ(last_line().find("and 1 more like it") != std::string::npos, true);
    EXPECT_EQ(errors.last(200), "");
    EXPECT_EQ(log.count(), 2U);
}

} // namespace

} // namespace brx::host
