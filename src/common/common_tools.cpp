#include "common/common_tools.h"

#include <array>

namespace brx {

namespace {

/// An owner on the way to another object. Error 91 for Nothing, error 13 for an object of another kind.
template <class Interface> std::shared_ptr<Interface> owner(const ObjectPtr& object) {
    static_cast<void>(the(object));
    return resolve<Interface>(object);
}

} // namespace

hlxDatabasePtr CommonTools::ResolveDatabase(const ObjectPtr& object) const {
    hlxDatabasePtr resolved;
    trap("ResolveDatabase", [&] { resolved = resolve<hlxDatabase>(object); });
    return resolved;
}

OPCServerPtr CommonTools::ResolveOPCServer(const ObjectPtr& object) const {
    OPCServerPtr resolved;
    trap("ResolveOPCServer", [&] { resolved = resolve<OPCServer>(object); });
    return resolved;
}

OPCGroupPtr CommonTools::ResolveOPCGroup(const ObjectPtr& object) const {
    OPCGroupPtr resolved;
    trap("ResolveOPCGroup", [&] { resolved = resolve<OPCGroup>(object); });
    return resolved;
}

hlxDatabasePtr CommonTools::database_of(const hlxOPCConfigurationPtr& configuration) const {
    const hlxOPCServerPtr entry = the(the(configuration).Server()).ServerEntry();
    const auto servers = owner<hlxOPCServers>(the(entry).Parent());
    const auto application = owner<hlxApplication>(servers->Parent());
    return ResolveDatabase(application->Database());
}

std::string DescriptorTypeName(std::int32_t type_code) {
    static constexpr std::array names = {"Part",
                                         "Process",
                                         "Job",
                                         "Lot",
                                         "Shift",
                                         "User Defined (Subgroup)",
                                         "User Defined (Piece)",
                                         "Serial Number",
                                         "Subgroup Comment"};
    if (type_code < 0 || type_code >= static_cast<std::int32_t>(names.size())) return {};
    return names[static_cast<std::size_t>(type_code)];
}

std::string server_display_text(const std::string& node, const std::string& server_name) {
    return node.empty() ? server_name : node + "." + server_name;
}

} // namespace brx
