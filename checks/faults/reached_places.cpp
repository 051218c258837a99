#include "faults.h"
#include "faults/looking_back.h"
#include "scenario.h"

#include <gtest/gtest.h>

// After all stories: what is known of failing calls is still true when they have been played.

using namespace brx::checks;

TEST(PlacesOfFailure, AreAllReachedByAScenario) {
    if (const std::string why = why_not_all_ran(plays_with_a_failing_host); !why.empty()) GTEST_SKIP() << why;
    for (const std::string& place : known_places_of_failure())
        EXPECT_TRUE(places_that_stories_reached().contains(place)) << place;
}
