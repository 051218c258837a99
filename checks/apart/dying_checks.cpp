#include "apart/apart_suite.h"
#include "faults.h"

#include <algorithm>
#include <set>

// A server process that is gone from one call to the next, as after a crash.

namespace brx::checks {

namespace {

/// How the system says that the process at the other end is gone: first in the middle of a call, then of the
/// next ones.
bool is_of_a_dead_server(std::int32_t number) {
    static const std::set<std::uint32_t> codes = {
        0x800706BA, // the server is unavailable
        0x800706BE, // the call failed
        0x800706BF, // the call failed and did not execute
        0x80010007, // the server died in the middle of a call
        0x80010012, // the server died before it
        0x80010108, // the object has disconnected from its clients
    };
    return codes.contains(static_cast<std::uint32_t>(number));
}

/// Whose trap tells of a failing call of a member; "nobody's trap" where errors are ignored.
std::set<std::string> tellers_of(const std::string& member) {
    std::set<std::string> tellers;
    for (const std::string& place : known_places_of_failure())
        if (place.starts_with(member + " in ")) tellers.insert(place.substr(member.size() + 4));
    return tellers;
}

/// Where the next calls may fail that a procedure makes because it does not know yet.
bool calls_servers(const std::string& location) {
    const auto& places = known_places_of_failure();
    return std::any_of(places.begin(), places.end(), [&](const std::string& place) {
        return place.starts_with("OPC") && place.ends_with(" in " + location);
    });
}

void expect_the_right_reports(const std::vector<Report>& reports, const std::string& member) {
    const std::set<std::string> tellers = tellers_of(member);
    const bool ignored = tellers.contains("nobody's trap");
    EXPECT_FALSE(tellers.empty()) << "No dialog is known to call it.";
    if (!ignored) {
        ASSERT_FALSE(reports.empty()) << "Nobody was told.";
        EXPECT_TRUE(tellers.contains(reports[0].what.location)) << reports[0].what.location;
    }
    for (const Report& report : reports) {
        EXPECT_TRUE(is_of_a_dead_server(report.what.number)) << report.what.number;
        EXPECT_TRUE(calls_servers(report.what.location)) << report.what.location;
        EXPECT_EQ(report.library, library_of(report.what.location));
        EXPECT_FALSE(report.what.description.empty());
        EXPECT_EQ(report.what.source, component_name);
    }
}

} // namespace

TEST_P(Apart, TheServerDiesAtEachCallInTurnAndTheHostGoesOn) {
    for (unsigned n = 1;; ++n) {
        ApartPlay its(L"--end-at " + std::to_wstring(calls_to_connect + n));
        const std::string failures = play_loosely(its, story());
        const auto calls = its.calls();
        if (calls.size() < n) {
            EXPECT_EQ(failures, "") << "It did not end because it was told without call " << n << ".";
            EXPECT_GT(n, 1U) << "It makes no call in which the server could die.";
            break;
        }
        SCOPED_TRACE(calls.back() + ", call " + std::to_string(n));
        its.its.close_everything();
        EXPECT_TRUE(its.server().has_ended());
        expect_the_right_reports(its.its.host.all_reports, calls.back());
        EXPECT_EQ(its.its.host.servers->damage(), "");
        if (n == 1) {
            its.connect_again();
            its.its.host.reports.clear();
            play(its, looks_at_a_server);
            its.its.close_everything();
        }
        its.release();
        EXPECT_EQ(its.its.host.still_held(), "");
        EXPECT_EQ(its.its.stage->leaks(), "");
    }
}

} // namespace brx::checks
