#include "browsing.h"
#include "testing.h"

// What a person sees and does while a server takes its time.

using namespace brx;
using namespace brx::checks;

namespace {

constexpr std::chrono::seconds a_second{1};

const std::string stopped_at_two =
    "Reading was stopped at 2 of 5 items. To read them all: a click on the group.";

/// A branch with more than a person wants to wait for.
void a_long_branch(Play& its) {
    its.host.connection->server_name = "Matrix";
    its.host.connection->server_node = "PC7";
    its.host.browser->root.has("Line1", {"A", "B", "C", "D", "E"});
    its.host.browser->root.has("Line2", {"F"});
    its.host.browser->root.has("Line3");
}

void expect_told(const std::optional<Waiting>& seen, const std::string& what, const std::string& how_far) {
    EXPECT_EQ(seen.value_or(Waiting{}).what, what);
    EXPECT_TRUE(seen.value_or(Waiting{}).how_far.ends_with(how_far)) << seen.value_or(Waiting{}).how_far;
}

} // namespace

SCENARIO(SlowServers, WhatIsWaitedForIsTold) {
    a_long_branch(its);
    std::optional<Waiting> late;
    Browsing dialog(its);
    its.host.calls.during("OPCBrowser.Item(4)", [&] {
        its.stage->pass(a_second);
        late = its.person.screen().waiting();
    });
    its.person.clicks_node("TrView", "Line1");
    expect_told(late, "Reading branch Line1 of Matrix on PC7", " s - 3 of 5");
    EXPECT_EQ(its.person.screen().waiting(), std::nullopt) << "It is over.";
    EXPECT_EQ(its.person.lines_of("lstItem").size(), 5U);
    EXPECT_EQ(its.person.reads("lblNotice"), "");
    its.person.closes_the_window();
    dialog.result();
}

SCENARIO(SlowServers, WhatIsWaitedForBeforeADialogOpensIsTold) {
    a_long_branch(its);
    std::optional<Waiting> seen;
    its.host.calls.during("OPCBrowser.Item(2)", [&] {
        its.stage->pass(a_second);
        seen = its.person.screen().waiting();
    });
    Browsing dialog(its);
    expect_told(seen, "Reading the groups of Matrix on PC7", " s - 1 of 3");
    EXPECT_EQ(its.person.screen().waiting(), std::nullopt);
    its.person.closes_the_window();
    dialog.result();
}

SCENARIO(SlowServers, StopEndsAListBeforeItsNextCallAndTheDialogSaysSo) {
    a_long_branch(its);
    Browsing dialog(its);
    dialog.calls();
    its.host.calls.during("OPCBrowser.Item(2)", [&] {
        its.stage->pass(a_second);
        EXPECT_TRUE(its.person.screen().stop());
    });
    its.person.clicks_node("TrView", "Line1");
    EXPECT_EQ(its.person.lines_of("lstItem"), (Lines{"A", "B"}));
    EXPECT_EQ(its.person.reads("lblNotice"), stopped_at_two);
    EXPECT_EQ(dialog.calls(),
              (Lines{"OPCBrowser.MoveToRoot", "OPCBrowser.MoveTo(Line1)", "OPCBrowser.ShowLeafs(False)",
                     "OPCBrowser.Count", "OPCBrowser.Item(1)", "OPCBrowser.Item(2)"}));
    its.person.picks("lstItem", "B");
    EXPECT_EQ(its.person.reads("txtFullPath"), "Line1.B") << "What was read can be used.";
    its.person.clicks_node("TrView", "Line1");
    EXPECT_EQ(its.person.lines_of("lstItem").size(), 5U);
    EXPECT_EQ(its.person.reads("lblNotice"), "");
    its.person.closes_the_window();
    dialog.result();
}

SCENARIO(SlowServers, StopBeforeAnythingWasReadMakesNoFurtherCall) {
    a_long_branch(its);
    Browsing dialog(its);
    const auto stop = [&] {
        its.stage->pass(a_second);
        EXPECT_TRUE(its.person.screen().stop());
    };
    dialog.calls();
    its.host.calls.during("OPCBrowser.MoveTo(Line1)", stop);
    its.person.clicks_node("TrView", "Line1");
    EXPECT_EQ(dialog.calls(), (Lines{"OPCBrowser.MoveToRoot", "OPCBrowser.MoveTo(Line1)"}));
    EXPECT_EQ(its.person.reads("lblNotice"), "Reading was stopped. To read the items: a click on the group.");
    its.host.calls.during("OPCBrowser.MoveTo(Line1)", stop);
    its.person.expands("TrView", "Line1");
    EXPECT_EQ(its.person.lines_of("TrView").front(), " Line1");
    EXPECT_EQ(its.person.reads("lblNotice"), "Reading was stopped. To read the groups: Refresh.");
    its.person.closes_the_window();
    dialog.result();
}

SCENARIO(SlowServers, EscapeIsStopWhileTheWaitingIsShownAndNothingElse) {
    a_long_branch(its);
    Browsing dialog(its);
    its.host.calls.during("OPCBrowser.Item(2)", [&] {
        its.stage->pass(a_second);
        static_cast<void>(its.person.screen().key(Key::escape));
    });
    its.person.clicks_node("TrView", "Line1");
    its.person.is_at("dlgItemSelect");
    EXPECT_EQ(its.person.reads("lblNotice"), stopped_at_two);
    its.person.hits(Key::escape);
    its.person.is_at("");
    dialog.result();
}

SCENARIO(SlowServers, WhoeverLeavesWaitsForNoFurtherCall) {
    a_long_branch(its);
    const std::vector<std::function<void()>> ways = {
        [&] { its.person.screen().press("bnCancel"); },
        [&] { its.person.screen().close_box(); },
        [&] { static_cast<void>(its.person.screen().key(Key::escape)); },
    };
    for (const auto& leave : ways) {
        Browsing dialog(its);
        dialog.calls();
        its.host.calls.during("OPCBrowser.Item(2)", leave);
        its.person.clicks_node("TrView", "Line1");
        EXPECT_EQ(dialog.calls(),
                  (Lines{"OPCBrowser.MoveToRoot", "OPCBrowser.MoveTo(Line1)", "OPCBrowser.ShowLeafs(False)",
                         "OPCBrowser.Count", "OPCBrowser.Item(1)", "OPCBrowser.Item(2)"}));
        its.person.is_at("");
        dialog.result();
    }
}

SCENARIO(SlowServers, EscapeThatClosesTheLineForFindingEndsNoReading) {
    a_long_branch(its);
    Browsing dialog(its);
    its.person.hits(Key::control_f);
    its.host.calls.during("OPCBrowser.Item(2)",
                          [&] { static_cast<void>(its.person.screen().key(Key::escape)); });
    its.person.clicks_node("TrView", "Line1");
    EXPECT_EQ(its.person.lines_of("lstItem").size(), 5U);
    EXPECT_FALSE(its.person.sees("txtFind").visible);
    its.person.is_at("dlgItemSelect");
    its.person.closes_the_window();
    dialog.result();
}

SCENARIO(SlowServers, ACallThatIsBrokenOffIsReadingThatWasStopped) {
    a_long_branch(its);
    Browsing dialog(its);
    its.host.calls.during("OPCBrowser.Item(3)", [&] {
        its.stage->pass(a_second);
        EXPECT_TRUE(its.person.screen().stop());
        throw Stopped(Stopped::Call::broken_off);
    });
    its.person.clicks_node("TrView", "Line1");
    EXPECT_EQ(its.person.lines_of("lstItem"), (Lines{"A", "B"}));
    EXPECT_EQ(its.person.reads("lblNotice"), "Reading was stopped. To read the items: a click on the group.");
    its.person.closes_the_window();
    dialog.result();
}

SCENARIO(SlowServers, ACallThatTheServerCancelsByItselfIsAnError) {
    a_long_branch(its);
    Browsing dialog(its);
    its.host.calls.during("OPCBrowser.Item(3)", [] { throw Error(error::call_canceled, "Enough.", "Sim"); });
    its.person.clicks_node("TrView", "Line1");
    its.expect_report(error::call_canceled, "dlgItemSelect.BuildLeaves");
    its.person.closes_the_window();
    dialog.result();
}

SCENARIO(SlowServers, WhoeverLeavesADialogIsShownNoOtherAndToldNothing) {
    for (const char* button : {"bnItem", "bnTest"}) {
        Testing testing(its, its.host.has_test(0, ""));
        its.host.calls.at(1, [&] { its.person.screen().press("bnCancel"); });
        its.person.presses(button);
        its.person.is_at("");
        EXPECT_FALSE(testing.result());
    }
    EXPECT_EQ(its.host.calls.count("OPCServer.CreateBrowser"), 0);
    EXPECT_EQ(its.host.calls.count("create hlxTestSelect"), 0);
}

SCENARIO(SlowServers, GroupsThatWereNotAllReadAreToldOfUntilTheyAre) {
    a_long_branch(its);
    Browsing dialog(its);
    const auto stop = [&] {
        its.stage->pass(a_second);
        EXPECT_TRUE(its.person.screen().stop());
    };
    its.host.calls.during("OPCBrowser.Item(2)", stop);
    its.person.presses("cmdRefresh");
    const std::string notice = "Reading was stopped at 2 of 3 groups. To read them all: Refresh.";
    EXPECT_EQ(its.person.lines_of("TrView"), (Lines{"+Line1", "+Line2"}));
    EXPECT_EQ(its.person.reads("lblNotice"), notice);
    its.person.clicks_node("TrView", "Line2");
    EXPECT_EQ(its.person.lines_of("lstItem"), Lines{"F"});
    EXPECT_EQ(its.person.reads("lblNotice"), notice);
    its.host.calls.during("OPCBrowser.Item(2)", stop);
    its.person.clicks_node("TrView", "Line1");
    EXPECT_EQ(its.person.reads("lblNotice"), notice + "  " + stopped_at_two);
    its.person.presses("cmdRefresh");
    EXPECT_EQ(its.person.lines_of("TrView").size(), 3U);
    EXPECT_EQ(its.person.reads("lblNotice"), "");
    its.person.closes_the_window();
    dialog.result();
}

SCENARIO(SlowServers, AServerThatHasGoneIsToldOfWhereItsErrorsAreIgnored) {
    a_long_branch(its);
    Browsing dialog(its);
    its.host.browser->failing = {"MoveTo"};
    its.person.clicks_node("TrView", "Line1");
    EXPECT_EQ(its.person.reads("lblNotice"), "") << "A branch that is not there is no dead server.";
    for (const std::int32_t code : {-2147023174 /* 0x800706BA */, -2147417848 /* 0x80010108 */}) {
        its.host.browser->failure = code;
        its.person.clicks_node("TrView", "Line1");
        EXPECT_EQ(its.person.reads("lblNotice"), "The server does not answer: MoveTo is out of order");
    }
    its.host.browser->failing.clear();
    its.person.clicks_node("TrView", "Line1");
    EXPECT_EQ(its.person.reads("lblNotice"), "");
    its.person.closes_the_window();
    dialog.result();
}
