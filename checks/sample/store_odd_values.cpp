#include "sample/store_stage.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace brx::host {

namespace {

using testing::HasSubstr;

/// The plant, one item of which says for a while what the check wants, in good quality.
class OddSource final : public OpcSource {
public:
    OddSource(std::shared_ptr<PlantSource> plant, std::string item)
        : plant_(std::move(plant)), item_(std::move(item)) {}

    ObjectPtr make() override { return plant_->make(); }
    ObjectPtr connect(const std::string& program_id, const std::string& node) override {
        return plant_->connect(program_id, node);
    }
    std::unique_ptr<GroupAccess> access(const ObjectPtr& group) override {
        return std::make_unique<Access>(plant_->access(group), *this);
    }
    double seconds() override { return plant_->seconds(); }
    void disconnect(const ObjectPtr& server) noexcept override { plant_->disconnect(server); }

    std::optional<Variant> says; ///< none for what the plant says

private:
    class Access final : public GroupAccess {
    public:
        Access(std::unique_ptr<GroupAccess> group, const OddSource& source)
            : group_(std::move(group)), source_(source) {}
        void subscribe(std::int32_t update_rate, float dead_band) override {
            group_->subscribe(update_rate, dead_band);
        }
        bool is_subscribed() override { return group_->is_subscribed(); }
        Observation known(const std::string& item_id) override {
            Observation known = group_->known(item_id);
            if (source_.says && item_id == source_.item_) known.value = *source_.says;
            return known;
        }
        Observation ask(const std::string& item_id) override { return known(item_id); }
        std::optional<double> range_of(const std::string& item_id) override {
            return group_->range_of(item_id);
        }

    private:
        std::unique_ptr<GroupAccess> group_;
        const OddSource& source_;
    };

    std::shared_ptr<PlantSource> plant_;
    std::string item_;
};

/// The sample's first configuration, with subgroups of 3 one after the other.
class StoreOddValues : public StoreCheck {
protected:
    StoreOddValues() {
        host->database()->file().run("PRAGMA synchronous = OFF"); // nobody pulls the plug here
        host->servers()->connect_all();
        configuration->set_SubgroupInterval(0);
        configuration->set_PieceTriggerItem("");
        configuration->collection().run();
    }
    void pass(int seconds) {
        for (int i = 0; i < seconds; ++i) {
            clock->advance(1);
            host->servers()->collect(clock->now());
        }
    }
    std::string text() const { return configuration->collection().text(1, Locale{}); }
    std::size_t stored() const { return SubgroupStore(host->database()->file()).of_test(1).size(); }

    std::shared_ptr<OddSource> odd = std::make_shared<OddSource>(source, "Filler.Head 1.Weight");
    std::shared_ptr<Host> host = Host::open(file, odd, log);
    std::shared_ptr<Configuration> configuration = host->servers()->at(1).configurations().at(1);
};

TEST_F(StoreOddValues, ThatAreNoFiniteNumbersAreLeftOutAndTheRestIsStored) {
    const std::size_t lines = log.count();
    for (const double value : {std::nan(""), HUGE_VAL, -HUGE_VAL}) {
        odd->says = Variant(value);
        pass(20);
        odd->says.reset();
        pass(20);
    }
    EXPECT_GT(stored(), 5U);
    EXPECT_EQ(stored(), static_cast<std::size_t>(configuration->collection().series(1).complete_subgroups()));
    EXPECT_EQ(log.count(), lines) << log.line(log.count());
}

TEST_F(StoreOddValues, AreToldOfTheTestForAsLongAsTheyLast) {
    for (const Variant& value : {Variant(std::nan("")), Variant(std::numeric_limits<float>::infinity()),
                                 Variant(std::string("heavy"))}) {
        odd->says = value;
        pass(2);
        EXPECT_THAT(text(), HasSubstr(".  Nothing to save: the value is no finite number\n"));
        odd->says.reset();
        pass(2);
        EXPECT_EQ(text().find("Nothing to save"), std::string::npos) << text();
    }
    EXPECT_EQ(configuration->collection().text(2, Locale{}).find("Nothing to save"), std::string::npos);
}

} // namespace

} // namespace brx::host
