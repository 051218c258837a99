#include "plant/test_bench_spaces.h"

#include "plant/address_space.h"
#include "plant/signals.h"

#include <array>
#include <cstdio>

namespace brx::plant {

namespace {

/// A name with a number of so many digits.
std::string numbered(const char* name, int number, int digits) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%s%0*d", name, digits, number);
    return text.data();
}

std::string long_name(std::size_t length) {
    std::string name = "Remark";
    for (int word = 1; name.size() < length; ++word) name += " " + std::to_string(word);
    name.resize(length);
    return name;
}

} // namespace

void fill_with_bare_branches(AddressSpace& space) {
    Branch& branches_only = AddressSpace::add_branch(space.root(), "Station 1");
    Branch& gauge = AddressSpace::add_branch(branches_only, "Gauge");
    space.add_leaf(gauge, "Diameter", measured(24.995, 25.013, 4, Type::real));
    space.add_leaf(gauge, "Verdict", on_off(4));
    Branch& leaves_only = AddressSpace::add_branch(space.root(), "Station 2");
    space.add_leaf(leaves_only, "Parts", counted(4));
    space.add_leaf(leaves_only, "Running", on_off(90));
    AddressSpace::add_branch(space.root(), "Station 3");
}

void fill_with_twins(AddressSpace& space) {
    Branch& cooling = AddressSpace::add_branch(space.root(), "Cooling");
    Branch& first = AddressSpace::add_branch(cooling, "Pump");
    space.add_leaf(first, "Speed", wave(1420, 1480, 60));
    space.add_leaf(first, "Flow", measured(11.5, 12.5));
    Branch& second = AddressSpace::add_branch(cooling, "Pump", "Cooling.Pump#2");
    space.add_leaf(second, "Speed", wave(1380, 1450, 60));
    space.add_leaf(second, "Pressure", measured(2.8, 3.2));
    Branch& heating = AddressSpace::add_branch(space.root(), "Heating");
    space.add_leaf(AddressSpace::add_branch(heating, "Burner"), "Power", wave(20, 35, 300));
    space.add_leaf(AddressSpace::add_branch(heating, "BURNER"), "Starts", counted(600));
}

void fill_with_names(AddressSpace& space) {
    Branch& stops = AddressSpace::add_branch(space.root(), "Rev. 2.1");
    space.add_leaf(stops, "Release 1.0.3", steady(103));
    space.add_leaf(AddressSpace::add_branch(stops, "Boards"), "Temperature", wave(40, 45, 90));

    Branch& signs = AddressSpace::add_branch(space.root(), "Pick & Place");
    space.add_leaf(signs, "R&D", on_off(60));
    space.add_leaf(signs, "&Speed", wave(80, 90, 60));
    space.add_leaf(signs, "Feed && Hold", on_off(30));
    space.add_leaf(signs, "Feed\tRate", wave(1, 2, 30), "Pick & Place.Feed Rate");
    space.add_leaf(signs, "", steady(0), "Pick & Place.(nameless)");
    space.add_leaf(signs, " padded ", steady(1));

    Branch& tabbed = AddressSpace::add_branch(space.root(), "Left\tRight", "Left Right");
    space.add_leaf(tabbed, "Gap", measured(0.1, 0.2));

    Branch& extensive = AddressSpace::add_branch(space.root(), long_name(2000));
    space.add_leaf(extensive, "Length", steady(2000));
    space.add_leaf(space.root(), long_name(2000), steady(2000));

    Branch& scripts = AddressSpace::add_branch(space.root(), "Scripts");
    space.add_leaf(scripts, "לחץ שמן", wave(2, 3, 60));
    space.add_leaf(scripts, "ضغط الزيت", wave(2, 3, 60));
    space.add_leaf(scripts, "Öldruck", wave(2, 3, 60));
    space.add_leaf(scripts, "油压", wave(2, 3, 60));
    space.add_leaf(AddressSpace::add_branch(space.root(), "תנור 3"), "טמפרטורה", wave(180, 220, 300));
    space.add_leaf(AddressSpace::add_branch(space.root(), "🔥 Furnace"), "🌡 Temperature",
                   wave(850, 900, 300));

    // What could be taken for something else.
    Branch& spare = AddressSpace::add_branch(space.root(), "Spare");
    space.add_leaf(AddressSpace::add_branch(spare, "XXX"), "Level", wave(0, 1, 60));
    space.add_leaf(AddressSpace::add_branch(spare, "YYY"), "Level", wave(0, 1, 60));
}

void fill_with_stations(AddressSpace& space) {
    for (int station = 1; station <= 12; ++station) {
        Branch& branch = AddressSpace::add_branch(space.root(), numbered("Station ", station, 2));
        space.add_leaf(branch, "Parts", counted(4 + station));
        space.add_leaf(branch, "Cycle time", measured(3.8, 4.4, 4));
        space.add_leaf(branch, "Running", on_off(90 + station));
    }
}

void fill_with_tags(AddressSpace& space) {
    for (int area = 1; area <= 100; ++area) {
        const std::string prefix = numbered("Area ", area, 3);
        for (int tag = 1; tag <= 1000; ++tag)
            space.add_leaf(space.root(), prefix + numbered(".TT-", tag, 4), wave(20, 80, 60 + tag));
    }
}

void fill_with_valves(AddressSpace& space) {
    for (int number = 1; number <= 5000; ++number) {
        Branch& valve = AddressSpace::add_branch(space.root(), numbered("Valve ", number, 4));
        space.add_leaf(valve, "Open", on_off(20 + number % 60));
        space.add_leaf(valve, "Position", wave(0, 100, 20 + number % 60));
        space.add_leaf(AddressSpace::add_branch(valve, "Actuator"), "Strokes", counted(30));
    }
}

} // namespace brx::plant
