#include "classes/ServerAdd.h"

#include "servers/dlgServerAdd.h"

namespace brx {

bool ServerAdd::Show(const ObjectPtr& hlxOPCServers) {
    bool added = false;
    run_show([&] {
        dlgServerAdd form(environment_);
        const hlxOPCServersPtr servers = ResolvehlxOPCServers(hlxOPCServers);
        if (!servers) return;
        form.set_servers(servers);
        form.show_modal();
        if (!form.OKPressed()) return;
        ServerIndex = form.added_server_index();
        added = true;
    });
    return added;
}

hlxOPCServersPtr ServerAdd::ResolvehlxOPCServers(const ObjectPtr& object) const {
    hlxOPCServersPtr servers;
    trap("ResolvehlxOPCServers", [&] { servers = resolve<hlxOPCServers>(object); });
    return servers;
}

} // namespace brx
