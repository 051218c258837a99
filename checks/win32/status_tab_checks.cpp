// The status of a server with very many groups, which is read again each second.

#include "looks.h"
#include "pages.h"

#include "configuration/dlgConfiguration.h"
#include "desk/native.h"
#include "host/fake_host.h"

namespace brx::checks {

namespace {

constexpr int group_count = 1000;
constexpr int server_rows = 12; ///< above the groups'

class StatusTabTest : public OnWindows {
protected:
    StatusTabTest() {
        for (int n = 1; n <= group_count; ++n) model.groups->has("Group of items " + std::to_string(n));
        form.set_configuration(model.configuration);
    }

    /// Shows the status after its first tick, and acts on the thread of its windows.
    void show_status(const std::function<void(HWND list)>& job) {
        show(form, [&](Hands& hands) {
            hands.form("dlgConfiguration");
            window = GetParent(hands.control("dlgConfiguration", "lvwServerInfo"));
            const HWND list = hands.control("dlgConfiguration", "lvwServerInfo");
            std::unique_ptr<MessageLog> log;
            hands.run([&] { log = std::make_unique<MessageLog>(window); });
            hands.keys({VK_MENU, '4'});
            EXPECT_TRUE(Hands::eventually([&] {
                hands.run([&] {
                    for (const MSG& each : log->messages)
                        if (each.message == WM_TIMER) timer = each.wParam;
                });
                return timer != 0;
            })) << "It never ticks.";
            hands.run([&] { log.reset(); });
            hands.wait_until_idle();
            hands.run([&] {
                ASSERT_TRUE(IsWindowVisible(list));
                ASSERT_EQ(row_count(list), server_rows + group_count);
                draw_all(list);
                job(list);
            });
        });
        EXPECT_TRUE(host.reports.empty());
    }
    void draw_all(HWND list) const {
        for (const HWND each : {window, list}) UpdateWindow(each);
    }
    void tick() const {
        const int before = model.calls.count("OPCServer.OPCGroups");
        SendMessageW(window, WM_TIMER, timer, 0);
        EXPECT_EQ(model.calls.count("OPCServer.OPCGroups"), before + 1) << "It did not tick.";
    }

    FakeHost model;
    dlgConfiguration form{environment};
    HWND window = nullptr;
    WPARAM timer = 0;
};

RECT row_in(HWND list, int row) {
    RECT place{};
    place.left = LVIR_BOUNDS;
    SendMessageW(list, LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
    return place;
}

} // namespace

TEST_F(StatusTabTest, ATickThatFindsNothingNewSendsItsTableNoMessageAndDrawsNothing) {
    show_status([&](HWND list) {
        const MessageLog log(list);
        for (int i = 0; i < 3; ++i) tick();
        EXPECT_EQ(log.messages.size(), 0U) << log.messages.front().message;
        EXPECT_FALSE(GetUpdateRect(list, nullptr, FALSE));
        EXPECT_FALSE(GetUpdateRect(window, nullptr, FALSE));
    });
}

TEST_F(StatusTabTest, AnotherValueDrawsItsRowOnly) {
    show_status([&](HWND list) {
        const int row = server_rows + 2;
        model.groups->entries[2]->name = "Another name";
        MessageLog log(list);
        tick();
        // For its tip the table asks what the mouse is over.
        std::erase_if(log.messages, [](const MSG& each) { return each.message == LVM_SUBITEMHITTEST; });
        ASSERT_EQ(log.messages.size(), 1U);
        EXPECT_EQ(log.messages.front().message, UINT{LVM_REDRAWITEMS});
        EXPECT_EQ(log.messages.front().wParam, static_cast<WPARAM>(row));
        EXPECT_EQ(log.messages.front().lParam, row);
        RECT again{};
        GetUpdateRect(list, &again, FALSE);
        EXPECT_EQ(again.top, row_in(list, row).top);
        EXPECT_EQ(again.bottom, row_in(list, row).bottom);
        EXPECT_FALSE(GetUpdateRect(window, nullptr, FALSE));
        EXPECT_EQ(cell_text(list, row, 1), "Another name");
    });
}

} // namespace brx::checks
