#include "faults.h"
#include "loose_play.h"

#include <set>
#include <string>
#include <vector>

namespace brx::checks {

namespace {

/// The reports that tell of the failing call, which there must be exactly one of, or none where errors are
/// ignored.
void expect_the_right_report(const Play& its, const HostCall& call, const std::string& text) {
    std::vector<Report> tellers;
    for (const Report& report : its.host.all_reports)
        if (report.what.description == text) tellers.push_back(report);
    if (call.location.empty()) {
        EXPECT_TRUE(tellers.empty()) << "Errors are ignored there.";
        return;
    }
    ASSERT_EQ(tellers.size(), 1U);
    EXPECT_EQ(tellers[0].what.number, CallLog::failure_number);
    EXPECT_EQ(tellers[0].what.source, CallLog::failure_source);
    EXPECT_EQ(tellers[0].what.location, call.location);
    EXPECT_EQ(tellers[0].library, library_of(call.location));
}

/// A call's member without what it was given.
std::string member_of(const HostCall& call) { return call.member.substr(0, call.member.find('(')); }

std::set<std::string>& reached_places() {
    static std::set<std::string> places;
    return places;
}

} // namespace

ErrorLibrary library_of(const std::string& location) {
    static const std::set<std::string> exceptions = {
        "dlgConfiguration.lvwDescriptors_DblClick", "dlgConfiguration.bnAddDesc_Click",
        "dlgConfiguration.bnEditDesc_Click", "dlgConfiguration.bnRemoveDesc_Click",
        "dlgConfiguration.Timer1_Timer"};
    return location.starts_with("dlgConfiguration.") && !exceptions.contains(location)
               ? ErrorLibrary::hlxER01
               : ErrorLibrary::brxError6;
}

bool plays_with_a_failing_host(const std::string& suite) { return suite.ends_with("WithAFailingHost"); }

const std::set<std::string>& places_that_stories_reached() { return reached_places(); }

std::set<std::string> play_with_failing_calls(const Story& story) {
    std::set<std::string> places;
    for (int n = 1;; ++n) {
        Play its;
        its.host.calls.fail_at(n);
        const Watch watch(its);
        play_loosely(story, its);
        if (static_cast<int>(its.host.calls.made().size()) < n) break; // no call is left to fail
        const HostCall call = its.host.calls.made()[static_cast<std::size_t>(n - 1)];
        const std::string text = CallLog::failure_text(n, call.member);
        SCOPED_TRACE(text);
        its.close_everything();
        if (!call.failed) continue; // the story lets another call fail
        expect_the_right_report(its, call, text);
        EXPECT_EQ(its.host.servers->damage(), "");
        // Where writing the former value back fails too there is nothing left to do.
        const bool goes_back = call.location.empty() && member_of(call).ends_with("=");
        if (!goes_back) {
            EXPECT_EQ(watch.half_done(), "");
        }
        EXPECT_EQ(its.host.still_held(), "");
        EXPECT_EQ(its.stage->leaks(), "");
        places.insert(member_of(call) + " in " + (call.location.empty() ? "nobody's trap" : call.location));
    }
    if (plays_with_a_failing_host(testing::UnitTest::GetInstance()->current_test_info()->test_suite_name()))
        reached_places().insert(places.begin(), places.end());
    return places;
}

} // namespace brx::checks
