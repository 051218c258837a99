#include "sample/collect_stage.h"

#include <gmock/gmock.h>

namespace brx::collect {

namespace {

using testing::ElementsAre;
using testing::SizeIs;

class CollectSubgroups : public CollectCheck {};

TEST_F(CollectSubgroups, FollowOneAnotherWhenNothingSaysWhen) {
    begin();
    for (const double weight : {1, 2, 3, 4}) weighs(weight);
    EXPECT_EQ(story(), "1 2 | 3 4 |");
    EXPECT_EQ(series().complete_subgroups(), 2);
    EXPECT_EQ(series().subgroup(2)->mean(), 3.5);
}

TEST_F(CollectSubgroups, BeginWhenTheClockSaysSo) {
    settings.subgroup = every(5, 0);
    begin();
    for (int weight = 1; weight <= 11; ++weight) weighs(weight);
    EXPECT_EQ(story(), "(1) (2) (3) (4) 5 6 | (7) (8) (9) 10 11 |");
}

TEST_F(CollectSubgroups, BeginWhenTheirTriggerSaysSo) {
    settings.subgroup = when("Batch", 6, std::string("none"));
    values.values["Batch"] = std::string("A");
    begin();
    weighs(1);
    becomes("Batch", std::string("none"));
    weighs(2);
    becomes("Batch", std::string("B"));
    weighs(3);
    EXPECT_EQ(story(), "(1) (2) 3");
}

TEST_F(CollectSubgroups, AreFilledBeforeTheNextOneBegins) {
    settings.subgroup = every(2, 0);
    settings.subgroup_size = 3;
    begin();
    for (int weight = 1; weight <= 8; ++weight) weighs(weight);
    EXPECT_EQ(story(), "(1) 2 3 4 | (5) 6 7 8 |");
}

TEST_F(CollectSubgroups, OfOnePieceAtLeast) {
    settings.subgroup_size = 0;
    begin();
    weighs(1);
    weighs(2);
    EXPECT_EQ(story(), "1 | 2 |");
}

TEST_F(CollectSubgroups, AreEachTestsOwn) {
    settings.tests.push_back({.id = 2, .item = "Torque", .condition = {}});
    values.values["Torque"] = 0.0;
    begin();
    for (const double weight : {1, 2, 3}) weighs(weight);
    becomes("Torque", 5.0);
    EXPECT_EQ(story(1), "1 2 | 3");
    EXPECT_EQ(story(2), "5");
}

TEST_F(CollectSubgroups, KeepWhatDescribesThemAsItWasWhenTheyBegan) {
    settings.descriptors = {{0, "Bottle 0.5 l", "Bottles"}, {3, "(%Batch)", ""}, {5, "(%gone)", "(%Line)"}};
    values.values["Batch"] = std::string("B-1");
    values.values["Line"] = std::int16_t{4};
    begin();
    weighs(1);
    values.values["Batch"] = std::string("B-2");
    weighs(2);
    weighs(3);
    EXPECT_THAT(series().subgroup(1)->labels,
                ElementsAre(Label{0, "Bottle 0.5 l", "Bottles"}, Label{3, "B-1", ""}, Label{5, "", "4"}));
    EXPECT_EQ(series().subgroup(2)->labels[1].item, "B-2");
}

TEST_F(CollectSubgroups, MakeRoomForNewOnes) {
    settings.subgroup_size = 1;
    begin();
    for (int weight = 1; weight <= 70; ++weight) weighs(weight);
    EXPECT_THAT(series().points(), SizeIs(Series::kept_points));
    EXPECT_EQ(series().points().back().value, 70);
    EXPECT_EQ(series().subgroup(10), nullptr);
    EXPECT_EQ(series().complete_subgroups(), 70);
}

TEST_F(CollectSubgroups, AreNotCrowdedOutByWhatCameInBetween) {
    settings.tests[0].own_trigger = true;
    settings.tests[0].condition = {2, 500.0};
    begin();
    weighs(900);
    for (int weight = 1; weight <= 100; ++weight) weighs(weight);
    EXPECT_EQ(story(), "900 (93) (94) (95) (96) (97) (98) (99) (100)");
}

class CollectNewSettings : public CollectCheck {
protected:
    void take_over() {
        collector->take_over(settings);
        collector->tick(values, clock.now());
    }
};

TEST_F(CollectNewSettings, KeepWhatIsCompleteAndBreakOffWhatIsNot) {
    begin();
    for (const double weight : {1, 2, 3}) weighs(weight);
    settings.subgroup_size = 3;
    take_over();
    for (const double weight : {4, 5, 6}) weighs(weight);
    EXPECT_EQ(story(), "1 2 | (3) 4 5 6 |");
    EXPECT_EQ(series().complete_subgroups(), 2);
}

TEST_F(CollectNewSettings, BeginATestAfreshThatHasAnotherItemOrCharacteristicOrIsSavedInAnotherWay) {
    values.values["Torque"] = 0.0;
    begin();
    weighs(1);
    weighs(2);
    settings.tests[0].item = "Torque";
    take_over();
    EXPECT_EQ(story(), "");
    becomes("Torque", 7.0);
    EXPECT_EQ(story(), "7");
    settings.tests[0].save_as = SaveAs::reversed;
    take_over();
    EXPECT_EQ(story(), "");
    becomes("Torque", 8.0);
    EXPECT_EQ(story(), "-8");
    settings.tests[0].characteristic = 102;
    take_over();
    EXPECT_EQ(story(), "");
}

TEST_F(CollectNewSettings, LeaveOutATestThatIsGone) {
    begin();
    weighs(1);
    settings.tests.clear();
    take_over();
    weighs(2);
    EXPECT_EQ(story(), "");
    EXPECT_EQ(collector->test(1), nullptr);
}

} // namespace

} // namespace brx::collect
