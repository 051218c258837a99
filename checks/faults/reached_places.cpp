#include "faults.h"
#include "scenario.h"

#include <gtest/gtest.h>

// The last check of its program: what is known of failing calls is still true when all stories have been
// played.

using namespace brx::checks;

TEST(PlacesOfFailure, AreAllReachedByAScenario) {
    const auto& all = *testing::UnitTest::GetInstance();
    for (int i = 0; i < all.total_test_suite_count(); ++i) {
        const testing::TestSuite& suite = *all.GetTestSuite(i);
        if (!plays_with_a_failing_host(suite.name())) continue;
        for (int j = 0; j < suite.total_test_count(); ++j) {
            const testing::TestInfo& scenario = *suite.GetTestInfo(j);
            const std::string name = std::string(suite.name()) + "." + scenario.name();
            if (!scenario.should_run()) GTEST_SKIP() << name << " is left out of this run.";
            const bool played = scenario.result()->start_timestamp() != 0;
            if (!played && GTEST_FLAG_GET(shuffle)) GTEST_SKIP() << name << " comes later in this order.";
            ASSERT_TRUE(played) << name << " comes after this check.";
        }
    }
    for (const std::string& place : known_places_of_failure())
        EXPECT_TRUE(places_that_stories_reached().contains(place)) << place;
}
