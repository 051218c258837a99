#include "host/plant_source.h"

#include "plant/items.h"
#include "plant/server.h"

namespace brx::host {

ObjectPtr PlantSource::make() { return plant_->make_server(); }

ObjectPtr PlantSource::connect(const std::string& program_id, const std::string& node) {
    auto server = plant_->make_server();
    server->Connect(program_id, node);
    return server;
}

std::optional<Variant> PlantSource::value_of(const ObjectPtr& item) {
    const auto simulated = std::dynamic_pointer_cast<plant::Item>(item);
    const plant::Reading reading = simulated ? simulated->read() : plant::Reading{};
    if (!plant::is_good(reading)) return std::nullopt;
    return reading.value;
}

std::optional<double> PlantSource::range_of(const ObjectPtr& item) {
    const auto simulated = std::dynamic_pointer_cast<plant::Item>(item);
    return simulated ? simulated->range() : std::nullopt;
}

void PlantSource::disconnect(const ObjectPtr& server) noexcept {
    if (const auto simulated = std::dynamic_pointer_cast<plant::Server>(server)) simulated->Disconnect();
}

} // namespace brx::host
