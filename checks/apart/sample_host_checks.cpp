#include "apart/only_wrapper.h"
#include "sample/windows/host_program.h"

#include <gmock/gmock.h>

// The sample host with its servers in another process, as ./run --apart opens them.

namespace brx::checks {

namespace {

HWND server_window() { return FindWindowW(L"brxSampleServer", nullptr); }

bool no_server_runs() {
    return comes_true([] { return server_window() == nullptr; });
}

/// Closes what has opened, as often as something comes, until the host's own window can be used again.
bool everything_can_be_closed(const OpenHost& host) {
    return comes_true([&] {
        if (host.is_open_to_input()) return true;
        for (const wchar_t* title : {L"Unexpected Error", L"Server Information", L"Simulation.Packing.1"})
            if (const HWND window = FindWindowW(L"#32770", title); window && IsWindowEnabled(window))
                PostMessageW(window, WM_CLOSE, 0, 0);
        return false;
    });
}

void look_at_the_server(const OpenHost& host) {
    host.press(L"bnInformation");
    EXPECT_TRUE(host.program().window(L"#32770", L"Simulation.Packing.1"));
    EXPECT_TRUE(everything_can_be_closed(host));
}

void close(const OpenHost& host) {
    PostMessageW(host.window(), WM_CLOSE, 0, 0);
    EXPECT_EQ(host.program().exit_code(), 0U);
    EXPECT_TRUE(no_server_runs());
}

class SampleHostApart : public OnlyWrapper<> {};

TEST_F(SampleHostApart, TheSystemStartsTheServerAndItEndsWithTheHost) {
    const InstalledServer installed;
    const OpenHost host(L"--wrapper");
    EXPECT_TRUE(server_window());
    look_at_the_server(host);
    close(host);
}

TEST_F(SampleHostApart, ValuesComeFromTheOtherProcess) {
    const InstalledServer installed;
    const OpenHost host(L"--wrapper");
    const auto value = [&] { return host.cell(L"lstTests", 0, 4); };
    EXPECT_TRUE(comes_true([&] { return value().find_first_of("0123456789") == 0; })) << value();
    const std::string first = value();
    EXPECT_TRUE(comes_true([&] { return value() != first; })) << first;
    close(host);
}

TEST_F(SampleHostApart, TheHostTellsThatItsServerIsGoneAndConnectsAgain) {
    const InstalledServer installed;
    const OpenHost host(L"--wrapper");
    PostMessageW(server_window(), WM_CLOSE, 0, 0);
    EXPECT_TRUE(no_server_runs());
    host.press(L"bnInformation");
    const HWND box = host.program().window(L"#32770", L"Unexpected Error");
    EXPECT_THAT(text_of_box(box), testing::HasSubstr("dlgServerInformation.Form_Load"));
    EXPECT_TRUE(everything_can_be_closed(host));
    host.press(L"bnConnect");
    EXPECT_TRUE(comes_true([] { return server_window() != nullptr; }));
    look_at_the_server(host);
    close(host);
}

} // namespace

} // namespace brx::checks
