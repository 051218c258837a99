#include "common/values/convert.h"
#include "configuration/dlgConfiguration.h"

namespace brx {

void dlgConfiguration::Timer1_Timer() {
    trap(ErrorLibrary::brxError6, "Timer1_Timer", [&] {
        const hlxOPCServerPtr entry = the(the(configuration_).Server()).ServerEntry();
        const ObjectPtr connection = the(entry).OPCServer();
        if (!connection) return;
        const auto server = resolve<OPCServer>(connection);
        const auto show = [&](const char* key, const char* caption, const Variant& value) {
            UpdateServerInfo(key, caption, to_text(value, environment().locale));
        };
        show("Node", "Server Node", server->ServerNode());
        show("Name", "Server Name", server->ServerName());
        show("StartTime", "Start Time", server->StartTime());
        show("CurrentTime", "Current Time", server->CurrentTime());
        show("LastUpdate", "Last Updated", server->LastUpdateTime());
        show("Bandwidth", "Band Width", server->Bandwidth());
        show("Build", "Build Number", server->BuildNumber());
        show("Client", "Client Name", server->ClientName());
        show("Major", "Major Version", server->MajorVersion());
        show("Minor", "Minor Version", server->MinorVersion());
        show("State", "Server State", server->ServerState());
        show("Vendor", "Vendor Information", server->VendorInfo());

        const OPCGroupsPtr groups = server->OPCGroups();
        const std::int32_t count = the(groups).Count();
        for (std::int32_t n = 1; n <= count; ++n) {
            if (groups_.size() < static_cast<std::size_t>(n)) groups_.emplace_back();
            ListedGroup& group = groups_[static_cast<std::size_t>(n) - 1];
            if (groups->read_name(n, group.name) || !group.is_shown) show_group(n, group);
        }
    });
}

void dlgConfiguration::show_group(std::int32_t n, ListedGroup& group) {
    const std::string number = std::to_string(n);
    const std::string key = "Group" + number;
    // The first one goes without a number.
    UpdateServerInfo(key, "Group " + (n == 1 ? std::string() : number), group.name.text());
    const ListRow* const row = lvwServerInfo.find(key);
    group.is_shown = row && row->reads(1, group.name.text());
}

/// An unchanged value is not written again, so that the list does not flicker.
void dlgConfiguration::UpdateServerInfo(const std::string& key, const std::string& caption,
                                        const std::string& value) {
    ListRow* row = lvwServerInfo.find(key);
    if (row && row->reads(1, value)) return;
    if (!row) attempt([&] { row = &lvwServerInfo.add(key, caption); });
    attempt([&] {
        if (row) row->set_text(1, value);
    });
}

} // namespace brx
