#include "host/plant_source.h"

#include "plant/server.h"

namespace brx::host {

ObjectPtr PlantSource::make() { return plant_->make_server(); }

ObjectPtr PlantSource::connect(const std::string& program_id, const std::string& node) {
    auto server = plant_->make_server();
    server->Connect(program_id, node);
    return server;
}

void PlantSource::disconnect(const ObjectPtr& server) noexcept {
    if (const auto simulated = std::dynamic_pointer_cast<plant::Server>(server)) simulated->Disconnect();
}

} // namespace brx::host
