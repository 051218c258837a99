#include "loose_play.h"

#include <chrono>

namespace brx::checks {

namespace {

/// What was called in the same work after the n-th call, in which it was stopped, but for undoing.
std::string called_all_the_same(const std::vector<HostCall>& made, std::size_t n) {
    std::string called;
    for (std::size_t i = n; i < made.size() && made[i].watched; ++i)
        if (!made[i].undoes && !made[i].member.starts_with("create ")) called += made[i].member + " ";
    return called;
}

/// A person is told once at most that what she has stopped was stopped.
void expect_no_heap_of_reports(const Play& its) {
    std::string told;
    for (const Report& report : its.host.all_reports) {
        told += report.what.location + " ";
        EXPECT_EQ(report.what.description, "Stopped by the user") << report.what.location;
        EXPECT_EQ(report.what.number, error::call_canceled);
    }
    EXPECT_LE(std::ranges::count(told, ' '), 1) << told;
}

} // namespace

int play_with_stops(const Story& story) {
    int stops = 0;
    for (int n = 1;; ++n) {
        Play its;
        bool stopped = false;
        its.host.calls.at(n, [&] {
            its.stage->pass(std::chrono::seconds(1));
            stopped = its.person.screen().stop();
        });
        const Watch watch(its);
        play_loosely(story, its);
        const std::vector<HostCall>& made = its.host.calls.made();
        const auto position = static_cast<std::size_t>(n);
        if (made.size() < position) return stops;
        its.close_everything();
        if (!stopped) continue; // nobody waits, or for a person
        ++stops;
        SCOPED_TRACE("Stopped in call " + std::to_string(n) + ", " + made[position - 1].member + " in " +
                     made[position - 1].location);
        EXPECT_EQ(called_all_the_same(made, position), "");
        expect_no_heap_of_reports(its);
        EXPECT_EQ(its.host.servers->damage(), "");
        EXPECT_EQ(watch.half_done(), "");
        EXPECT_EQ(its.host.still_held(), "");
        EXPECT_EQ(its.stage->leaks(), "");
    }
}

} // namespace brx::checks
