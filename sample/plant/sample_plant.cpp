#include "plant/opc_errors.h"
#include "plant/signals.h"
#include "plant/test_bench.h"

#include <array>

namespace brx::plant {

namespace {

using namespace std::chrono_literals;

constexpr auto verdicts = std::to_array<const char*>({"Good", "Good", "Good", "Rework", "Scrap"});
constexpr auto batches = std::to_array<const char*>({"B-2041", "B-2042", "B-2043"});
constexpr auto phases = std::to_array<const char*>({"Idle", "Fill", "Heat", "Stir", "Drain"});
constexpr auto operators = std::to_array<const char*>({"Early shift", "Late shift", "Night shift"});

constexpr auto packing = std::to_array<ItemDescription>({
    {"Filler/Head 1/Weight", measured(497.5, 502.5)},
    {"Filler/Head 1/Volume", measured(498, 503, 2, Type::real)},
    {"Filler/Head 1/Ready", on_off(4)},
    {"Filler/Head 2/Weight", measured(497.0, 502.0)},
    {"Filler/Head 2/Volume", measured(497, 502, 2, Type::real)},
    {"Filler/Head 2/Ready", on_off(5)},
    {"Filler/Temperature", wave(62, 66, 90)},
    {"Filler/Speed", wave(110, 126, 300, Type::short_integer)},
    {"Filler/Bottles", counted(2)},
    {"Capper/Torque", measured(1.6, 2.2, 3)},
    {"Capper/Verdict", one_of(verdicts, 25)},
    {"Capper/Caps left", {Type::long_integer, Wave::ramp, 2400, 0, 1200, {}}},
    {"Labeller/Batch", one_of(batches, 600)},
    {"Labeller/Printed", stamp(3)},
    {"Labeller/Price", wave(1.19, 1.59, 3600, Type::currency)},
    {"Labeller/Offset", measured(-0.8, 0.8, 3, Type::real)},
    {"Running", on_off(240)},
    {"Operator", one_of(operators, 86400)},
});

constexpr auto metering = std::to_array<ItemDescription>({
    {"FT-101", wave(11.5, 13.5, 45)},
    {"FT-102", wave(4.0, 4.6, 30)},
    {"FT-103", measured(7.9, 8.3, 1, Type::real)},
    {"PT-201", wave(2.8, 3.1, 75, Type::single)},
    {"PT-202", wave(5.4, 6.0, 60, Type::single)},
    {"TT-301", wave(71, 74, 180, Type::single)},
    {"LT-401", wave(20, 95, 900)},
    {"XV-501.Open", on_off(20)},
    {"Total", counted(1)},
    {"Last report", stamp(60)},
});

constexpr auto terminal = std::to_array<ItemDescription>({
    {"[press1]Force", measured(41.5, 43.5)},
    {"[press1]Stroke", measured(119.6, 120.4)},
    {"[press1]Strokes", counted(2)},
    {"[press2]Force", measured(41.2, 43.8)},
    {"[press2]Stroke", measured(119.4, 120.6)},
    {"[press2]Fault", on_off(120)},
});

constexpr auto filling = std::to_array<ItemDescription>({
    {"Tank A/Level", wave(35, 90, 600)},
    {"Tank A/Temperature", wave(38, 41, 240, Type::single)},
    {"Tank A/Phase", one_of(phases, 300)},
    {"Tank B/Level", wave(30, 85, 700)},
    {"Tank B/Temperature", wave(37, 42, 260, Type::single)},
    {"Tank B/Phase", one_of(phases, 320)},
    {"Valves/Inlet/Open", on_off(30)},
    {"Valves/Inlet/Position", wave(0, 100, 30, Type::short_integer)},
    {"Valves/Outlet/Open", on_off(40)},
    {"Valves/Outlet/Position", wave(0, 100, 40, Type::short_integer)},
    {"Bottle/Weight", measured(748, 754)},
    {"Bottle/Number", counted(3)},
});

constexpr auto labelling = std::to_array<ItemDescription>({
    {"Label.Count", counted(3)},
    {"Label.Position", measured(-0.5, 0.5, 3, Type::real)},
    {"Label.Batch", one_of(batches, 900)},
    {"Printer.Ready", on_off(60)},
});

constexpr auto balance = std::to_array<ItemDescription>({
    {"Weight", measured(99.95, 100.05, 5, Type::real)},
    {"Tare", steady(12.5, Type::real)},
    {"Stable", on_off(10)},
});

constexpr auto climate = std::to_array<ItemDescription>({
    {"Chamber 1/Temperature", wave(22.5, 23.5, 120)},
    {"Chamber 1/Humidity", wave(48, 52, 150)},
    {"Chamber 2/Temperature", wave(39.5, 40.5, 120)},
    {"Chamber 2/Humidity", wave(73, 77, 150)},
    {"Chamber 2/Door", on_off(600)},
});

constexpr auto storage = std::to_array<ItemDescription>({
    {"Aisle 1/Crane/X", wave(0, 62, 40)},
    {"Aisle 1/Crane/Y", wave(0, 14, 26)},
    {"Aisle 1/Crane/Load", measured(180, 420)},
    {"Aisle 2/Crane/X", wave(0, 62, 44)},
    {"Aisle 2/Crane/Y", wave(0, 14, 28)},
    {"Aisle 2/Crane/Load", measured(170, 430)},
    {"Gate/Pallets", counted(30)},
    {"Gate/Weight", measured(610, 655, 30)},
});

constexpr ServerDescription packing_server(double hours_up) {
    return {.program_id = "Simulation.Packing.1",
            .vendor = "Simulated packing line",
            .items = packing,
            .major = 3,
            .minor = 0,
            .build = 118,
            .bandwidth = 12,
            .hours_up = hours_up};
}

constexpr auto local_servers = std::to_array<ServerDescription>({
    packing_server(31.4),
    {.program_id = "Simulation.Metering.1",
     .vendor = "Simulated flow computer",
     .browsing = Browsing::flat,
     .items = metering,
     .major = 2,
     .minor = 4,
     .build = 7,
     .bandwidth = 3,
     .update_seconds = 0.5,
     .hours_up = 702.2},
    {.program_id = "Simulation.Terminal.1",
     .vendor = "Simulated press terminal, items by topic",
     .browsing = Browsing::none,
     .items = terminal,
     .major = 1,
     .minor = 12,
     .build = 3,
     .update_seconds = 0,
     .hours_up = 8.1},
});

constexpr auto line1_servers = std::to_array<ServerDescription>({
    {.program_id = "Simulation.Filling.1",
     .vendor = "Simulated filling line",
     .items = filling,
     .major = 3,
     .minor = 1,
     .build = 96,
     .bandwidth = 27,
     .update_seconds = 0.5,
     .hours_up = 119.7},
    {.program_id = "Simulation.Labelling.1",
     .vendor = "Simulated labelling machine",
     .browsing = Browsing::flat,
     .items = labelling,
     .major = 1,
     .minor = 8,
     .build = 21,
     .hours_up = 119.6},
    packing_server(52.9),
});

constexpr auto lab_servers = std::to_array<ServerDescription>({
    {.program_id = "Simulation.Balance.1",
     .vendor = "Simulated laboratory balance",
     .browsing = Browsing::flat_no_branches,
     .items = balance,
     .major = 1,
     .minor = 0,
     .build = 44,
     .update_seconds = 5,
     .hours_up = 3.3},
    {.program_id = "Simulation.Climate.1",
     .vendor = "Simulated climatic chambers",
     .items = climate,
     .major = 2,
     .minor = 0,
     .build = 10,
     .state = server_state::test,
     .hours_up = 77.5},
    {.program_id = "Simulation.Kiln.1",
     .vendor = "Simulated kiln",
     .connection_failure = com_error::server_execution_failed},
});

constexpr auto warehouse_servers = std::to_array<ServerDescription>({
    {.program_id = "Simulation.Storage.1",
     .vendor = "Simulated high-bay storage",
     .items = storage,
     .major = 4,
     .minor = 2,
     .build = 2210,
     .bandwidth = 61,
     .update_seconds = 2,
     .hours_up = 2190.5},
});

} // namespace

std::span<const NodeDescription> sample_plant() {
    static const auto nodes = std::to_array<NodeDescription>({
        {.name = "", .servers = local_servers},
        {.name = "LINE1", .servers = line1_servers, .answers_after = 150ms},
        {.name = "LAB", .servers = lab_servers, .answers_after = 250ms},
        {.name = "WAREHOUSE", .servers = warehouse_servers, .answers_after = 2500ms},
        {.name = "OFFICE", .answers_after = 100ms},
        {.name = "GATEWAY", .answers_after = 200ms, .refusal = com_error::access_denied},
        {.name = "TESTBENCH", .servers = test_bench(), .answers_after = 50ms},
    });
    return nodes;
}

} // namespace brx::plant
