#include "sample/collect_stage.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace brx::collect {

namespace {

using testing::ElementsAre;

class CollectPieces : public CollectCheck {};

TEST_F(CollectPieces, AreEachNewValueWhenNothingSaysWhen) {
    begin();
    for (const double weight : {1, 2, 2, 3}) weighs(weight);
    EXPECT_EQ(story(), "1 2 | 3");
}

TEST_F(CollectPieces, AreWhatTheItemHasWhenTheClockSaysSo) {
    settings.piece = every(3, 0);
    begin();
    for (const double weight : {1, 2, 3, 4, 5, 5}) weighs(weight);
    EXPECT_EQ(story(), "(1) (2) 3 (4) (5) 5 |");
}

TEST_F(CollectPieces, AreTakenWhenTheTriggersItemChangesToFulfilIt) {
    settings.piece = when("Ready", 1, true);
    values.values["Ready"] = true;
    begin();
    weighs(1);
    becomes("Ready", false);
    EXPECT_EQ(story(), "(1)");
    becomes("Ready", true);
    weighs(2);
    becomes("Ready", false);
    becomes("Ready", true);
    EXPECT_EQ(story(), "(1) 1 (2) 2 |");
}

TEST_F(CollectPieces, AreTakenByClockAndTriggerWhenBothAreSet) {
    settings.piece = {4, 0, "Count", {0, Empty{}}};
    values.values["Count"] = std::int32_t{1};
    begin();
    weighs(1);
    becomes("Count", std::int32_t{2});
    weighs(2);
    weighs(3);
    EXPECT_EQ(story(), "(1) 1 (2) 3 |");
}

TEST_F(CollectPieces, OfATestWithATriggerOfItsOwnAreItsOwnChangesThatFulfilIt) {
    settings.tests[0].own_trigger = true;
    settings.tests[0].condition = {2, 5.0};
    settings.tests.push_back({.id = 2, .item = "Weight", .condition = {2, 5.0}});
    settings.piece = every(1, 0);
    begin();
    for (const double weight : {4, 6, 6, 5, 7}) weighs(weight);
    EXPECT_EQ(story(1), "(4) 6 (5) 7 |");
    EXPECT_EQ(story(2), "4 6 | 6 5 | 7");
}

TEST_F(CollectPieces, AreSavedAsTheTestSays) {
    const auto collected = [&](SaveAs save_as) {
        settings.tests[0].save_as = save_as;
        settings.tests[0].constant = 9;
        values.values["Weight"] = 100.0;
        begin();
        weighs(-3);
        weighs(4);
        return story();
    };
    EXPECT_EQ(collected(SaveAs::actual), "-3 4 |");
    EXPECT_EQ(collected(SaveAs::absolute), "3 4 |");
    EXPECT_EQ(collected(SaveAs::reversed), "3 -4 |");
    EXPECT_EQ(collected(SaveAs::constant), "9 9 |");
}

TEST_F(CollectPieces, AreNumbersOnly) {
    begin();
    becomes("Weight", std::string("heavy"));
    EXPECT_FALSE(collector->has_number(1));
    becomes("Weight", std::string("12"));
    becomes("Weight", true);
    EXPECT_TRUE(collector->has_number(1));
    EXPECT_EQ(story(), "12 -1 |");
}

TEST_F(CollectPieces, AreFiniteNumbersOnly) {
    settings.piece = every(1, 0);
    for (const double range : {0.0, 50.0}) {
        if (range > 0) values.ranges["Weight"] = range;
        begin();
        for (const double weight : {std::nan(""), HUGE_VAL, -HUGE_VAL}) {
            weighs(weight);
            EXPECT_FALSE(collector->has_number(1));
        }
        becomes("Weight", std::numeric_limits<float>::quiet_NaN());
        weighs(7);
        EXPECT_EQ(story(), "7");
    }
}

TEST_F(CollectPieces, OfAConstantThatIsNoNumberAreNotTaken) {
    settings.tests[0].save_as = SaveAs::constant;
    settings.tests[0].constant = std::nan("");
    begin();
    weighs(1);
    EXPECT_EQ(story(), "");
}

TEST_F(CollectPieces, AreNotTakenOfAnItemWithoutAValue) {
    settings.piece = every(1, 0);
    begin();
    weighs(1);
    values.values.erase("Weight");
    pass(3);
    EXPECT_FALSE(collector->has_number(1));
    weighs(2);
    EXPECT_EQ(story(), "1 2 |");
}

TEST_F(CollectPieces, AreNotTakenWhileTheConfigurationIsNotActive) {
    settings.active = false;
    begin();
    weighs(1);
    weighs(2);
    EXPECT_EQ(story(), "");
}

class CollectFeed : public CollectCheck {};

TEST_F(CollectFeed, LooksOnceInAnUpdateRate) {
    settings.update_rate = 3000;
    begin();
    for (const double weight : {1, 2, 3, 4, 5, 6}) weighs(weight);
    EXPECT_EQ(story(), "3 6 |");
}

TEST_F(CollectFeed, PassesOverWhatStaysInTheDeadBandOfTheRange) {
    settings.dead_band = 10;
    values.ranges["Weight"] = 50;
    begin();
    for (const double weight : {105.0, 106.0, 110.0, 111.5}) weighs(weight);
    EXPECT_EQ(story(), "106 111 |");
}

TEST_F(CollectFeed, HasNoDeadBandForAnItemWithoutARange) {
    settings.dead_band = 10;
    begin();
    weighs(101);
    EXPECT_EQ(story(), "101");
}

TEST_F(CollectFeed, KnowsAValueAgainThatIsNoNumber) {
    settings.piece = when("Ready", 0, Empty{});
    values.values["Ready"] = true;
    begin();
    for (const Variant& odd : {Variant(std::nan("")), Variant(std::numeric_limits<float>::quiet_NaN())}) {
        becomes("Ready", false);
        const std::size_t before = series().points().size();
        becomes("Ready", odd);
        pass(3);
        EXPECT_EQ(series().points().size(), before + 1);
    }
}

TEST_F(CollectFeed, TellsAValueThatComesBackAsTheFirstOne) {
    begin();
    values.values.erase("Weight");
    pass(1);
    weighs(7);
    EXPECT_EQ(story(), "");
    weighs(8);
    EXPECT_EQ(story(), "8");
}

} // namespace

} // namespace brx::collect
