#include "host/subscription.h"

#include "plant/opc_errors.h"

#include <gmock/gmock.h>

#include <map>
#include <utility>

namespace brx::host {

namespace {

using testing::HasSubstr;
using testing::StartsWith;

constexpr std::int32_t good_quality = 0xC0;
constexpr std::int32_t last_usable = 0x44;
constexpr double year_1601 = -109205;

Observation said(const Variant& value, std::int32_t quality = good_quality, double days = year_1601) {
    return {value, quality, {days}};
}

/// A group of a foreign wrapper. What it knows of an item stays as it is until the check changes it.
struct ForeignGroup {
    bool takes_subscriptions = true;
    bool subscribed = false;
    std::string objection; ///< what every question fails with; "" for none
    std::map<std::string, Observation> known;
    std::map<std::string, Observation> real; ///< what a question finds out
    int questions = 0;
    double answers_after = 0; ///< seconds
    std::pair<std::int32_t, float> wanted;
};

class ForeignAccess final : public GroupAccess {
public:
    ForeignAccess(ForeignGroup& group, double& seconds) : group_(group), seconds_(seconds) {}
    void subscribe(std::int32_t update_rate, float dead_band) override {
        group_.wanted = {update_rate, dead_band};
        if (!group_.takes_subscriptions)
            throw Error(static_cast<std::int32_t>(0x80004001), "Not implemented");
        group_.subscribed = true;
    }
    bool is_subscribed() override { return group_.subscribed; }
    Observation known(const std::string& item_id) override { return group_.known.at(item_id); }
    Observation ask(const std::string& item_id) override {
        ++group_.questions;
        seconds_ += group_.answers_after;
        if (!group_.objection.empty()) throw Error(error::internal, group_.objection);
        return group_.real.at(item_id);
    }

private:
    ForeignGroup& group_;
    double& seconds_;
};

/// One item, of which nothing has come yet, in a group with an update rate of half a second.
class StoreSubscription : public testing::Test {
protected:
    StoreSubscription() {
        group.known["Weight"] = said(Empty{}, 0);
        group.real["Weight"] = said(500.0);
    }
    void begin(float dead_band = 0) {
        subscription.emplace(std::make_unique<ForeignAccess>(group, seconds), 500, dead_band,
                             [&] { return seconds; });
    }
    /// Looks at it four times a second.
    ItemReading pass(double time) {
        ItemReading reading = subscription->read("Weight");
        for (double passed = 0; passed < time; passed += 0.25) {
            seconds += 0.25;
            reading = subscription->read("Weight");
        }
        return reading;
    }
    std::optional<Variant> value() { return subscription->read("Weight").value; }
    std::string trouble() { return subscription->read("Weight").trouble; }
    void tells(const Observation& news) { group.known["Weight"] = group.real["Weight"] = news; }

    double seconds = 1000;
    ForeignGroup group;
    std::optional<Subscription> subscription;
};

TEST_F(StoreSubscription, HandsTheRateAndTheDeadBandOn) {
    begin(2.5F);
    EXPECT_TRUE(group.subscribed);
    EXPECT_EQ(group.wanted, (std::pair<std::int32_t, float>(500, 2.5F)));
    EXPECT_EQ(subscription->refusal(), "");
}

TEST_F(StoreSubscription, TellsValuesAsTheyComeAndAsksNothing) {
    begin();
    EXPECT_EQ(trouble(), "waiting for the first value");
    tells(said(501.0));
    EXPECT_EQ(value(), Variant(501.0));
    pass(5);
    tells(said(502.0));
    EXPECT_EQ(value(), Variant(502.0));
    EXPECT_EQ(group.questions, 0);
}

TEST_F(StoreSubscription, TakesAGoodValueThatHasNoTime) {
    begin();
    tells(said(501.0, good_quality, year_1601));
    EXPECT_EQ(value(), Variant(501.0));
}

TEST_F(StoreSubscription, SaysTheQualityOfAValueThatIsNotGood) {
    begin();
    tells(said(501.0, last_usable));
    EXPECT_EQ(value(), std::nullopt);
    EXPECT_EQ(trouble(), "uncertain, last usable value");
    tells(said(Empty{}, 0x08));
    EXPECT_EQ(trouble(), "bad, not connected");
}

TEST_F(StoreSubscription, AsksForAFirstValueThatDoesNotCome) {
    begin();
    EXPECT_EQ(pass(2).trouble, "waiting for the first value");
    EXPECT_EQ(group.questions, 0);
    EXPECT_EQ(pass(1).value, Variant(500.0));
    group.real["Weight"] = said(503.0);
    EXPECT_EQ(pass(1).value, Variant(503.0));
}

/// What is known of an item is then what was asked for last, and says nothing about the subscription.
TEST_F(StoreSubscription, GoesOnAskingWhenOnlyItsQuestionsBringValues) {
    begin();
    pass(3);
    for (const double weight : {503.0, 504.0, 505.0}) {
        group.known["Weight"] = group.real["Weight"];
        group.real["Weight"] = said(weight);
        EXPECT_EQ(pass(1.5).value, Variant(weight));
    }
}

TEST_F(StoreSubscription, TakesEverythingThatItAskedForAlsoWithADeadBand) {
    begin(5);
    EXPECT_EQ(pass(3).value, Variant(500.0));
    group.real["Weight"] = said(501.0);
    EXPECT_EQ(pass(1.5).value, Variant(501.0));
}

TEST_F(StoreSubscription, StopsAskingWhenValuesComeAfterAll) {
    begin();
    pass(4);
    tells(said(510.0));
    EXPECT_EQ(value(), Variant(510.0));
    const int questions = group.questions;
    pass(5);
    EXPECT_EQ(group.questions, questions);
}

TEST_F(StoreSubscription, AsksForTheValuesOfAGroupThatIsNotSubscribed) {
    group.takes_subscriptions = false;
    group.known["Weight"] = said(499.0); // as old as the connection
    begin();
    EXPECT_EQ(subscription->refusal(), "Not implemented (0x80004001)");
    EXPECT_EQ(value(), Variant(500.0));
    group.real["Weight"] = said(503.0);
    EXPECT_EQ(pass(1).value, Variant(503.0));
}

TEST_F(StoreSubscription, IsMadeAgainWhenTheServerHasDroppedIt) {
    begin();
    tells(said(501.0));
    pass(1);
    group.subscribed = false;
    pass(10);
    EXPECT_TRUE(group.subscribed);
    EXPECT_EQ(subscription->refusal(), "");
}

TEST_F(StoreSubscription, FindsOutThatAQuietItemIsNoLongerWhatItWas) {
    begin();
    tells(said(501.0));
    pass(5);
    group.real["Weight"] = said(507.0); // and nothing is told
    EXPECT_EQ(pass(3).value, Variant(501.0));
    EXPECT_EQ(pass(3).value, Variant(507.0));
    group.real["Weight"] = said(508.0);
    EXPECT_EQ(pass(1.5).value, Variant(508.0));
}

/// A question's answer is old news only until something else has been told.
TEST_F(StoreSubscription, TellsWhatComesBackToWhatWasAskedLast) {
    for (const float dead_band : {0.0F, 5.0F}) {
        SCOPED_TRACE(dead_band);
        begin(dead_band);
        tells(said(0.0));
        EXPECT_EQ(pass(15).value, Variant(0.0));
        EXPECT_GT(group.questions, 0);
        for (const double ready : {1.0, 0.0, 1.0, 0.0}) {
            tells(said(ready));
            EXPECT_EQ(pass(1).value, Variant(ready));
        }
    }
}

TEST_F(StoreSubscription, LeavesSmallChangesInADeadBandAlone) {
    begin(5);
    tells(said(501.0));
    pass(1);
    group.real["Weight"] = said(502.0);
    EXPECT_EQ(pass(30).value, Variant(501.0));
    group.real["Weight"] = said(502.0, 0x18);
    EXPECT_EQ(pass(11).trouble, "bad, communication failure");
}

TEST_F(StoreSubscription, SaysForHowLongNothingHasAnswered) {
    begin();
    tells(said(501.0));
    pass(2);
    group.objection = "The RPC server is unavailable";
    EXPECT_EQ(pass(7).value, Variant(501.0));
    EXPECT_EQ(pass(3).trouble, "no answer since 12 s: The RPC server is unavailable");
    EXPECT_EQ(pass(5).trouble, "no answer since 17 s: The RPC server is unavailable");
    group.objection.clear();
    EXPECT_EQ(pass(1).value, Variant(501.0));
}

TEST_F(StoreSubscription, SaysThatItIsNotSubscribedWhenNothingAnswersEither) {
    group.takes_subscriptions = false;
    group.objection = "Access is denied";
    begin();
    EXPECT_EQ(pass(4).trouble, "not subscribed, no answer since 4 s: Access is denied");
}

TEST_F(StoreSubscription, LeavesASlowServerAloneForFourTimesAsLong) {
    group.takes_subscriptions = false;
    group.answers_after = 3;
    begin();
    value();
    EXPECT_EQ(group.questions, 1);
    pass(11.5);
    EXPECT_EQ(group.questions, 1);
    pass(1);
    EXPECT_EQ(group.questions, 2);
}

TEST_F(StoreSubscription, SaysThatAnItemIsNotInTheGroup) {
    struct Refusing final : GroupAccess {
        void subscribe(std::int32_t, float) override {}
        bool is_subscribed() override { return true; }
        Observation known(const std::string&) override {
            throw plant::failure(plant::opc_error::unknown_item_id);
        }
        Observation ask(const std::string&) override { return {}; }
    };
    Subscription refused(std::make_unique<Refusing>(), 500, 0, [] { return 0.0; });
    EXPECT_THAT(refused.read("Weight").trouble, StartsWith("not in the group: "));
    EXPECT_THAT(refused.read("Weight").trouble, HasSubstr("(0xC0040007)"));
}

} // namespace

} // namespace brx::host
