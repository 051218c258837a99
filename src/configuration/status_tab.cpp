#include "common/values/convert.h"
#include "configuration/dlgConfiguration.h"

namespace brx {

void dlgConfiguration::Timer1_Timer() {
    trap(ErrorLibrary::brxError6, "Timer1_Timer", [&] {
        work().waits_for("Reading the status of the server");
        const ObjectPtr connection = connection_of(the(configuration_));
        if (!connection) return;
        const auto server = resolve<OPCServer>(connection);
        tick_.begin();
        std::size_t place = 0;
        const auto show = [&](const char* key, const char* caption, const auto& read) {
            std::optional<Variant>& shown = server_values_.at(place++);
            if (tick_.takes_step(work())) show_value(shown, key, caption, read());
        };
        show("Node", "Server Node", [&] { return server->ServerNode(); });
        show("Name", "Server Name", [&] { return server->ServerName(); });
        show("StartTime", "Start Time", [&] { return server->StartTime(); });
        show("CurrentTime", "Current Time", [&] { return server->CurrentTime(); });
        show("LastUpdate", "Last Updated", [&] { return server->LastUpdateTime(); });
        show("Bandwidth", "Band Width", [&] { return server->Bandwidth(); });
        show("Build", "Build Number", [&] { return server->BuildNumber(); });
        show("Client", "Client Name", [&] { return server->ClientName(); });
        show("Major", "Major Version", [&] { return server->MajorVersion(); });
        show("Minor", "Minor Version", [&] { return server->MinorVersion(); });
        show("State", "Server State", [&] { return server->ServerState(); });
        show("Vendor", "Vendor Information", [&] { return server->VendorInfo(); });
        if (tick_.has_given_way()) return;

        const OPCGroupsPtr groups = server->OPCGroups();
        const std::int32_t count = the(groups).Count();
        for (std::int32_t n = 1; n <= count && !tick_.has_given_way(); ++n)
            if (tick_.takes_step(work())) show_group(n, the(groups->Item(n)).Name());
    });
}

/// Nothing is done about a value that is the one shown.
void dlgConfiguration::show_value(std::optional<Variant>& shown, const char* key, const char* caption,
                                  const Variant& value) {
    if (shown == value) return;
    shown.reset();
    const std::string text = to_text(value, environment().locale);
    if (UpdateServerInfo(key, caption, text)) shown = value;
}

/// A server can have a thousand groups: while a name stays the same, its row is not even looked up.
void dlgConfiguration::show_group(std::int32_t n, const std::string& name) {
    if (groups_.size() < static_cast<std::size_t>(n)) groups_.emplace_back();
    std::optional<std::string>& shown = groups_[static_cast<std::size_t>(n) - 1];
    if (shown == name) return;
    shown.reset();
    const std::string number = std::to_string(n);
    // The first one goes without a number.
    if (UpdateServerInfo("Group" + number, "Group " + (n == 1 ? std::string() : number), name)) shown = name;
}

/// An unchanged value is not written again, so that the list does not flicker. Whether the list shows it now.
bool dlgConfiguration::UpdateServerInfo(const std::string& key, const std::string& caption,
                                        const std::string& value) {
    ListRow* row = lvwServerInfo.find(key);
    if (row && row->reads(1, value)) return true;
    if (!row) attempt([&] { row = &lvwServerInfo.add(key, caption); });
    attempt([&] {
        if (row) row->set_text(1, value);
    });
    return row && row->reads(1, value);
}

} // namespace brx
