#include "common/values/part_of.h"

#include <gtest/gtest.h>

using namespace brx;

TEST(PartOfText, IsFoundAnywhereInAnyCase) {
    EXPECT_TRUE(PartOf("spe").is_in("Line1.SPEED"));
    EXPECT_TRUE(PartOf("LINE").is_in("Line1.SPEED"));
    EXPECT_TRUE(PartOf("line1.speed").is_in("Line1.SPEED"));
    EXPECT_FALSE(PartOf("line1.speedy").is_in("Line1.SPEED"));
    EXPECT_FALSE(PartOf("x").is_in(""));
    EXPECT_FALSE(PartOf("[").is_in("{")) << "They differ as letters of two cases do.";
}

TEST(PartOfText, OfAnyScriptIsFound) {
    EXPECT_TRUE(PartOf("übER").is_in("Die ÜBERLAST"));
    EXPECT_TRUE(PartOf("last").is_in("Die ÜBERLAST"));
    EXPECT_FALSE(PartOf("uber").is_in("Die ÜBERLAST"));
    EXPECT_FALSE(PartOf("ü").is_in("Last"));
}

TEST(PartOfText, AnEmptyPartIsInEveryText) {
    EXPECT_TRUE(PartOf("").is_in(""));
    EXPECT_TRUE(PartOf("").is_in("text"));
}
