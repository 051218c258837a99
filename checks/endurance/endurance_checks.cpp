#include "bench/timer_watch.h"
#include "desk/native.h"
#include "endurance/labels.h"
#include "endurance/lasting.h"
#include "host/fake_host.h"
#include "windows/component.h"

#include <gtest/gtest.h>
#include <ole2.h>

#include <memory>
#include <string>
#include <vector>

// What a host sees that stays up for months: whatever it shows, however long, it holds no more in the end.

using namespace brx;
using namespace brx::checks;
using brx::bench::LastingHost;

namespace {

class Endurance : public testing::Test {
protected:
    Endurance() { OleInitialize(nullptr); }
    ~Endurance() override { OleUninitialize(); }
};

class ManyShowings : public Endurance, public testing::WithParamInterface<std::string> {};

class ManyTicks : public Endurance, public testing::WithParamInterface<std::string> {};

/// A second passes at the server.
void tick(FakeOPCServer& server, HWND form, WPARAM timer) {
    constexpr double second = 1.0 / 86'400;
    server.current_time = Date{server.current_time.days + second};
    server.last_update_time = Date{server.last_update_time.days + second};
    SendMessageW(form, WM_TIMER, timer, 0);
}

} // namespace

TEST_P(ManyShowings, LeaveNothingBehind) {
    LastingHost host(GetParam());
    Lasting showings((GetParam() + " shown").c_str(), host, times_from_environment("BRX_SHOWINGS", 10'000));
    int labels = 0;
    while (!showings.is_done()) {
        host.open([&](HWND) {
            if (labels == 0) labels = labels_now();
        });
        host.objects().calls.forget();
        showings.count();
    }
    showings.close(labels * blocks_of_a_bare_label());
    EXPECT_TRUE(host.component().can_be_unloaded()) << "The DLL counts something as in use.";
    EXPECT_EQ(host.objects().all_reports.size(), 0U) << "Something failed meanwhile.";
}

INSTANTIATE_TEST_SUITE_P(Of, ManyShowings, testing::ValuesIn(bench::dialogs()),
                         [](const auto& the) { return the.param; });

// The timer's messages are sent, so the seconds need not pass. Now and then the dialog draws what has come.
TEST_P(ManyTicks, LeaveNothingBehind) {
    LastingHost host(GetParam());
    FakeOPCServer& server = *host.objects().connection;
    Lasting ticks((GetParam() + " ticked").c_str(), host, times_from_environment("BRX_TICKS", 1'000'000));
    const bench::TimerWatch timers;
    int asked = 0;
    host.keep_open(GetParam() == "dlgConfiguration" ? 3 : -1, [&](HWND form) {
        const WPARAM timer = bench::TimerWatch::timer_of(form);
        if (timer == 0) return false; // the first one comes by itself
        for (int i = 0; i < 100 && !ticks.is_done(); ++i) {
            host.objects().calls.forget();
            tick(server, form, timer);
            asked += host.objects().calls.count("OPCServer.CurrentTime");
            ticks.count();
        }
        return ticks.is_done();
    });
    EXPECT_EQ(asked, times_from_environment("BRX_TICKS", 1'000'000)) << "Not every message was a tick.";
    ticks.close();
    EXPECT_TRUE(host.component().can_be_unloaded()) << "The DLL counts something as in use.";
    EXPECT_EQ(host.objects().all_reports.size(), 0U) << "Something failed meanwhile.";
}

INSTANTIATE_TEST_SUITE_P(Of, ManyTicks, testing::Values("dlgConfiguration", "dlgServerInformation"),
                         [](const auto& the) { return the.param; });

// One of each hundred showings of the fewest that are taken would be too few to tell: one of each is not.
TEST_F(Endurance, NoticesWhateverStaysEachTime) {
    LastingHost host("dlgServerSelect");
    const Footprint mark = footprint_of(host);
    EXPECT_EQ(grown(mark, mark), "");
    std::vector<HPEN> pens;
    std::vector<HMENU> menus;
    std::vector<HANDLE> events;
    std::vector<std::unique_ptr<int>> blocks;
    for (int i = 0; i < 900; ++i) {
        pens.push_back(CreatePen(PS_SOLID, 1, RGB(1, 2, 3)));
        menus.push_back(CreateMenu());
        events.push_back(CreateEventW(nullptr, FALSE, FALSE, nullptr));
        blocks.push_back(std::make_unique<int>(i));
    }
    const std::vector<char> memory(2 * slack::bytes, 'x');
    const auto reference = host.objects().group;
    const auto instance = host.component().create("ServerSelect");
    const std::string found = grown(mark, footprint_of(host));
    for (const char* what : {"USER objects", "GDI objects", "Kernel handles", "Blocks of memory",
                             "Private bytes", "References to the host's objects", "The DLL"})
        EXPECT_NE(found.find(what), std::string::npos) << what << " may grow unnoticed: " << found;
    for (HPEN each : pens) DeleteObject(each);
    for (HMENU each : menus) DestroyMenu(each);
    for (HANDLE each : events) CloseHandle(each);
}
