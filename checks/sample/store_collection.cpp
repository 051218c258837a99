#include "sample/store_stage.h"

#include <gmock/gmock.h>

namespace brx::host {

namespace {

using testing::HasSubstr;
using testing::StartsWith;

/// The sample's first configuration: subgroups of 3 every 15 seconds, pieces when the filler's head is ready,
/// which it is anew every 4 seconds.
class StoreCollection : public StoreCheck {
protected:
    StoreCollection() { host->servers()->connect_all(); }

    void pass(int seconds) {
        for (int i = 0; i < 4 * seconds; ++i) {
            clock->advance(0.25);
            host->servers()->collect(clock->now());
        }
    }
    std::string text() const { return collection().text(1, Locale{}); }
    std::string last_log_line() const { return log.line(log.count()); }
    Collection& collection() const { return configuration->collection(); }
    std::int32_t subgroups() const { return collection().series(1).complete_subgroups(); }

    std::shared_ptr<Host> host = opened();
    ServerEntry& entry = host->servers()->at(1);
    std::shared_ptr<Configuration> configuration = entry.configurations().at(1);
};

TEST_F(StoreCollection, RunsAfreshFromTheCommandAndKeepsWhatItHasWhenItStops) {
    EXPECT_EQ(text(), "Not running.\nSubgroup: every 15 seconds.  Piece: when Filler.Head 1.Ready = True.");
    pass(60);
    EXPECT_EQ(subgroups(), 0);
    collection().run();
    pass(60);
    EXPECT_EQ(subgroups(), 3);
    EXPECT_THAT(text(), StartsWith("Running: 3 subgroups"));
    for (const double piece : collection().series(1).subgroup(1)->pieces) EXPECT_NEAR(piece, 500, 2.5);
    collection().stop();
    pass(60);
    EXPECT_EQ(subgroups(), 3);
    EXPECT_THAT(text(), StartsWith("Stopped: 3 subgroups"));
    collection().run();
    EXPECT_THAT(text(), StartsWith("Running: 0 subgroups"));
}

TEST_F(StoreCollection, ForgetsATestThatBecameAnotherCharacteristicsAlsoWhenItHasStopped) {
    const auto becomes = [&](std::int32_t characteristic) {
        const auto data = resolve<hlxTestData>(configuration->Tests()->Item(std::int32_t{1})->TestData());
        data->set_ID(characteristic);
        data->Save(host->database());
        entry.configurations().settle(1);
    };
    collection().run();
    pass(60);
    EXPECT_EQ(subgroups(), 3);
    becomes(103);
    EXPECT_EQ(subgroups(), 0);
    EXPECT_EQ(collection().series(2).complete_subgroups(), 3);
    pass(60);
    EXPECT_EQ(subgroups(), 3);
    collection().stop();
    becomes(104);
    EXPECT_TRUE(collection().series(1).points().empty());
    EXPECT_EQ(collection().series(2).complete_subgroups(), 6);
}

TEST_F(StoreCollection, KeepsWhatItsDescriptorsSay) {
    collection().run();
    pass(60);
    const auto& labels = collection().series(1).subgroup(1)->labels;
    ASSERT_EQ(labels.size(), 3U);
    EXPECT_EQ(labels[0], (collect::Label{0, "Bottle 0.5 l", "Bottles"}));
    EXPECT_THAT(labels[1].item, StartsWith("B-204"));
}

TEST_F(StoreCollection, WaitsWhileItsSettingsAreEditedAndThenHasTheNewOnes) {
    collection().run();
    pass(60);
    collection().hold();
    configuration->set_SubgroupInterval(0);
    configuration->set_PieceTriggerItem("");
    pass(60);
    EXPECT_EQ(subgroups(), 3);
    EXPECT_THAT(text(), StartsWith("Waits for the dialog: "));
    entry.configurations().settle(1);
    pass(60);
    EXPECT_GE(subgroups(), 12);
    EXPECT_THAT(text(), HasSubstr("\nSubgroup: after the one before.  Piece: each new value."));
}

TEST_F(StoreCollection, StartsToBeHeldOnlyByADialogOfItsOwn) {
    collection().hold();
    entry.configurations().settle(1);
    pass(30);
    EXPECT_FALSE(collection().is_running());
    EXPECT_THAT(text(), StartsWith("Not running."));
}

TEST_F(StoreCollection, TellsOnceThatTheServerIsGoneAndThatItIsBack) {
    collection().run();
    pass(60);
    const std::size_t lines = log.count();
    entry.disconnect();
    pass(60);
    EXPECT_EQ(log.count(), lines + 1);
    EXPECT_THAT(last_log_line(), StartsWith("Filler head 1: Nothing is collected. Not connected: "));
    EXPECT_THAT(text(), StartsWith("Nothing is collected. Not connected: "));
    EXPECT_EQ(subgroups(), 3);
    entry.connect();
    pass(60);
    EXPECT_EQ(last_log_line(), "Filler head 1: Collection goes on.");
    EXPECT_GT(subgroups(), 5);
}

TEST_F(StoreCollection, TellsThatTheConfigurationIsNotActive) {
    configuration->set_Active(false);
    collection().run();
    pass(60);
    EXPECT_EQ(last_log_line(), "Filler head 1: Nothing is collected. The configuration is not active.");
    EXPECT_EQ(subgroups(), 0);
}

TEST_F(StoreCollection, OfATestThatWasAddedBeginsWhenTheDialogHasClosed) {
    collection().run();
    const auto added = configuration->Tests()->Add();
    added->set_OPCItemID("Capper.Torque");
    EXPECT_THAT(collection().text(3, Locale{}), StartsWith("Not running."));
    entry.configurations().settle(1);
    pass(60);
    EXPECT_EQ(collection().series(3).complete_subgroups(), 3);
}

TEST_F(StoreCollection, OfATestThatWasRemovedIsNothing) {
    collection().run();
    pass(60);
    configuration->Tests()->Remove(1);
    EXPECT_EQ(collection().text(2, Locale{}), "");
    EXPECT_EQ(collection().text(0, Locale{}), "");
    EXPECT_TRUE(collection().series(2).points().empty());
    EXPECT_EQ(collection().series(1).complete_subgroups(), 3);
}

TEST_F(StoreCollection, TellsATestsOwnTriggerWhenItIsOn) {
    const auto trigger = [&](std::int32_t test) { return collection().trigger_text(test, Locale{}); };
    const auto test = configuration->Tests()->Item(std::int32_t{2});
    test->set_ItemTrigger(false);
    test->set_TriggerExpression(2);
    test->set_TriggerValue(Empty{});
    EXPECT_EQ(trigger(2), "");
    test->set_ItemTrigger(true);
    EXPECT_EQ(trigger(2), "If not empty");
    test->set_TriggerValue(std::int16_t{7});
    EXPECT_EQ(trigger(2), "> 7");
    test->set_TriggerExpression(0);
    EXPECT_EQ(trigger(2), "Always");
    EXPECT_EQ(trigger(0), "");
    EXPECT_EQ(trigger(3), "");
}

TEST_F(StoreCollection, HasTheDeadBandOfTheItemsRange) {
    const auto range = [&](const std::string& item) { return configuration->range_of(item); };
    EXPECT_EQ(range("Filler.Head 1.Weight"), 5.0);
    EXPECT_EQ(range("Filler.Head 1.Ready"), std::nullopt);
    EXPECT_EQ(range("no such item"), std::nullopt);
    configuration->set_SubgroupInterval(0);
    configuration->set_PieceTriggerItem("");
    configuration->set_DeadBand(99);
    collection().run();
    pass(60);
    EXPECT_EQ(collection().series(1).points().size(), 0U);
}

} // namespace

} // namespace brx::host
