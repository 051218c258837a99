#include "server/host_test.h"
#include "server/opened_windows.h"
#include "server/turned_away.h"

#include "desk/hands.h"

namespace brx::checks {

namespace {

/// Hosts as they are, and what becomes of an open dialog.
class HostsTest : public HostTest {
protected:
    /// The exit code of the quit message that waits for the host's loop; -1 for none.
    static int quit_message() {
        MSG message{};
        return PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) ? static_cast<int>(message.wParam)
                                                                            : -1;
    }
};

} // namespace

TEST_F(HostsTest, ADialogThatACallOfAnotherShowsLiesOverItAndBothGoOn) {
    bool chosen = true;
    while_showing(
        [&] { show_information(); },
        [&](Hands& hands) {
            const HWND below = hands.form("dlgServerInformation");
            hands.run([&] { model.calls.during("OPCServer.StartTime", [&] { chosen = show_servers(); }); });
            const HWND front = hands.form("dlgServerSelect");
            EXPECT_EQ(GetWindow(front, GW_OWNER), below);
            EXPECT_FALSE(IsWindowEnabled(below));
            close(front);
            EXPECT_EQ(hands.form("dlgServerInformation"), below);
            EXPECT_FALSE(IsWindow(front));
            close(below);
        });
    EXPECT_FALSE(chosen);
    EXPECT_EQ(errors.heard.size(), 0U);
}

TEST_F(HostsTest, ADialogWhoseOwnerIsDestroyedClosesAsByItsCloseBox) {
    const HostWindow other;
    const HostWindow main;
    model.servers->has("Matrix");
    bool chosen = true;
    while_showing([&] { chosen = show_servers(); },
                  [&](Hands& hands) {
                      hands.form("dlgServerSelect");
                      hands.run([&] { DestroyWindow(main.handle()); });
                  });
    EXPECT_FALSE(chosen);
    EXPECT_EQ(errors.heard.size(), 0U);
    EXPECT_TRUE(IsWindowEnabled(other.handle()));
}

TEST_F(HostsTest, AnOwnerCanBeDestroyedInACallOfTheDialogs) {
    const HostWindow main;
    bool shown = false;
    while_showing([&] { show_information(); },
                  [&](Hands& hands) {
                      hands.form("dlgServerInformation");
                      hands.run([&] {
                          model.calls.during("OPCServer.StartTime",
                                             [&] { shown = DestroyWindow(main.handle()) != FALSE; });
                      });
                      EXPECT_TRUE(Hands::eventually([&] { return windows_of(windows.id()).empty(); }));
                  });
    EXPECT_TRUE(shown);
    EXPECT_EQ(errors.heard.size(), 0U);
}

TEST_F(HostsTest, AQuitMessageClosesTheDialogsAndKeepsItsExitCode) {
    bool chosen = true;
    while_showing(
        [&] { show_information(); },
        [&](Hands& hands) {
            hands.form("dlgServerInformation");
            hands.run([&] { model.calls.during("OPCServer.StartTime", [&] { chosen = show_servers(); }); });
            hands.form("dlgServerSelect");
            PostThreadMessageW(windows.id(), WM_QUIT, 23, 0);
            EXPECT_TRUE(Hands::eventually([&] { return windows_of(windows.id()).empty(); }));
        });
    EXPECT_FALSE(chosen);
    EXPECT_EQ(quit_message(), 23);
    EXPECT_EQ(errors.heard.size(), 0U);
}

TEST_F(HostsTest, AHostThatQuitsInACallOfTheDialogsIsObeyedAfterIt) {
    while_showing([&] { show_information(); },
                  [&](Hands& hands) {
                      hands.form("dlgServerInformation");
                      hands.run(
                          [&] { model.calls.during("OPCServer.StartTime", [] { PostQuitMessage(42); }); });
                      EXPECT_TRUE(Hands::eventually([&] { return windows_of(windows.id()).empty(); }));
                  });
    EXPECT_EQ(quit_message(), 42);
    EXPECT_EQ(errors.heard.size(), 0U);
}

TEST_F(HostsTest, AHostThatQuitsWhileAKeyWaitsForTheCallIsObeyedToo) {
    while_showing([&] { show_information(); },
                  [&](Hands& hands) {
                      const HWND form = hands.form("dlgServerInformation");
                      hands.run([&] {
                          model.calls.during("OPCServer.StartTime", [form] {
                              // One that has no character.
                              const HWND control = GetWindow(form, GW_CHILD);
                              PostMessageW(control, WM_KEYDOWN, VK_DOWN, 0);
                              MSG message{};
                              while (PeekMessageW(&message, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE))
                                  DispatchMessageW(&message);
                              PostQuitMessage(42);
                          });
                      });
                      EXPECT_TRUE(Hands::eventually([&] { return windows_of(windows.id()).empty(); }));
                  });
    EXPECT_EQ(quit_message(), 42);
    EXPECT_EQ(errors.heard.size(), 0U);
}

TEST_F(HostsTest, AQuitMessageClosesTheBoxThatTellsOfAnError) {
    errors.while_shown = [] { return E_FAIL; };
    while_showing([&] { show_nothing(); },
                  [&](Hands& hands) {
                      hands.message_box();
                      PostThreadMessageW(windows.id(), WM_QUIT, 5, 0);
                      EXPECT_TRUE(Hands::eventually([&] { return windows_of(windows.id()).empty(); }));
                  });
    EXPECT_EQ(quit_message(), 5);
    EXPECT_EQ(errors.heard.size(), 1U);
}

TEST_F(HostsTest, TheEndOfTheSessionIsAgreedToAndClosesTheDialogOnceItIsSure) {
    bool chosen = true;
    while_showing([&] { chosen = show_servers(); },
                  [&](Hands& hands) {
                      const HWND dialog = hands.form("dlgServerSelect");
                      EXPECT_TRUE(SendMessageW(dialog, WM_QUERYENDSESSION, 0, 0));
                      SendMessageW(dialog, WM_ENDSESSION, FALSE, 0); // another program has refused
                      EXPECT_EQ(hands.form("dlgServerSelect"), dialog);
                      SendMessageW(dialog, WM_ENDSESSION, TRUE, 0);
                      EXPECT_TRUE(Hands::eventually([&] { return !IsWindow(dialog); }));
                  });
    EXPECT_FALSE(chosen);
    EXPECT_EQ(quit_message(), -1);
}

TEST_F(HostsTest, TheEndOfTheSessionClosesTheDialogsBelowTheOneInFrontToo) {
    while_showing([&] { show_information(); },
                  [&](Hands& hands) {
                      const HWND below = hands.form("dlgServerInformation");
                      hands.run([&] { model.calls.during("OPCServer.StartTime", [&] { show_servers(); }); });
                      const HWND front = hands.form("dlgServerSelect");
                      for (const HWND each : {front, below}) SendMessageW(each, WM_ENDSESSION, TRUE, 0);
                      EXPECT_TRUE(Hands::eventually([&] { return !IsWindow(below); }));
                  });
    EXPECT_EQ(errors.heard.size(), 0U);
}

TEST_F(HostsTest, TheDllStaysWhileADialogIsOpenAlthoughItsHostHasLetGoOfTheObject) {
    HostFilter own; // or the component's would keep the DLL
    ASSERT_EQ(CoRegisterMessageFilter(&own, nullptr), S_OK);
    auto object = dll.create<_ServerSelect>(CLSID_ServerSelect);
    bool stayed = false;
    while_showing(
        [&] {
            IDispatch* servers = to_com<hlxOPCServers>(model.servers).detach();
            VARIANT_BOOL chosen = VARIANT_TRUE;
            EXPECT_EQ(object.get()->Show(&servers, &chosen), S_OK);
            servers->Release();
        },
        [&](Hands& hands) {
            const HWND dialog = hands.form("dlgServerSelect");
            hands.run([&] {
                object = nullptr;
                CoFreeUnusedLibraries();
                stayed = !dll.can_unload();
            });
            close(dialog);
        });
    CoRegisterMessageFilter(nullptr, nullptr);
    EXPECT_TRUE(stayed);
    EXPECT_TRUE(dll.can_unload());
}

} // namespace brx::checks
