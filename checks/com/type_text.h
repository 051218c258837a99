#pragma once

#include <string>
#include <vector>

namespace brx::checks {

/// A kind, a library, a name and an identifier, as a line of identifiers.txt says them.
struct Identifier {
    std::string kind;
    std::string library;
    std::string name;
    std::string value;
    auto operator<=>(const Identifier&) const = default;
};

/// Every library, interface and class of the type libraries in this program.
std::vector<Identifier> described_identifiers();

/// The members of an interface of one of these libraries in slot order, a line each: position, kind, name,
/// parameters, result and dispatch identifier; hidden and restricted ones are "kept free".
std::string members_of(const std::string& interface_name);

/// The events of a library's dispinterface in the same form, without positions.
std::string events_of(const std::string& dispinterface_name);

/// Names of members that say nothing about themselves.
std::vector<std::string> members_without_help();

} // namespace brx::checks
