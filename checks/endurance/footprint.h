#pragma once

#include "bench/walk.h"

#include <cstddef>
#include <string>

namespace brx::checks {

/// What a host's process and its objects hold at some moment.
struct Footprint {
    int user = 0;            ///< how far up the table of windows, menus, hooks and so on is filled
    int gdi = 0;             ///< the same of fonts, brushes and so on
    int kernel = 0;          ///< the same of events, threads, files and so on
    std::size_t blocks = 0;  ///< in use in the heaps of the process
    std::size_t bytes = 0;   ///< of private memory
    long references = 0;     ///< to the host's objects
    bool unloadable = false; ///< nothing in the DLL is counted as in use
};

/// In all heaps of the process.
std::size_t blocks_in_use();

/// Forgets the host's own records of calls and reports first.
Footprint footprint_of(bench::LastingHost& host);

/// How much more than at the first mark there may be at the end.
namespace slack {
/// Handles are counted by taking a handful of them. One that stays with each hundredth showing is more than
/// that.
constexpr int handles = 64;
/// What the system keeps for itself, in caches.
constexpr std::size_t blocks = 64;
/// The system's heaps come apart; a block of a hundred bytes for each of 10,000 showings is as much.
constexpr std::size_t bytes = 1'000'000;
/// A block of the system's own is a small one.
constexpr std::size_t bytes_for_a_block = 64;
} // namespace slack

/// What has grown by more than that, in words; "" for nothing. So many blocks are the system's own.
std::string grown(const Footprint& mark, const Footprint& end, std::size_t blocks_of_the_system = 0);

} // namespace brx::checks
