#include "random/watch.h"

#include "common/version.h"
#include "faults.h"
#include "faults/known_places.h"
#include "host/fake_host.h"
#include "random/finding.h"
#include "random/values.h"
#include "scenario.h"

#include <algorithm>

namespace brx::checks {

namespace {

/// The places that trap errors. Beside those where a host's call can fail there are some in which only the
/// dialog's own steps do.
const std::set<std::string>& known_locations() {
    static const std::set<std::string> all = [] {
        // Objects that are none of the right kind.
        std::set<std::string> locations = {
            "CommonTools.ResolveDatabase",         "CommonTools.ResolveOPCGroup",
            "CommonTools.ResolveOPCServer",        "ConfigurationSetup.ResolveOPCConfiguration",
            "ServerAdd.ResolvehlxOPCServers",      "ServerSelect.ResolvehlxOPCServers",
            "TestConfiguration.ResolvehlxOPCTest", "dlgOPCTest.ResolveTestDat"};
        for (const std::string& place : known_places_of_failure()) {
            const std::string location = place.substr(place.find(" in ") + 4);
            if (location != "nobody's trap") locations.insert(location);
        }
        return locations;
    }();
    return all;
}

/// Numbers that a person enters can be beyond all numbers.
bool is_an_overflow(const Report& report) {
    static const std::set<std::string> boxes = {
        "dlgConfiguration.txtDeadband_Change",   "dlgConfiguration.txtPieceTimeInterval_Change",
        "dlgConfiguration.txtSGInterval_Change", "dlgConfiguration.txtSubgroupSize_Change",
        "dlgConfiguration.txtUpdateRate_Change", "dlgOPCTest.txtConstant_Change"};
    return report.what.number == error::overflow && boxes.contains(report.what.location);
}

/// Work that a person stops, or leaves, opens no further dialog, and asks for no data type.
bool ends_with_a_stop(const std::string& location) {
    static const std::set<std::string> places = {"LeafSelect.Show", "ServerAdd.Show",
                                                 "TestConfiguration.Show", "dlgOPCTest.bnOK_Click",
                                                 "dlgEvaluation.GetCalculation"};
    return places.contains(location);
}

/// A host's message service can fail wherever the person is told something.
bool is_of_the_message_service(const Report& report, const CallLog& calls) {
    for (std::size_t i = 0; i < calls.made().size(); ++i) {
        const HostCall& call = calls.made()[i];
        if (call.failed && call.member == "hlxMessage.Show" &&
            report.what.description == error_at(0, static_cast<int>(i)).description())
            return true;
    }
    return false;
}

/// Run-time errors that a dialog can meet by itself, with whatever host; 51 and 7 are none of them.
bool is_known(std::int32_t number) {
    static const std::set<std::int32_t> own = {error::invalid_procedure_call,
                                               error::overflow,
                                               error::subscript_out_of_range,
                                               error::type_mismatch,
                                               error::object_not_set,
                                               error::invalid_use_of_null,
                                               error::cannot_create_object,
                                               error::key_not_unique,
                                               -2147023174,  // a node that nobody knows
                                               -2147467263}; // a server that cannot be browsed
    return own.contains(number) || numbers_of_errors().contains(number);
}

/// Whether the host's calls know whose trap they are called from: not where that is another module's.
#ifdef _WIN32
constexpr bool traps_are_known = false;
#else
constexpr bool traps_are_known = true;
#endif

std::string told(const Report& report) {
    return "error " + std::to_string(report.what.number) + " in " + report.what.location + ": " +
           report.what.description + " (" + report.what.source + ", " + report.what.application + ", " +
           error_class_name(report.library) + ")";
}

void expect(bool right, const std::string& kind, const std::string& what) {
    if (!right) throw Finding(kind, what);
}

} // namespace

Watch::Watch(FakeHost& host, Stage& stage) : host_(host), stage_(stage), holdings_(holdings_of(host)) {}

void Watch::look(const Disturbance& disturbance) {
    look_at_reports(disturbance.stopped);
    look_at_failures(!disturbance.by_a_person);
    look_at_objects(disturbance);
}

void Watch::look_at_reports(bool stopped) {
    for (; reports_seen_ < host_.all_reports.size(); ++reports_seen_) {
        const Report& report = host_.all_reports[reports_seen_];
        const std::string number = std::to_string(report.what.number);
        const std::string& location = report.what.location;
        const bool of_a_stop = stopped && report.what.number == error::call_canceled;
        expect(of_a_stop || is_known(report.what.number), "error " + number + " in " + location,
               told(report));
        expect(known_locations().contains(location) || is_an_overflow(report) ||
                   (of_a_stop && ends_with_a_stop(location)) ||
                   is_of_the_message_service(report, host_.calls),
               "a report from " + location, told(report));
        expect(report.library == library_of(location), "the library of " + location, told(report));
        expect(!report.what.description.empty() && !report.what.source.empty(),
               "an empty report from " + location, told(report));
        expect(report.what.application == application_text, "an application", told(report));
    }
}

/// A call that failed is told by the procedure that traps it, and by no other one.
void Watch::look_at_failures(bool exactly) {
    const auto& calls = host_.calls.made();
    for (; calls_seen_ < calls.size(); ++calls_seen_) {
        const HostCall& call = calls[calls_seen_];
        if (!call.failed || !traps_are_known) continue;
        const std::string text = error_at(0, static_cast<int>(calls_seen_)).description();
        int tellers = 0;
        for (const Report& report : host_.all_reports) {
            if (report.what.description != text) continue;
            ++tellers;
            expect(report.what.location == call.location, "who tells of " + call.member,
                   told(report) + " instead of " + call.location);
        }
        if (exactly)
            expect(tellers == (call.location.empty() ? 0 : 1), "how often is told of " + call.member,
                   std::to_string(tellers) + " reports of " + call.member + ", which failed in " +
                       (call.location.empty() ? "nobody's trap" : call.location));
    }
}

/// Where one call failed, and the same form is in front afterwards, nothing is left half written.
void Watch::look_at_objects(const Disturbance& disturbance) {
    std::string front = stage_.screen().front();
    auto holdings = holdings_of(host_);
    // One message box is not the other.
    const bool went_on = front != front_ || front == "message";
    if (disturbance.failures == 1 && !disturbance.by_a_person && !disturbance.strange_answer && !went_on) {
        const std::string half = half_done(holdings_, holdings);
        expect(half.empty(), "half written", half);
    }
    front_ = std::move(front);
    holdings_ = std::move(holdings);
    expect(host_.servers->damage().empty(), "servers", host_.servers->damage());
}

void Watch::look_at_the_end() {
    look_at_reports(false);
    expect(!stage_.busy(), "open", "A window could not be closed: " + stage_.screen().front());
    expect(host_.still_held().empty(), "held", host_.still_held());
    const std::string different = stage_.differences();
    expect(different.empty(), "different", different);
    const std::string leaked = stage_.leaks();
    expect(leaked.empty(), "leaked", leaked);
}

} // namespace brx::checks
