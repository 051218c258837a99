#include "server/host_test.h"
#include "server/turned_away.h"

#include <algorithm>

namespace brx::checks {

namespace {

constexpr DWORD for_ever = ~DWORD{0};

/// Calls that a busy server turns away while dialogs are shown.
class TurnedAwayTest : public HostTest {
protected:
    TurnedAway away;

    /// The next call of this member meets a server that takes none for so long.
    void meets_a_busy_server(const std::string& member, DWORD busy_for) {
        model.calls.during(member, [this, busy_for] {
            if (FAILED(away.call(busy_for))) throw Error(RPC_E_CALL_REJECTED);
        });
    }
    void show_and_close() {
        while_showing([&] { EXPECT_FALSE(show_servers()); },
                      [&](Hands& hands) { close(hands.form("dlgServerSelect")); });
    }
};

} // namespace

TEST_F(TurnedAwayTest, ACallIsTriedAgainUntilTheServerTakesIt) {
    model.servers->has("Matrix");
    meets_a_busy_server("hlxOPCServers.Count", 3'000);
    show_and_close();
    EXPECT_EQ(errors.heard.size(), 0U);
    EXPECT_GE(model.calls.count("hlxOPCServer.ServerName"), 1) << "What comes after it is done.";
    ASSERT_FALSE(away.delays.empty());
    EXPECT_TRUE(std::is_sorted(away.delays.begin(), away.delays.end()));
    EXPECT_EQ(away.delays.front(), 100U);
    EXPECT_EQ(away.delays.back(), 250U);
}

TEST_F(TurnedAwayTest, ACallIsGivenUpAfterTenSecondsAndReportedAsAnyOther) {
    meets_a_busy_server("hlxOPCServers.Count", for_ever);
    show_and_close();
    EXPECT_GE(away.lasted, 10'000U);
    EXPECT_LE(away.lasted, 10'250U);
    ASSERT_EQ(errors.heard.size(), 1U);
    EXPECT_EQ(errors.heard[0].number, RPC_E_CALL_REJECTED);
    EXPECT_EQ(errors.heard[0].location().substr(0, 15), L"dlgServerSelect");
}

TEST_F(TurnedAwayTest, StopEndsTheRetrying) {
    away.really_waits = true;
    meets_a_busy_server("hlxOPCServers.Count", for_ever);
    while_showing([&] { EXPECT_FALSE(show_servers()); },
                  [&](Hands& hands) {
                      EXPECT_TRUE(Hands::eventually([] { return waiting_window() != nullptr; }));
                      PostMessageW(GetDlgItem(waiting_window(), IDCANCEL), BM_CLICK, 0, 0);
                      close(hands.form("dlgServerSelect"));
                  });
    EXPECT_GE(away.lasted, 1'000U) << "The window comes after a second.";
    EXPECT_LT(away.lasted, 9'000U);
    EXPECT_EQ(errors.heard.size(), 1U);
}

TEST_F(TurnedAwayTest, WhatAPersonHasStoppedDoesNotEndTheRetryingAfterIt) {
    away.really_waits = true;
    TurnedAway later;
    HRESULT outcome = E_FAIL;
    while_showing([&] { show_information(); },
                  [&](Hands& hands) {
                      const HWND dialog = hands.form("dlgServerInformation");
                      hands.run([&] { meets_a_busy_server("OPCServer.StartTime", for_ever); }); // in a tick
                      EXPECT_TRUE(Hands::eventually([] { return waiting_window() != nullptr; }));
                      Hands::strike({VK_ESCAPE});
                      EXPECT_TRUE(Hands::eventually([] { return waiting_window() == nullptr; }));
                      hands.run([&] { outcome = later.call(1'000); });
                      close(dialog);
                  });
    EXPECT_LT(away.lasted, 9'000U);
    EXPECT_EQ(outcome, S_OK);
}

TEST_F(TurnedAwayTest, AFilterOfTheHostsOwnStaysAndIsAsked) {
    HostFilter own;
    ASSERT_EQ(CoRegisterMessageFilter(&own, nullptr), S_OK);
    meets_a_busy_server("hlxOPCServers.Count", for_ever);
    show_and_close();
    EXPECT_EQ(own.asked, 1);
    EXPECT_EQ(away.delays.size(), 0U);
    EXPECT_EQ(errors.heard.size(), 1U);
    EXPECT_EQ(filter_of_thread().get(), &own);
    CoRegisterMessageFilter(nullptr, nullptr);
    EXPECT_EQ(own.references(), 0U);
}

TEST_F(TurnedAwayTest, AFilterThatTheHostGetsMeanwhileStays) {
    HostFilter own;
    model.calls.during("hlxOPCServers.Count",
                       [&] { EXPECT_EQ(CoRegisterMessageFilter(&own, nullptr), S_OK); });
    show_and_close();
    EXPECT_EQ(filter_of_thread().get(), &own);
    CoRegisterMessageFilter(nullptr, nullptr);
    EXPECT_EQ(own.references(), 0U);
    EXPECT_TRUE(dll.can_unload());
}

TEST_F(TurnedAwayTest, TheFilterIsThereWhileADialogIsShownAndGoneAfterIt) {
    bool was_there = false;
    EXPECT_FALSE(filter_of_thread());
    while_showing([&] { show_servers(); },
                  [&](Hands& hands) {
                      const HWND dialog = hands.form("dlgServerSelect");
                      hands.run([&] { was_there = filter_of_thread().get() != nullptr; });
                      close(dialog);
                  });
    EXPECT_TRUE(was_there);
    EXPECT_FALSE(filter_of_thread());
    EXPECT_TRUE(dll.can_unload());
}

TEST_F(TurnedAwayTest, TheFilterIsGoneAfterAShowThatFailed) {
    bool was_there = false;
    errors.while_shown = [&] { return was_there = filter_of_thread().get() != nullptr, S_OK; };
    show_nothing();
    EXPECT_TRUE(was_there);
    EXPECT_FALSE(filter_of_thread());
    EXPECT_TRUE(dll.can_unload());
}

TEST_F(TurnedAwayTest, TheFilterOfAShowOutlastsTheShowsWithinIt) {
    com_ptr<IMessageFilter> before;
    com_ptr<IMessageFilter> after;
    HRESULT outcome = E_FAIL;
    model.calls.during("hlxOPCServers.Count", [&] {
        before = filter_of_thread();
        show_nothing();
        after = filter_of_thread();
        outcome = away.call(1'000);
    });
    show_and_close();
    EXPECT_TRUE(before);
    EXPECT_EQ(before.get(), after.get());
    EXPECT_EQ(outcome, S_OK);
    EXPECT_FALSE(filter_of_thread());
}

TEST_F(TurnedAwayTest, CallsOfOthersComeInAndWhatAPersonTypesIsNotThrownAway) {
    com_ptr<IMessageFilter> filter;
    model.calls.during("hlxOPCServers.Count", [&] { filter = filter_of_thread(); });
    show_and_close();
    ASSERT_TRUE(filter);
    EXPECT_EQ(filter->HandleInComingCall(CALLTYPE_TOPLEVEL, nullptr, 0, nullptr),
              DWORD{SERVERCALL_ISHANDLED});
    EXPECT_EQ(filter->HandleInComingCall(CALLTYPE_NESTED, nullptr, 0, nullptr), DWORD{SERVERCALL_ISHANDLED});
    EXPECT_EQ(filter->MessagePending(nullptr, 20'000, PENDINGTYPE_TOPLEVEL),
              DWORD{PENDINGMSG_WAITDEFPROCESS});
    EXPECT_EQ(filter.as<IMessageFilter>().get(), filter.get());
    EXPECT_FALSE(filter.as<IDispatch>());
}

TEST_F(TurnedAwayTest, AHostThatKeepsTheFilterKeepsTheDllAndNothingElse) {
    com_ptr<IMessageFilter> filter;
    model.calls.during("hlxOPCServers.Count", [&] { filter = filter_of_thread(); });
    show_and_close();
    ASSERT_TRUE(filter);
    EXPECT_EQ(filter->RetryRejectedCall(nullptr, 0, SERVERCALL_RETRYLATER), ~DWORD{0});
    EXPECT_FALSE(dll.can_unload());
    filter = nullptr;
    EXPECT_TRUE(dll.can_unload());
}

} // namespace brx::checks
