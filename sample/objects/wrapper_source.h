#pragma once

#include "host/opc_source.h"

namespace brx::host {

/// Real servers, through the OPC automation wrapper that is installed on this computer.
class WrapperSource final : public OpcSource {
public:
    static bool is_installed();

    ObjectPtr make() override;
    ObjectPtr connect(const std::string& program_id, const std::string& node) override;
    std::unique_ptr<GroupAccess> access(const ObjectPtr& group) override;
    double seconds() override;
    void disconnect(const ObjectPtr& server) noexcept override;
};

} // namespace brx::host
