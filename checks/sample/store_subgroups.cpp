#include "sample/store_stage.h"

#include <gmock/gmock.h>

namespace brx::host {

namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

/// The sample's first configuration, with subgroups of 3 one after the other.
class StoreSubgroups : public StoreCheck {
protected:
    StoreSubgroups() {
        host->database()->file().run("PRAGMA synchronous = OFF"); // nobody pulls the plug here
        host->servers()->connect_all();
        configuration->set_SubgroupInterval(0);
        configuration->set_PieceTriggerItem("");
    }
    void pass(int seconds) {
        for (int i = 0; i < seconds; ++i) {
            clock->advance(1);
            host->servers()->collect(clock->now());
        }
    }
    Collection& collection() const { return configuration->collection(); }
    std::vector<StoredSubgroup> stored(std::int64_t test = 1) const {
        return SubgroupStore(host->database()->file()).of_test(test);
    }
    std::string last_log_line() const { return log.line(log.count()); }

    std::shared_ptr<Host> host = opened();
    std::shared_ptr<Configuration> configuration = host->servers()->at(1).configurations().at(1);
};

TEST_F(StoreSubgroups, AreInTheFileAsSoonAsTheyAreComplete) {
    collection().run();
    while (stored().empty()) pass(1);
    const auto& series = collection().series(1);
    ASSERT_EQ(series.complete_subgroups(), 1);
    const StoredSubgroup first = stored().front();
    EXPECT_EQ(first.characteristic_id, 101);
    EXPECT_EQ(first.item_id, "Filler.Head 1.Weight");
    EXPECT_EQ(first.completed, clock->now());
    EXPECT_EQ(first.pieces, series.subgroup(1)->pieces);
    EXPECT_EQ(first.pieces.size(), 3U);
    EXPECT_EQ(first.labels, series.subgroup(1)->labels);
    EXPECT_EQ(first.labels.size(), 3U);
}

TEST_F(StoreSubgroups, OfEachTestAreStoredOnceAndInTheirOrder) {
    collection().run();
    pass(120);
    for (const std::int32_t position : {1, 2}) {
        const auto& series = collection().series(position);
        ASSERT_GT(series.complete_subgroups(), 5);
        const auto all = stored(position);
        ASSERT_EQ(all.size(), static_cast<std::size_t>(series.complete_subgroups()));
        for (std::size_t i = 0; i < all.size(); ++i)
            EXPECT_EQ(all[i].pieces, series.subgroup(static_cast<std::int32_t>(i + 1))->pieces);
        EXPECT_EQ(collection().stored_subgroups(position), series.complete_subgroups());
    }
}

TEST_F(StoreSubgroups, OfOneTimeAreAddedToThoseOfTheTimesBefore) {
    collection().run();
    pass(60);
    const std::size_t before = stored().size();
    collection().run();
    EXPECT_EQ(collection().series(1).complete_subgroups(), 0);
    pass(60);
    EXPECT_GT(stored().size(), before);
    EXPECT_EQ(collection().stored_subgroups(1), static_cast<std::int32_t>(stored().size()));
}

TEST_F(StoreSubgroups, AreFoundAgainAfterARestart) {
    collection().run();
    pass(60);
    const auto before = stored();
    configuration = nullptr;
    host = nullptr;
    host = opened();
    configuration = host->servers()->at(1).configurations().at(1);
    EXPECT_EQ(stored(), before);
    EXPECT_EQ(collection().stored_subgroups(1), static_cast<std::int32_t>(before.size()));
    EXPECT_EQ(collection().stored_subgroups(3), 0);
    EXPECT_THAT(collection().text(1, Locale{}),
                StartsWith("Not running. " + std::to_string(before.size()) + " subgroups are stored.\n"));
}

TEST_F(StoreSubgroups, OutliveTheTestThatCollectedThem) {
    collection().run();
    pass(60);
    const std::size_t all = stored().size();
    configuration->Tests()->Remove(1);
    Statement rest(host->database()->file(), "SELECT count(*) FROM subgroup WHERE test_id IS NULL"
                                             " AND characteristic_id = 101");
    rest.step();
    EXPECT_EQ(rest.number(0), static_cast<std::int64_t>(all));
}

TEST_F(StoreSubgroups, WaitForADiskThatIsFullAndAreAllStoredWhenItIsNot) {
    collection().run();
    pass(20);
    fill_the_disk(*host, "INSERT ON piece");
    const std::size_t before = stored().size();
    const std::size_t lines = log.count();
    pass(60);
    EXPECT_EQ(stored().size(), before);
    EXPECT_EQ(log.count(), lines + 1);
    EXPECT_THAT(last_log_line(), StartsWith("Filler head 1: Subgroups wait to be stored. "));
    EXPECT_THAT(last_log_line(), HasSubstr("no room left"));
    EXPECT_THAT(collection().text(1, Locale{}), HasSubstr("subgroups wait to be stored\n"));
    host->database()->file().run("DROP TRIGGER temp.full");
    pass(10);
    EXPECT_EQ(last_log_line(), "Filler head 1: All subgroups are stored.");
    ASSERT_EQ(stored().size(), static_cast<std::size_t>(collection().series(1).complete_subgroups()));
    EXPECT_EQ(stored().back().pieces,
              collection().series(1).subgroup(collection().series(1).complete_subgroups())->pieces);
}

TEST_F(StoreSubgroups, LeaveNothingOfThemselvesWhenTheyCannotBeStoredWhole) {
    collection().run();
    fill_the_disk(*host, "INSERT ON label WHEN new.position = 3");
    pass(60);
    for (const char* table : {"subgroup", "piece", "label"}) {
        Statement rows(host->database()->file(), (std::string("SELECT count(*) FROM ") + table).c_str());
        rows.step();
        EXPECT_EQ(rows.number(0), 0) << table;
    }
}

TEST_F(StoreSubgroups, ThatWaitTooLongMakeRoomForNewOnesAndAreTold) {
    collection().run();
    fill_the_disk(*host, "INSERT ON piece");
    while (collection().series(1).complete_subgroups() < 600) pass(1);
    host->database()->file().run("DROP TRIGGER temp.full");
    pass(10);
    EXPECT_THAT(last_log_line(),
                EndsWith("could not be stored in time and are lost; all others are stored."));
    EXPECT_GE(stored().size() + stored(2).size(), Collection::kept_for_later);
}

TEST_F(StoreSubgroups, OfATestThatBecameAnotherCharacteristicsAreStoredFromItsFirst) {
    collection().run();
    pass(60);
    const std::size_t before = stored().size();
    const auto data = resolve<hlxTestData>(configuration->Tests()->Item(std::int32_t{1})->TestData());
    data->set_ID(103);
    data->Save(host->database());
    host->servers()->at(1).configurations().settle(1);
    while (collection().series(1).complete_subgroups() == 0) pass(1);
    ASSERT_EQ(stored().size(), before + 1);
    EXPECT_EQ(stored().back().characteristic_id, 103);
}

TEST_F(StoreSubgroups, TellWhyAnItemHasNoValue) {
    collection().run();
    pass(20);
    resolve<OPCGroup>(configuration->OPCGroup())
        ->OPCItems()
        ->Item(std::string("Filler.Head 1.Weight"))
        ->set_IsActive(false);
    pass(2);
    EXPECT_THAT(collection().text(1, Locale{}), HasSubstr(".  No value: bad, out of service\n"));
    EXPECT_EQ(collection().text(2, Locale{}).find("No value"), std::string::npos);
}

} // namespace

} // namespace brx::host
