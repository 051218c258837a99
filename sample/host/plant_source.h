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
    std::optional<Variant> value_of(const ObjectPtr& item) override;
    std::optional<double> range_of(const ObjectPtr& item) override;
    void disconnect(const ObjectPtr& server) noexcept override;

private:
    std::shared_ptr<plant::Plant> plant_;
};

} // namespace brx::host
