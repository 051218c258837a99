#pragma once

namespace brx::plant {

class AddressSpace;

// The address spaces of the test bench that are generated or cannot be written as a list of places.

/// Branches with a branch below but no leaf, with leaves but no branch, and with nothing.
void fill_with_bare_branches(AddressSpace& space);
/// Two branches of one name beside each other, with items of their own, and two that differ in their letter
/// case.
void fill_with_twins(AddressSpace& space);
/// Names with full stops, ampersands, tabs, spaces at their ends, many letters, other scripts, or none at
/// all.
void fill_with_names(AddressSpace& space);
/// A dozen branches with a few leaves.
void fill_with_stations(AddressSpace& space);
/// 100,000 leaves in a flat space.
void fill_with_tags(AddressSpace& space);
/// 5,000 branches at the root, each with a branch and three leaves in all.
void fill_with_valves(AddressSpace& space);

} // namespace brx::plant
