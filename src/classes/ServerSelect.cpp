#include "classes/ServerSelect.h"

#include "servers/dlgServerSelect.h"

namespace brx {

bool ServerSelect::Show(const ObjectPtr& hlxOPCServers) {
    bool chosen = false;
    run_show([&] {
        dlgServerSelect form(environment_);
        const hlxOPCServersPtr servers = ResolvehlxOPCServers(hlxOPCServers);
        if (!servers) return;
        form.set_servers(servers);
        form.show_modal();
        if (form.selected_server_index() == 0) return;
        ServerIndex = form.selected_server_index();
        chosen = true;
    });
    return chosen;
}

hlxOPCServersPtr ServerSelect::ResolvehlxOPCServers(const ObjectPtr& object) const {
    hlxOPCServersPtr servers;
    trap("ResolvehlxOPCServers", [&] { servers = resolve<hlxOPCServers>(object); });
    return servers;
}

} // namespace brx
