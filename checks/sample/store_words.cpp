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

} // namespace

} // namespace brx::host
