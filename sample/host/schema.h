#pragma once

#include "host/sqlite.h"

#include <memory>

namespace brx::host {

/// Opens the host's database file, makes it with sample data when it is not there or empty, and brings one of
/// an earlier version up to date. Fails with a text for the user when it is damaged, another program's, of a
/// later version, or cannot be written where it would have to be.
std::unique_ptr<SqliteFile> open_database(const std::string& path);

} // namespace brx::host
