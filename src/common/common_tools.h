#pragma once

#include "common/model/collection.h"
#include "common/model/configuration.h"
#include "common/model/database.h"
#include "common/model/opc_automation.h"
#include "common/trap.h"

#include <cstdint>
#include <string>

namespace brx {

/// The views of host objects and the names that several dialogs share.
class CommonTools : private Module {
public:
    explicit CommonTools(ErrorReporter& errors) : Module("CommonTools", errors) {}

    /// The object as the interface, or Nothing after reporting that it is Nothing or something else.
    hlxDatabasePtr ResolveDatabase(const ObjectPtr& object) const;
    OPCServerPtr ResolveOPCServer(const ObjectPtr& object) const;
    OPCGroupPtr ResolveOPCGroup(const ObjectPtr& object) const;

    /// The database of the host that the configuration belongs to: by way of its server entry, the servers
    /// and the application. Error 91 where one of them is missing, Nothing when it ends at no database.
    hlxDatabasePtr database_of(const hlxOPCConfigurationPtr& configuration) const;
};

/// The display name of a descriptor type code 0 to 8; "" for any other code.
std::string DescriptorTypeName(std::int32_t type_code);

/// The text for a server everywhere: node, full stop and server name, or the name alone on the local
/// computer.
std::string server_display_text(const std::string& node, const std::string& server_name);

} // namespace brx
