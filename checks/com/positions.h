#pragma once

#include <ostream>
#include <vector>

namespace brx::checks {

/// The members of an interface in their places, after a line break, in the words of members_of. Programs in
/// the field are compiled against them: this is their second record, which a mistaken change does not match
/// any more.
struct Positions {
    const char* name;
    const char* members;
};

inline std::ostream& operator<<(std::ostream& stream, const Positions& positions) {
    return stream << positions.name;
}

const std::vector<Positions>& positions_of_dialogs();
const std::vector<Positions>& positions_of_host();
const std::vector<Positions>& positions_of_opc_automation();

} // namespace brx::checks
