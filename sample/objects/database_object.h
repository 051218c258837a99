#pragma once

#include "host/host.h"

namespace brx::host {

/// The connection as dialogs and scripts get it: they hand it back, and it is found behind what they hand
/// back, see `connection_behind`.
ObjectPtr shown_to_dialogs(std::shared_ptr<DatabaseConnection> connection);

/// The connection behind what was handed back. Error 91 for Nothing, 13 for somebody else's.
std::shared_ptr<DatabaseConnection> connection_behind(const hlxDatabasePtr& database);

} // namespace brx::host
