#include "classes/ConfigurationSetup.h"

#include "configuration/dlgConfiguration.h"

namespace brx {

void ConfigurationSetup::Show(const ObjectPtr& hlxOPCConfiguration) {
    run_show([&] {
        dlgConfiguration form(environment_);
        const hlxOPCConfigurationPtr configuration = ResolveOPCConfiguration(hlxOPCConfiguration);
        if (!configuration) return;
        form.set_configuration(configuration);
        form.show_modal();
    });
}

hlxOPCConfigurationPtr ConfigurationSetup::ResolveOPCConfiguration(const ObjectPtr& object) const {
    hlxOPCConfigurationPtr configuration;
    trap("ResolveOPCConfiguration", [&] { configuration = resolve<brx::hlxOPCConfiguration>(object); });
    return configuration;
}

} // namespace brx
