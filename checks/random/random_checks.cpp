#include "random/cutter.h"
#include "random/deed.h"

#include <gtest/gtest.h>

#include <algorithm>

// What tells a story of random deeds once more, and shortens it.

using namespace brx::checks;

namespace {

Deeds a_story(int deeds) {
    Deeds story;
    for (int i = 0; i < deeds; ++i)
        story.push_back({.verb = Verb::types, .text = "the " + std::to_string(i) + "th"});
    return story;
}

} // namespace

TEST(RandomDeeds, EveryDeedIsTheSameAfterItWasInAFile) {
    for (int verb = 0; verb <= static_cast<int>(Verb::stops); ++verb) {
        const Deed deed{.verb = static_cast<Verb>(verb),
                        .on = "frmTab(0)",
                        .text = "a\tb\r\n%41 \xC3\xA4",
                        .number = 3,
                        .in_call = 12};
        EXPECT_EQ(deed_of(line_of(deed)), deed) << line_of(deed);
        EXPECT_EQ(line_of(deed).find('\n'), std::string::npos);
        EXPECT_FALSE(sentence_of(deed).empty());
    }
}

TEST(RandomDeeds, ALineThatIsNoDeedIsRefused) {
    EXPECT_THROW(deed_of("dances\t0\t0\t\t"), std::runtime_error);
}

TEST(RandomDeeds, AStoryIsCutDownToTheDeedsThatItTakes) {
    const Deeds story = a_story(100);
    const Deed first = story[13];
    const Deed second = story[77];
    int tries = 0;
    const auto both = [&](const Deeds& shorter) {
        ++tries;
        const auto at = std::ranges::find(shorter, first);
        return std::find(at, shorter.end(), second) != shorter.end();
    };
    EXPECT_EQ(cut_down(story, both), (Deeds{first, second}));
    EXPECT_LT(tries, 150);
}

TEST(RandomDeeds, OneDeedThatTakesAllTheOthersKeepsThem) {
    const Deeds story = a_story(9);
    const auto all = [&](const Deeds& shorter) { return shorter == story; };
    EXPECT_EQ(cut_down(story, all), story);
}

TEST(RandomDeeds, WhatIsLeftIsMadeSimple) {
    Deeds story = a_story(5);
    story.push_back({.verb = Verb::changes, .on = "a test comes", .text = "Line1", .number = 7});
    const auto a_change = [](const Deeds& shorter) {
        return std::ranges::any_of(
            shorter, [](const Deed& deed) { return deed.verb == Verb::changes && !deed.text.empty(); });
    };
    EXPECT_EQ(cut_down(story, a_change),
              (Deeds{{.verb = Verb::changes, .on = "a test comes", .text = "L", .number = 0}}));
}
