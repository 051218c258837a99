#pragma once

#include "classes/dialog_class.h"
#include "common/model/configuration.h"

namespace brx {

/// Lets a person edit a collection configuration in place.
class ConfigurationSetup : private DialogClass {
public:
    explicit ConfigurationSetup(Environment& environment) : DialogClass("ConfigurationSetup", environment) {}

    /// Returns when the dialog has closed. The configuration must belong to a server entry, which leads to
    /// the host's database.
    void Show(const ObjectPtr& hlxOPCConfiguration);

private:
    hlxOPCConfigurationPtr ResolveOPCConfiguration(const ObjectPtr& object) const;
};

} // namespace brx
