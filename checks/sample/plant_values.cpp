#include "sample/plant_stage.h"

#include <cmath>

namespace brx::plant {

namespace {

constexpr double second = 1.0 / 86400;

double number(const Variant& value) { return std::get<double>(value); }

class PlantValues : public PlantCheck {
protected:
    Reading read(const std::shared_ptr<Server>& server, const std::string& item_id) {
        const auto items = server->groups()->make("")->items();
        const AddedItems added = items->AddItems({{item_id}}, {{1}}, std::nullopt, std::nullopt);
        return items->by_handle(added.ServerHandles.at(1))->read();
    }
};

TEST(PlantSignals, StayWithinTheirLimits) {
    for (const Wave wave : {Wave::sine, Wave::ramp, Wave::square, Wave::measured}) {
        const Signal signal{Type::real, wave, -2, 3, 10, {}};
        double least = 100;
        double most = -100;
        for (int i = 0; i < 1000; ++i) {
            const double value = number(value_at(signal, 42, {46000 + i * 0.37 * second}));
            least = std::min(least, value);
            most = std::max(most, value);
        }
        EXPECT_GE(least, -2);
        EXPECT_LE(most, 3);
        EXPECT_GT(most - least, 2);
    }
}

TEST(PlantSignals, MeasurementsCentreOnTheMiddle) {
    const Signal signal{Type::real, Wave::measured, 490, 510, 1, {}};
    double sum = 0;
    constexpr int count = 5000;
    for (int i = 0; i < count; ++i) sum += number(value_at(signal, 7, {46000 + i * second}));
    EXPECT_NEAR(sum / count, 500, 0.2);
}

TEST(PlantSignals, AMeasurementHoldsForItsPeriod) {
    const Signal signal{Type::real, Wave::measured, 0, 1, 2, {}};
    const double start = 46000;
    EXPECT_EQ(value_at(signal, 1, {start + 0.1 * second}), value_at(signal, 1, {start + 1.9 * second}));
    EXPECT_NE(value_at(signal, 1, {start + 1.9 * second}), value_at(signal, 1, {start + 2.1 * second}));
}

TEST(PlantSignals, DifferInTheirSeeds) {
    const Signal signal{Type::real, Wave::sine, 0, 1, 60, {}};
    EXPECT_NE(value_at(signal, 1, {46000}), value_at(signal, 2, {46000}));
    EXPECT_EQ(value_at(signal, 1, {46000}), value_at(signal, 1, {46000}));
}

TEST(PlantSignals, CountersCountPeriodsSinceMidnight) {
    const Signal signal{Type::long_integer, Wave::counted, 0, 0, 2, {}};
    EXPECT_EQ(value_at(signal, 1, {46000}), Variant(std::int32_t{0}));
    EXPECT_EQ(value_at(signal, 1, {46000 + 9 * second}), Variant(std::int32_t{4}));
}

TEST(PlantSignals, ComeInEveryDataType) {
    static constexpr const char* words[] = {"one", "two", "three"};
    const Date time{46000.25};
    const auto of = [&](Type type, double value) {
        return value_at({type, Wave::steady, value, value, 60, words}, 1, time);
    };
    EXPECT_EQ(of(Type::short_integer, 7.5), Variant(std::int16_t{8}));
    EXPECT_EQ(of(Type::short_integer, 1e6), Variant(std::int16_t{32767}));
    EXPECT_EQ(of(Type::long_integer, -7), Variant(std::int32_t{-7}));
    EXPECT_EQ(of(Type::single, 0.5), Variant(0.5F));
    EXPECT_EQ(of(Type::real, 0.1), Variant(0.1));
    EXPECT_EQ(of(Type::currency, 1.25), Variant(Currency{12500}));
    EXPECT_EQ(of(Type::date, 46000), Variant(Date{46000}));
    EXPECT_EQ(of(Type::text, 1), Variant(std::string("two")));
    EXPECT_EQ(of(Type::text, 9), Variant(std::string("three")));
    EXPECT_EQ(vartype(of(Type::byte, 200)), 17);
    EXPECT_EQ(std::get<Opaque>(of(Type::byte, 200)).text, "200");
    EXPECT_EQ(std::get<Opaque>(of(Type::byte, 300)).text, "255");
    EXPECT_EQ(value_at({Type::boolean, Wave::square, 0, 1, 60, {}}, 1, time).index(), Variant(true).index());
}

TEST_F(PlantValues, MoveWithTheClock) {
    const auto server = connected("Simulation.Packing.1");
    const Reading first = read(server, "Filler.Temperature");
    clock->advance(20);
    const Reading second_one = read(server, "Filler.Temperature");
    EXPECT_NE(first.value, second_one.value);
    EXPECT_EQ(first.quality, 0xC0);
    EXPECT_EQ(first.time.days, HandClock::noon);
    EXPECT_GT(second_one.time.days, first.time.days);
}

TEST_F(PlantValues, DifferBetweenNodesWithTheSameServer) {
    EXPECT_NE(read(connected("Simulation.Packing.1"), "Filler.Temperature").value,
              read(connected("Simulation.Packing.1", "LINE1"), "Filler.Temperature").value);
}

TEST_F(PlantValues, OfAnInactiveItemAreBad) {
    const auto items = connected("Simulation.Packing.1")->groups()->make("")->items();
    const AddedItems added = items->AddItems({{"Running"}}, {{1}}, std::nullopt, std::nullopt);
    const auto item = items->by_handle(added.ServerHandles.at(1));
    item->set_IsActive(false);
    EXPECT_EQ(item->read().quality & 0xC0, 0);
    EXPECT_EQ(item->read().value, Variant(Empty{}));
}

TEST_F(PlantValues, OfEveryItemOfEveryServerCanBeRead) {
    int items_read = 0;
    for (const NodeDescription& node : sample_plant()) {
        for (const ServerDescription& description : node.servers) {
            if (description.connection_failure != 0) continue;
            const auto server = connected(description.program_id, node.name);
            const auto items = server->groups()->make("All")->items();
            StringArray ids;
            LongArray clients;
            for (const ItemDescription& item : description.items) {
                if (item.trouble != Trouble::none) continue;
                std::string id = item.place;
                if (description.browsing == Browsing::hierarchical)
                    std::replace(id.begin(), id.end(), '/', '.');
                ids.elements.push_back(id);
                clients.elements.push_back(0);
            }
            const AddedItems added = items->AddItems(ids, clients, std::nullopt, std::nullopt);
            for (const std::int32_t handle : added.ServerHandles.elements) {
                ASSERT_NE(handle, 0) << description.program_id;
                const auto item = items->by_handle(handle);
                EXPECT_EQ(vartype(item->read().value), item->CanonicalDataType()) << item->ItemID();
                ++items_read;
            }
        }
    }
    EXPECT_GT(items_read, 50);
}

} // namespace

} // namespace brx::plant
