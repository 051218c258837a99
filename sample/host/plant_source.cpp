#include "host/plant_source.h"

#include "plant/groups.h"
#include "plant/server.h"

namespace brx::host {

namespace {

/// Simulated groups know their items' values at any time.
class PlantAccess final : public GroupAccess {
public:
    explicit PlantAccess(std::shared_ptr<plant::Group> group) : group_(std::move(group)) {}

    void subscribe(std::int32_t, float) override {}
    bool is_subscribed() override { return true; }
    Observation known(const std::string& item_id) override {
        const plant::Reading reading = item(item_id)->read();
        return {reading.value, reading.quality, reading.time};
    }
    Observation ask(const std::string& item_id) override { return known(item_id); }
    std::optional<double> range_of(const std::string& item_id) override { return item(item_id)->range(); }

private:
    std::shared_ptr<plant::Item> item(const std::string& item_id) {
        return resolve<plant::Item>(group_->OPCItems()->Item(item_id));
    }

    std::shared_ptr<plant::Group> group_;
};

} // namespace

ObjectPtr PlantSource::make() { return plant_->make_server(); }

ObjectPtr PlantSource::connect(const std::string& program_id, const std::string& node) {
    auto server = plant_->make_server();
    server->Connect(program_id, node);
    return server;
}

std::unique_ptr<GroupAccess> PlantSource::access(const ObjectPtr& group) {
    return std::make_unique<PlantAccess>(resolve<plant::Group>(group));
}

double PlantSource::seconds() { return plant_->clock().now().days * plant::seconds_per_day; }

void PlantSource::disconnect(const ObjectPtr& server) noexcept {
    if (const auto simulated = std::dynamic_pointer_cast<plant::Server>(server)) simulated->Disconnect();
}

} // namespace brx::host
