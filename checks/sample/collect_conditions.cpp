#include "collect/sampling.h"
#include "collect/telling.h"
#include "collect/trigger.h"
#include "common/values/calendar.h"
#include "common/values/convert.h"
#include "sample/collect_stage.h"

#include <cmath>

namespace brx::collect {

namespace {

/// The operators that hold, as a text of their codes.
std::string holding(const Variant& value, const Variant& with) {
    std::string codes;
    for (int code = 0; code <= 7; ++code)
        if (holds({code, with}, value)) codes += std::to_string(code);
    return codes;
}

TEST(CollectConditions, CompareNumbersOfAnyType) {
    EXPECT_EQ(holding(std::int16_t{2}, 2.0), "0135");
    EXPECT_EQ(holding(2.5F, std::int32_t{2}), "0236");
    EXPECT_EQ(holding(Currency{10000}, 2.0), "0456");
    EXPECT_EQ(holding(std::string("10"), std::int16_t{9}), "0236");
    EXPECT_EQ(holding(Date{46000.5}, std::int32_t{46000}), "0236");
}

TEST(CollectConditions, CompareTextsWhereOneSideIsNoNumber) {
    EXPECT_EQ(holding(std::string("B-2"), std::string("B-2")), "0135");
    EXPECT_EQ(holding(std::string("B-10"), std::string("B-2")), "0456");
    EXPECT_EQ(holding(true, std::string("True")), "0135");
    EXPECT_EQ(holding(false, true), "0236");
}

TEST(CollectConditions, HoldForNothingButAlwaysWhereNothingCanBeCompared) {
    EXPECT_EQ(holding(Null{}, 1.0), "0");
    EXPECT_EQ(holding(std::nan(""), 1.0), "0");
    EXPECT_EQ(holding(std::nan(""), std::string("x")), "0");
    EXPECT_EQ(holding(HUGE_VAL, 1.0), "0236") << "It is more than any number, although none that is saved.";
}

Date on(int year, unsigned month, unsigned day, double time = 0) {
    return {*day_number(year, month, day) + time};
}

TEST(CollectIntervals, CountFromTheConfigurationsMoment) {
    const Date noon{46000.5};
    const auto after = [&](double seconds) {
        return interval_at(every(15, 0), noon, {noon.days + seconds / 86400});
    };
    EXPECT_EQ(after(-1), std::nullopt);
    EXPECT_EQ(after(0), 0);
    EXPECT_EQ(after(14.9), 0);
    for (int i = 1; i < 500; ++i) ASSERT_EQ(after(15 * i), i);
    EXPECT_EQ(interval_at(every(0, 0), noon, noon), std::nullopt);
    EXPECT_EQ(interval_at(every(5, -1), noon, noon), std::nullopt);
}

TEST(CollectIntervals, AreAsLongAsTheirUnit) {
    const Date from = on(2026, 1, 31, 0.25);
    const auto at = [&](int unit, const Date& now) { return interval_at(every(2, unit), from, now); };
    const auto later = [&](double days) { return Date{from.days + days}; };
    EXPECT_EQ(at(1, later(4.0 / 1440)), 2);
    EXPECT_EQ(at(2, later(4.0 / 24)), 2);
    EXPECT_EQ(at(3, later(3.9)), 1);
    EXPECT_EQ(at(4, later(28)), 2);
    EXPECT_EQ(at(5, on(2026, 3, 31, 0.2)), 0);
    EXPECT_EQ(at(5, on(2026, 3, 31, 0.3)), 1);
    EXPECT_EQ(at(6, on(2026, 7, 30, 0.9)), 0);
    EXPECT_EQ(at(6, on(2026, 7, 31, 0.3)), 1);
    EXPECT_EQ(at(7, on(2030, 2, 1)), 2);
}

class CollectTelling : public CollectCheck {
protected:
    std::string plan() const { return how_it_goes_on(settings, settings.tests[0], Locale{}); }
    std::string done() const { return so_far(*collector, 1, Locale{}); }
};

TEST_F(CollectTelling, SaysHowTheNextSampleComes) {
    EXPECT_EQ(plan(), "Subgroup: after the one before.  Piece: each new value.");
    settings.subgroup = every(15, 0);
    settings.piece = when("Ready", 1, true);
    EXPECT_EQ(plan(), "Subgroup: every 15 seconds.  Piece: when Ready = True.");
    settings.subgroup = {1, 2, "Valve", {0, Empty{}}};
    settings.tests[0].own_trigger = true;
    settings.tests[0].condition = {3, 1.5};
    EXPECT_EQ(plan(), "Subgroup: every hour or whenever Valve changes.  Piece: each new value >= 1.5.");
}

TEST_F(CollectTelling, SaysInWordsWhatAComparisonWithNoValueComesTo) {
    struct Meaning {
        int operation;
        const char* in_short;
        const char* period;
        const char* own;
        bool holds_for_empty;
        bool holds_for_others;
    };
    const Meaning meanings[] = {
        {1, "If empty", "when Ready is empty", "each new value that is empty", true, false},
        {2, "If not empty", "when Ready is not empty", "each new value that is not empty", false, true},
        {3, "Always", "whenever Ready changes", "each new value", true, true},
        {4, "Never", "never by Ready", "never", false, false},
        {5, "If empty", "when Ready is empty", "each new value that is empty", true, false},
        {6, "If not empty", "when Ready is not empty", "each new value that is not empty", false, true}};
    for (const Meaning& meaning : meanings)
        for (const Variant& nothing : {Variant(Empty{}), Variant(std::string())}) {
            const Condition condition{meaning.operation, nothing};
            settings.subgroup = when("Ready", meaning.operation, nothing);
            settings.tests[0].own_trigger = true;
            settings.tests[0].condition = condition;
            EXPECT_EQ(plan(), std::string("Subgroup: ") + meaning.period + ".  Piece: " + meaning.own + ".");
            EXPECT_EQ(trigger_in_short(condition, Locale{}), meaning.in_short);
            EXPECT_EQ(holds(condition, std::string()), meaning.holds_for_empty) << meaning.operation;
            for (const Variant& value : {Variant(-5.0), Variant(std::string("x")), Variant(false)})
                EXPECT_EQ(holds(condition, value), meaning.holds_for_others) << meaning.operation;
        }
}

TEST_F(CollectTelling, SaysShortlyWhenATestsOwnTriggerFires) {
    const auto in_short = [](int operation, Variant value) {
        return trigger_in_short({operation, std::move(value)}, Locale{});
    };
    EXPECT_EQ(in_short(0, 12.0), "Always");
    EXPECT_EQ(in_short(2, 0.25), "> 0.25");
    EXPECT_EQ(in_short(1, true), "= True");
    EXPECT_EQ(in_short(6, std::string("idle")), "<> idle");
    EXPECT_EQ(in_short(1, Null{}), "Never");
    EXPECT_FALSE(holds({6, Null{}}, 5.0));
}

TEST_F(CollectTelling, SaysHowMuchThereIs) {
    begin();
    EXPECT_EQ(done(), "0 subgroups, 0 of 2 pieces of the next");
    weighs(1);
    weighs(2.5);
    weighs(4);
    EXPECT_EQ(done(), "1 subgroup, 1 of 2 pieces of the next, last value 4");
    weighs(499.28716345);
    EXPECT_EQ(done(), "2 subgroups, last value 499.2872");
}

TEST_F(CollectTelling, ShowsValuesWithSevenDigitsAtMost) {
    const auto shown = [](const Variant& value) { return to_text(as_shown(value), Locale{}); };
    EXPECT_EQ(shown(499.28716345), "499.2872");
    EXPECT_EQ(shown(-0.1), "-0.1");
    EXPECT_EQ(shown(std::int32_t{123456789}), "123456789") << "It is no measured value.";
    EXPECT_EQ(shown(std::string("499.28716345")), "499.28716345");
    EXPECT_EQ(shown(1e300), "1E+300") << "No single is as large.";
}

} // namespace

} // namespace brx::collect
