#pragma once

#include "host/opc_source.h"
#include "plant/plant.h"

namespace brx::host {

/// Simulated servers.
class PlantSource final : public OpcSource {
public:
    explicit PlantSource(std::shared_ptr<plant::Plant> plant) : plant_(std::move(plant)) {}

    ObjectPtr make() override;
    ObjectPtr connect(const std::string& program_id, const std::string& node) override;
    std::unique_ptr<GroupAccess> access(const ObjectPtr& group) override;
    double seconds() override;
    void disconnect(const ObjectPtr& server) noexcept override;

private:
    std::shared_ptr<plant::Plant> plant_;
};

} // namespace brx::host
