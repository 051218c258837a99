#include "plant/test_bench.h"

#include "plant/signals.h"
#include "plant/test_bench_spaces.h"

#include <array>

namespace brx::plant {

namespace {

using namespace std::chrono_literals;

constexpr auto gauges = std::to_array<ItemDescription>({
    {"[gauge1]Thickness", measured(1.98, 2.02)},
    {"[gauge1]Ready", on_off(12)},
    {"[gauge2]Thickness", measured(1.97, 2.03)},
    {"[gauge2]Ready", on_off(14)},
});

constexpr auto bores = std::to_array<ItemDescription>({
    {"Bore.Diameter", measured(24.995, 25.013, 4, Type::real)},
    {"Bore.Roundness", measured(0.001, 0.006, 4, Type::real)},
    {"Shaft.Diameter", measured(24.972, 24.985, 4, Type::real)},
    {"Shaft.Length", measured(118.9, 119.1, 4, Type::real)},
    {"Part number", counted(4)},
});

constexpr auto at_the_root_only = std::to_array<ItemDescription>({
    {"Diameter", measured(24.995, 25.013, 4, Type::real)},
    {"Roundness", measured(0.001, 0.006, 4, Type::real)},
    {"Part number", counted(4)},
});

constexpr auto deep = std::to_array<ItemDescription>({
    {"Energy", wave(310, 480, 900)},
    {"Works/Hall 1/Temperature", wave(18, 22, 3600)},
    {"Works/Hall 2/Temperature", wave(19, 24, 3600)},
    {"Works/Hall 2/Line 4/Speed", wave(40, 44, 120)},
    {"Works/Hall 2/Line 4/Machine 7/Parts", counted(20)},
    {"Works/Hall 2/Line 4/Machine 7/Spindle/Speed", wave(2900, 3100, 60, Type::short_integer)},
    {"Works/Hall 2/Line 4/Machine 7/Spindle/Drive/Torque", measured(11.2, 12.6, 1)},
    {"Works/Hall 2/Line 4/Machine 7/Spindle/Drive/Current", measured(5.8, 6.6, 1)},
    {"Works/Hall 2/Line 4/Machine 8/Parts", counted(25)},
});

constexpr auto seasons = std::to_array<const char*>({"Spring", "Summer", "Autumn", "Winter"});

constexpr auto every_type = std::to_array<ItemDescription>({
    {"Numbers/Integer 16 bit", wave(-120, 120, 60, Type::short_integer)},
    {"Numbers/Integer 32 bit", wave(-90'000, 90'000, 60, Type::long_integer)},
    {"Numbers/Single", measured(9.5, 10.5)},
    {"Numbers/Double", measured(99.5, 100.5, 2, Type::real)},
    {"Numbers/Byte", wave(0, 255, 60, Type::byte)},
    {"Numbers/Currency", wave(0.5, 2.5, 60, Type::currency)},
    {"Other/Boolean", on_off(6)},
    {"Other/Date", stamp(5)},
    {"Other/String", one_of(seasons, 40)},
    {"Trouble/Cannot be added", measured(0, 1), Trouble::cannot_be_added},
    {"Trouble/Type unreadable", measured(0, 1), Trouble::type_unreadable},
});

constexpr auto servers = std::to_array<ServerDescription>({
    {.program_id = "Simulation.NoBrowser.1",
     .vendor = "Test bench: cannot be browsed",
     .browsing = Browsing::none,
     .items = gauges},
    {.program_id = "Simulation.Flat.1",
     .vendor = "Test bench: no branches, leaves whatever is asked for",
     .browsing = Browsing::flat,
     .items = bores},
    {.program_id = "Simulation.EmptyRoot.1", .vendor = "Test bench: nothing to browse"},
    {.program_id = "Simulation.LeavesOnly.1",
     .vendor = "Test bench: hierarchical, but no branches",
     .items = at_the_root_only},
    {.program_id = "Simulation.BranchesOnly.1",
     .vendor = "Test bench: no leaves at the root",
     .fill = fill_with_bare_branches},
    {.program_id = "Simulation.Deep.1", .vendor = "Test bench: six branches deep", .items = deep},
    {.program_id = "Simulation.Twins.1",
     .vendor = "Test bench: branches of one name",
     .fill = fill_with_twins},
    {.program_id = "Simulation.Names.1", .vendor = "Test bench: unusual names", .fill = fill_with_names},
    {.program_id = "Simulation.Unsteady.1",
     .vendor = "Test bench: a list loses names while it is read",
     .fill = fill_with_stations,
     .browser = {.drops_every = 5}},
    {.program_id = "Simulation.Failing.1",
     .vendor = "Test bench: every 40th call of the browser fails",
     .fill = fill_with_stations,
     .browser = {.fails_every = 40}},
    {.program_id = "Simulation.Slow.1",
     .vendor = "Test bench: every call of the browser takes its time",
     .fill = fill_with_stations,
     .browser = {.answers_after = 60ms}},
    {.program_id = "Simulation.Large.1",
     .vendor = "Test bench: 100,000 leaves in a flat space",
     .browsing = Browsing::flat,
     .fill = fill_with_tags},
    {.program_id = "Simulation.Wide.1",
     .vendor = "Test bench: 5,000 branches at the root",
     .fill = fill_with_valves},
    {.program_id = "Simulation.Types.1",
     .vendor = "Test bench: every data type, items that cannot be added or asked",
     .items = every_type},
});

} // namespace

std::span<const ServerDescription> test_bench() { return servers; }

} // namespace brx::plant
