#pragma once

#include "common/model/configuration.h"
#include "common/trap.h"
#include "forms/environment.h"

namespace brx {

/// Lets a person edit a collection configuration in place.
class ConfigurationSetup : private Module {
public:
    explicit ConfigurationSetup(Environment& environment)
        : Module("ConfigurationSetup", environment.errors), environment_(environment) {}

    /// Returns when the dialog has closed. The configuration must belong to a server entry, which leads to
    /// the host's database.
    void Show(const ObjectPtr& hlxOPCConfiguration);

private:
    hlxOPCConfigurationPtr ResolveOPCConfiguration(const ObjectPtr& object) const;

    Environment& environment_;
};

} // namespace brx
