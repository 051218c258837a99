#pragma once

namespace brx::host {

/// The step that brings characteristics and other named records, with some to begin with, and collection
/// configurations. Ids of kinds are those of RecordKind.
inline constexpr const char* model_tables = R"(
    CREATE TABLE record_group (
        id   INTEGER PRIMARY KEY,
        kind INTEGER NOT NULL,
        name TEXT NOT NULL COLLATE NOCASE CHECK (name <> ''),
        UNIQUE (kind, name));
    CREATE TABLE record (
        id       INTEGER PRIMARY KEY,
        group_id INTEGER NOT NULL REFERENCES record_group (id),
        name     TEXT NOT NULL COLLATE NOCASE CHECK (name <> ''),
        UNIQUE (group_id, name));
    INSERT INTO record_group (id, kind, name) VALUES
        (1, 0, 'Filling'), (2, 0, 'Capping'), (3, 0, 'Labelling'), (4, 0, 'Machining'),
        (11, 1, 'Bottles'), (12, 1, 'Closures'),
        (21, 2, 'Filling line'), (22, 2, 'Press shop'),
        (31, 3, 'Orders in hand'), (32, 3, 'Trial runs'),
        (41, 4, 'Weekdays'), (42, 4, 'Weekend'),
        (51, 5, 'Machines'), (52, 5, 'Sampling'), (53, 5, 'Causes');
    INSERT INTO record (id, group_id, name) VALUES
        (101, 1, 'Fill weight'), (102, 1, 'Fill volume'), (103, 1, 'Fill temperature'), (104, 1, 'Filler speed'),
        (111, 2, 'Cap torque'), (112, 2, 'Cap height'), (113, 2, 'Caps left'),
        (121, 3, 'Label offset'), (122, 3, 'Label price'),
        (131, 4, 'Bore diameter'), (132, 4, 'Shaft length'), (133, 4, 'Roundness'),
        (201, 11, 'Bottle 0.5 l'), (202, 11, 'Bottle 0.75 l'), (203, 11, 'Bottle 1.0 l'),
        (211, 12, 'Crown cork 26 mm'), (212, 12, 'Screw cap 28 mm'),
        (301, 21, 'Filling'), (302, 21, 'Capping'), (303, 21, 'Labelling'),
        (311, 22, 'Forming'), (312, 22, 'Trimming'),
        (401, 31, 'Order 20417'), (402, 31, 'Order 20418'), (403, 31, 'Order 20431'),
        (411, 32, 'Trial 7'), (412, 32, 'Trial 8'),
        (501, 41, 'Early shift'), (502, 41, 'Late shift'), (503, 41, 'Night shift'),
        (511, 42, 'Saturday'), (512, 42, 'Sunday'),
        (601, 51, 'Filler 1'), (602, 51, 'Filler 2'), (603, 51, 'Capper'),
        (611, 52, 'Start of batch'), (612, 52, 'Hourly'), (613, 52, 'After adjustment'),
        (621, 53, 'Tool worn'), (622, 53, 'Material changed');
    CREATE TABLE configuration (
        id               INTEGER PRIMARY KEY AUTOINCREMENT,
        server_id        INTEGER NOT NULL REFERENCES server (id) ON DELETE CASCADE,
        name             TEXT NOT NULL DEFAULT '',
        active           INTEGER NOT NULL DEFAULT 1,
        update_rate      INTEGER NOT NULL DEFAULT 1000,
        dead_band        REAL NOT NULL DEFAULT 0,
        subgroup_size    INTEGER NOT NULL DEFAULT 5,
        sync_date_time   REAL NOT NULL DEFAULT 0,
        subgroup_interval           INTEGER NOT NULL DEFAULT 0,
        subgroup_time_unit          INTEGER NOT NULL DEFAULT 1,
        subgroup_trigger_item       TEXT NOT NULL DEFAULT '',
        subgroup_trigger_type       INTEGER NOT NULL DEFAULT 0,
        subgroup_trigger_value_type INTEGER NOT NULL DEFAULT 0,
        subgroup_trigger_value,
        piece_interval              INTEGER NOT NULL DEFAULT 0,
        piece_time_unit             INTEGER NOT NULL DEFAULT 0,
        piece_trigger_item          TEXT NOT NULL DEFAULT '',
        piece_trigger_type          INTEGER NOT NULL DEFAULT 0,
        piece_trigger_value_type    INTEGER NOT NULL DEFAULT 0,
        piece_trigger_value);
    CREATE INDEX configuration_of_server ON configuration (server_id);
    CREATE TABLE test (
        id                 INTEGER PRIMARY KEY AUTOINCREMENT,
        configuration_id   INTEGER NOT NULL REFERENCES configuration (id) ON DELETE CASCADE,
        characteristic_id  INTEGER REFERENCES record (id),
        state              INTEGER NOT NULL DEFAULT 0,
        item_id            TEXT NOT NULL DEFAULT '',
        client_handle      INTEGER NOT NULL DEFAULT 0,
        item_trigger       INTEGER NOT NULL DEFAULT 0,
        trigger_expression INTEGER NOT NULL DEFAULT 0,
        trigger_value_type INTEGER NOT NULL DEFAULT 0,
        trigger_value,
        constant_value     REAL NOT NULL DEFAULT 0,
        save_as            INTEGER NOT NULL DEFAULT 0);
    CREATE INDEX test_of_configuration ON test (configuration_id);
    CREATE TABLE descriptor (
        id               INTEGER PRIMARY KEY AUTOINCREMENT,
        configuration_id INTEGER NOT NULL REFERENCES configuration (id) ON DELETE CASCADE,
        type             INTEGER NOT NULL,
        item_name        TEXT NOT NULL DEFAULT '',
        group_name       TEXT NOT NULL DEFAULT '');
    CREATE INDEX descriptor_of_configuration ON descriptor (configuration_id);)";

/// Of the servers that a new file has. One item of the filling line has gone since the test was made.
inline constexpr const char* sample_configurations = R"(
    INSERT INTO configuration (id, server_id, name, dead_band, subgroup_size, subgroup_interval,
                               subgroup_time_unit, sync_date_time, piece_trigger_item, piece_trigger_type,
                               piece_trigger_value_type, piece_trigger_value) VALUES
        (1, 1, 'Filler head 1', 0.5, 3, 15, 0, 46000.25, 'Filler.Head 1.Ready', 1, 11, 1),
        (2, 2, 'Bottles',       0,   5, 30, 1, 46000.25, '', 0, 0, NULL);
    INSERT INTO test (configuration_id, characteristic_id, state, item_id) VALUES
        (1, 101, 1, 'Filler.Head 1.Weight'),
        (1, 102, 1, 'Filler.Head 1.Volume'),
        (2, 101, 1, 'Bottle.Weight'),
        (2, 103, 1, 'Tank C.Temperature');
    INSERT INTO descriptor (configuration_id, type, item_name, group_name) VALUES
        (1, 0, 'Bottle 0.5 l', 'Bottles'),
        (1, 3, '(%Labeller.Batch)', ''),
        (1, 4, 'Early shift', 'Weekdays'),
        (2, 0, 'Bottle 0.75 l', 'Bottles');)";

} // namespace brx::host
