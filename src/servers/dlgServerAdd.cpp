#include "servers/dlgServerAdd.h"

#include "common/values/convert.h"
#include "common/values/text.h"
#include "forms/busy_cursor.h"
#include "forms/focus.h"
#include "forms/list_tools.h"
#include "forms/setup_form.h"

namespace brx {

namespace {

constexpr std::int32_t enter_key = 13;

const StringArray& as_array(const Variant& value) {
    const auto* array = std::get_if<StringArray>(&value);
    if (!array) throw Error(error::type_mismatch);
    return *array;
}

} // namespace

dlgServerAdd::dlgServerAdd(Environment& environment)
    : Form(environment, {.name = "dlgServerAdd", .caption = "Add OPC Server", .size = {430, 305}}),
      tools_(environment.errors) {}

void dlgServerAdd::Form_Load() {
    trap("Form_Load", [&] {
        ok_pressed_ = false;
        last_node_.clear();
        entry_ = create<hlxOPCServer>(environment().objects, class_name::hlxOPCServer);
        cmdRefreshList_Click();
        SetupForm(*this, 195);
    });
}

void dlgServerAdd::Form_Unload() {
    entry_ = nullptr;
    servers_ = nullptr;
}

void dlgServerAdd::cmdRefreshList_Click() {
    trap("cmdRefreshList_Click", [&] {
        const BusyCursor busy(*this);
        lstOPCServers.clear();
        const std::string node = txtNode.text();
        const Variant found = FindServers(node);
        StringArray servers;
        if (node.empty())
            servers = as_array(found);
        else
            attempt([&] { servers = as_array(found); });
        lstOPCServers.clear();
        if (servers.upper_bound() < 1) {
            lstOPCServers.add_line("<No Servers available on this Node>");
            lstOPCServers.set_enabled(false);
            bnOK.set_enabled(false);
            return;
        }
        for (std::int32_t index = servers.lower_bound; index <= servers.upper_bound(); ++index)
            hlxListTools::add(lstOPCServers, servers.at(index), to_int16(index));
        lstOPCServers.set_enabled(true);
    });
}

/// On a named node whatever fails leaves nothing found; on the local computer errors are passed on.
Variant dlgServerAdd::FindServers(const std::string& node) {
    OPCServerPtr server;
    work().waits_for("Asking " + (node.empty() ? "this computer" : node) + " for its OPC servers");
    if (node.empty()) {
        server = tools_.ResolveOPCServer(the(entry_).OPCServer());
        return the(server).GetOPCServers(std::nullopt);
    }
    Variant found;
    attempt([&] {
        lstOPCServers.add_line("Connecting to OPC Server: " + node + "...  PLEASE WAIT...");
        repaint();
    });
    attempt([&] { server = tools_.ResolveOPCServer(the(entry_).OPCServer()); });
    attempt([&] { found = the(server).GetOPCServers(node); });
    return found;
}

void dlgServerAdd::txtNode_Change() {
    trap("txtNode_Change", [&] {
        if (txtNode.text() == last_node_) return;
        bnOK.set_enabled(false);
        lstOPCServers.clear();
        last_node_ = txtNode.text();
    });
}

void dlgServerAdd::txtNode_KeyPress(std::int32_t key_ascii) {
    trap("txtNode_KeyPress", [&] {
        if (key_ascii == enter_key) cmdRefreshList_Click();
    });
}

void dlgServerAdd::txtNode_GotFocus() {
    trap("txtNode_GotFocus", [&] { hlxFocus::select_text(txtNode); });
}

void dlgServerAdd::lstOPCServers_Click() {
    trap("lstOPCServers_Click", [&] {
        if (lstOPCServers.text().empty()) return;
        server_name_ = lstOPCServers.text();
        lblSelectedServer.set_caption(server_display_text(txtNode.text(), server_name_));
        bnOK.set_enabled(true);
    });
}

void dlgServerAdd::lstOPCServers_DblClick() {
    trap("lstOPCServers_DblClick", [&] { bnOK_Click(); });
}

/// An entry that cannot tell what it is connected to is reported, and is no reason to add nothing at all.
std::optional<bool> dlgServerAdd::NotInColl(const hlxOPCServersPtr& servers) {
    std::optional<bool> is_new;
    trap("NotInColl", [&] {
        const std::string node = trim(txtNode.text());
        work().waits_for("Looking whether " + server_name_ + " is there already");
        count_before_ = the(servers).Count();
        is_new = true;
        work().each(count_before_, [&](std::int32_t i) {
            if (*is_new) trap("NotInColl", [&] { is_new = !is_chosen(the(the(servers).Item(i)), node); });
        });
        if (work().is_stopped()) is_new.reset(); // and the dialog stays as it is
    });
    return is_new;
}

bool dlgServerAdd::is_chosen(hlxOPCServer& entry, const std::string& node) const {
    const ObjectPtr connected = entry.OPCServer();
    if (!connected) return false;
    const OPCServerPtr server = resolve<OPCServer>(connected);
    if (!equal_ignoring_case(server->ServerName(), server_name_)) return false;
    return equal_ignoring_case(server->ServerNode(), node);
}

void dlgServerAdd::bnOK_Click() {
    trap("bnOK_Click", [&] {
        const std::optional<bool> is_new = NotInColl(servers_);
        if (!is_new) return; // reported; to connect without knowing could add a server twice
        if (!*is_new) {
            show_message({.text = "SERVER ALREADY EXISTS!\r\n\r\n"
                                  "Server already exists and cannot be selected a second time.",
                          .style = message::information,
                          .title = "Servers Exists"});
            return;
        }
        Control* focus_before = focused();
        if (!ConnectServer()) return;
        if (focus_before) focus_before->set_focus();
        ok_pressed_ = true;
        node_ = txtNode.text();
        unload();
    });
}

bool dlgServerAdd::ConnectServer() {
    bool connected = false;
    trap("ConnectServer", [&] {
        const std::string node = txtNode.text();
        work().waits_for("Connecting to " + server_display_text(node, server_name_));
        const hlxOPCServerPtr added = the(servers_).Add(server_name_, node, true);
        if (!added) {
            show_message({.text = "UNABLE TO CONNECT!\r\n\r\nServer: " + server_name_ + "\r\nNode: " + node +
                                  "\r\nError: " + the(servers_).LastError() +
                                  "\r\n\r\nSelect another Server or try again.",
                          .style = message::exclamation,
                          .title = "Unable to Connect"});
            return;
        }
        entry_ = added;
        // The server is there and connected. Where the host cannot count it, it is behind those before it.
        std::int32_t position = count_before_ + 1;
        trap("ConnectServer", [&] { position = the(servers_).Count(); });
        added_server_index_ = to_int16(position);
        connected = true;
    });
    return connected;
}

void dlgServerAdd::bnCancel_Click() {
    trap("bnCancel_Click", [&] { unload(); });
}

} // namespace brx
