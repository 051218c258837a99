#pragma once

namespace brx::host {

/// The step that brings what was collected. It outlives the test that it was collected by. The numbers of
/// subgroups are never used twice, nor left out.
inline constexpr const char* subgroup_tables = R"(
    CREATE TABLE subgroup (
        id                INTEGER PRIMARY KEY AUTOINCREMENT,
        test_id           INTEGER REFERENCES test (id) ON DELETE SET NULL,
        characteristic_id INTEGER REFERENCES record (id),
        item_id           TEXT NOT NULL,
        completed         REAL NOT NULL);
    CREATE INDEX subgroup_of_test ON subgroup (test_id);
    CREATE TABLE piece (
        subgroup_id INTEGER NOT NULL REFERENCES subgroup (id) ON DELETE CASCADE,
        position    INTEGER NOT NULL,
        value       REAL NOT NULL,
        PRIMARY KEY (subgroup_id, position)) WITHOUT ROWID;
    CREATE TABLE label (
        subgroup_id INTEGER NOT NULL REFERENCES subgroup (id) ON DELETE CASCADE,
        position    INTEGER NOT NULL,
        type        INTEGER NOT NULL,
        item_name   TEXT NOT NULL,
        group_name  TEXT NOT NULL,
        PRIMARY KEY (subgroup_id, position)) WITHOUT ROWID;)";

} // namespace brx::host
