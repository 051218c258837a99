#include "classes/ServerInformation.h"

#include "servers/dlgServerInformation.h"

namespace brx {

bool ServerInformation::Show(const ObjectPtr& OPCServer) {
    bool shown = false;
    run_show([&] {
        dlgServerInformation form(environment_);
        const OPCServerPtr server = tools_.ResolveOPCServer(OPCServer);
        if (!server) return;
        form.set_server(server);
        form.show_modal();
        shown = true;
    });
    return shown;
}

} // namespace brx
