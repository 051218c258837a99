#include "host/schema.h"

#include "common/values/text.h"
#include "host/schema_model.h"
#include "host/schema_subgroups.h"

#include <array>

namespace brx::host {

namespace {

/// Tells our files from other programs' databases: "brxS".
constexpr std::int64_t our_files = 0x6272'7853;

/// How a database of version n becomes one of version n + 1. Never changed once released, only added to.
constexpr std::array steps = {
    // Servers count in the order of their numbers, which are never used twice.
    R"(CREATE TABLE server (
           id         INTEGER PRIMARY KEY AUTOINCREMENT,
           program_id TEXT NOT NULL CHECK (program_id <> ''),
           node       TEXT NOT NULL DEFAULT '');
       CREATE TABLE setting (
           name  TEXT PRIMARY KEY,
           value TEXT NOT NULL) WITHOUT ROWID;
       PRAGMA application_id = 1651669075;)",
    "ALTER TABLE server ADD COLUMN last_item TEXT NOT NULL DEFAULT '';",
    model_tables,
    subgroup_tables,
};
constexpr auto newest = static_cast<std::int64_t>(steps.size());

constexpr const char* sample_data = R"(
    INSERT INTO server (program_id, node) VALUES
        ('Simulation.Packing.1', ''),
        ('Simulation.Filling.1', 'LINE1'),
        ('Simulation.Kiln.1', 'LAB');)";

std::int64_t pragma(SqliteFile& file, const char* text) {
    Statement statement(file, text);
    return statement.step() ? statement.number(0) : 0;
}

bool is_empty(SqliteFile& file) { return pragma(file, "SELECT count(*) FROM sqlite_schema") == 0; }

void check_whole(SqliteFile& file) {
    Statement statement(file, "PRAGMA quick_check(1)");
    if (statement.step() && statement.text(0) != "ok")
        throw failed_database("The database file " + file.path() + " is damaged: " + statement.text(0) + ".");
}

void check_ours(SqliteFile& file, std::int64_t version) {
    if (pragma(file, "PRAGMA application_id") != our_files)
        throw failed_database("The database file " + file.path() + " belongs to another program.");
    if (version > newest)
        throw failed_database("The database file " + file.path() +
                              " was made by a later version of the sample host.");
}

void bring_up_to_date(SqliteFile& file, std::int64_t version) {
    for (; version < newest; ++version) file.run(steps[static_cast<std::size_t>(version)]);
    file.run(("PRAGMA user_version = " + std::to_string(newest)).c_str());
}

} // namespace

std::unique_ptr<SqliteFile> open_database(const std::string& path) {
    auto file = std::make_unique<SqliteFile>(path);
    file->run("PRAGMA foreign_keys = ON");
    const bool fresh = is_empty(*file);
    const std::int64_t version = pragma(*file, "PRAGMA user_version");
    if (!fresh) {
        check_ours(*file, version);
        check_whole(*file);
    }
    if (version != newest) {
        // Another program may have done the same in the meantime: who comes second finds it done.
        Transaction transaction(*file);
        const bool still_fresh = is_empty(*file);
        bring_up_to_date(*file, pragma(*file, "PRAGMA user_version"));
        if (still_fresh) {
            file->run(sample_data);
            file->run(sample_configurations);
        }
        transaction.commit();
    }
    return file;
}

} // namespace brx::host
