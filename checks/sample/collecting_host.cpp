#include "host/host.h"
#include "host/plant_source.h"
#include "sample/hand_clock.h"

#include <unistd.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <string_view>

// A host that collects as fast as it can and never ends by itself: collecting_host FILE. After each look at
// its items it tells how many subgroups its database file has now, as 64 bits on its output.

namespace brx::host {

namespace {

/// Every value is a piece, and subgroups follow each other.
void collect_all(Configuration& configuration) {
    configuration.set_SubgroupInterval(0);
    configuration.set_PieceTriggerItem("");
    configuration.collection().run();
}

std::int64_t stored_by(Configuration& configuration) {
    std::int64_t all = 0;
    for (std::int32_t test = 1; test <= configuration.tests().Count(); ++test)
        all += configuration.collection().stored_subgroups(test);
    return all;
}

bool tell(std::int64_t stored) {
    std::array<char, sizeof stored> bytes{};
    std::copy_n(reinterpret_cast<const char*>(&stored), sizeof stored, bytes.begin());
    return write(STDOUT_FILENO, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size());
}

int run(const char* file) {
    Log log;
    const auto clock = std::make_shared<plant::HandClock>();
    const auto host = Host::open(
        file, std::make_shared<PlantSource>(std::make_shared<plant::Plant>(plant::sample_plant(), clock)),
        log);
    // What is written outlives the program without the disk being waited for, and the moments that a kill can
    // spoil come the more often.
    host->database()->file().run("PRAGMA synchronous = OFF");
    host->servers()->connect_all();
    const auto first = host->servers()->at(1).configurations().at(1);
    const auto second = host->servers()->at(2).configurations().at(1);
    collect_all(*first);
    collect_all(*second);
    while (tell(stored_by(*first) + stored_by(*second))) {
        clock->advance(1);
        host->servers()->collect(clock->now());
    }
    return 0;
}

} // namespace

} // namespace brx::host

int main(int count, char** arguments) {
    if (count != 2) return 2;
    try {
        return brx::host::run(arguments[1]);
    } catch (const brx::Error& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
