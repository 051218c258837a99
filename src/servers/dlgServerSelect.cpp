#include "servers/dlgServerSelect.h"

#include "classes/ServerAdd.h"
#include "common/common_tools.h"
#include "common/values/convert.h"
#include "forms/list_tools.h"
#include "forms/setup_form.h"

namespace brx {

dlgServerSelect::dlgServerSelect(Environment& environment)
    : Form(environment, {.name = "dlgServerSelect", .caption = "Select OPC Server", .size = {400, 108}}) {}

void dlgServerSelect::Form_Load() {
    trap("Form_Load", [&] {
        SetupForm(*this, 193);
        BuildList();
    });
}

void dlgServerSelect::cboServer_Click() {
    trap("cboServer_Click", [&] { bnOK.set_enabled(hlxListTools::selected_data(cboServer) != 0); });
}

void dlgServerSelect::bnServer_Click() {
    trap("bnServer_Click", [&] {
        ServerAdd server_add(environment());
        if (!server_add.Show(servers_)) return;
        selected_server_index_ = to_int16(the(servers_).Count());
        BuildList();
    });
}

void dlgServerSelect::bnOK_Click() {
    trap("bnOK_Click", [&] {
        selected_server_index_ = to_int16(hlxListTools::selected_data(cboServer));
        unload();
    });
}

void dlgServerSelect::bnCancel_Click() {
    trap("bnCancel_Click", [&] {
        selected_server_index_ = 0;
        unload();
    });
}

void dlgServerSelect::BuildList() {
    trap("BuildList", [&] {
        cboServer.clear();
        bnOK.set_enabled(false); // with no line selected there is nothing to confirm, whatever fails below
        work().waits_for("Reading the list of servers");
        const std::int16_t count = to_int16(the(servers_).Count());
        work().all(count, [&](std::int32_t i) {
            const hlxOPCServerPtr entry = the(servers_).Item(i);
            const std::string node = the(entry).Node();
            const std::string server_name = the(entry).ServerName();
            if (server_name.empty()) return;
            hlxListTools::add(cboServer, server_display_text(node, server_name), to_int16(i));
        });
        if (selected_server_index_ != 0) hlxListTools::select_data(cboServer, selected_server_index_);
    });
}

} // namespace brx
