#pragma once

#include "plant/signal.h"

#include <chrono>
#include <cstdint>
#include <span>

namespace brx::plant {

/// What is wrong with an item that the server lists and finds valid.
enum class Trouble {
    none,
    cannot_be_added, ///< adding it to a group is refused
    type_unreadable, ///< it is added, but asking for its data type fails
};

/// One item. Its place is its branches from the root and its name, separated by "/", so that names may
/// contain full stops.
struct ItemDescription {
    const char* place;
    Signal signal;
    Trouble trouble = Trouble::none;
};

/// How a server answers whoever walks its address space.
enum class Browsing {
    hierarchical, ///< branches and leaves; an item's identifier is its place, joined with full stops
    flat,         ///< leaves only, whatever is asked for: the identifiers, which are the places as they stand
    flat_no_branches, ///< the same, but asked for branches it has none
    none,             ///< no browser at all
};

/// How a server's browser tries the patience of whoever uses it.
struct BrowserManners {
    std::chrono::milliseconds answers_after{0}; ///< what each call takes
    int fails_every = 0;                        ///< every so many calls one fails; 0 for never
    int drops_every = 0; ///< a list loses its last name whenever so many were read; 0 for never
};

class AddressSpace;

struct ServerDescription {
    const char* program_id;
    const char* vendor;
    Browsing browsing = Browsing::hierarchical;
    std::span<const ItemDescription> items = {};
    void (*fill)(AddressSpace&) = nullptr; ///< adds what is generated rather than listed, on the first use
    BrowserManners browser = {};
    std::int16_t major = 1;
    std::int16_t minor = 0;
    std::int16_t build = 0;
    std::int32_t state = 1;               ///< as ServerState says it once connected
    std::int32_t bandwidth = -1;          ///< percent; -1 for unknown
    double update_seconds = 1;            ///< between two updates; 0 for a server that never sent data
    double hours_up = 24;                 ///< how long it had been running when the plant was switched on
    std::uint32_t connection_failure = 0; ///< the code that every attempt to connect ends with
};

/// A computer. The one without a name is the local one.
struct NodeDescription {
    const char* name;
    std::span<const ServerDescription> servers = {};
    std::chrono::milliseconds answers_after{0};
    std::uint32_t refusal = 0; ///< the code with which it refuses to say what it has
};

/// The computers that the sample host comes with.
std::span<const NodeDescription> sample_plant();

} // namespace brx::plant
