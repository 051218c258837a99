#include "sample/windows/host_program.h"

#include <gmock/gmock.h>

namespace brx::checks {

namespace {

using testing::HasSubstr;
using testing::StartsWith;

/// What the window of the chart says.
std::string chart_text(const OpenHost& host) {
    wchar_t text[400]{};
    SendMessageW(host.control(L"chtValues"), WM_GETTEXT, 400, reinterpret_cast<LPARAM>(text));
    return std::string(text, text + wcslen(text));
}

bool says(const OpenHost& host, const std::string& beginning) {
    return comes_true([&] { return chart_text(host).starts_with(beginning); });
}

TEST(SampleProgramCollection, RunsAndStopsByOneButton) {
    const OpenHost host;
    EXPECT_TRUE(says(host, "Not running."));
    host.press(L"bnRun");
    EXPECT_TRUE(says(host, "Running: 1 subgroup,"));
    host.press(L"bnRun");
    EXPECT_TRUE(says(host, "Stopped: 1 subgroup,"));
}

TEST(SampleProgramCollection, IsNotOfferedWithoutAConfiguration) {
    const OpenHost host;
    EXPECT_TRUE(IsWindowEnabled(host.control(L"bnRun")));
    host.select_row(VK_END, 2);
    EXPECT_TRUE(comes_true([&] { return IsWindowEnabled(host.control(L"bnRun")) == FALSE; }));
    EXPECT_EQ(chart_text(host), "");
}

TEST(SampleProgramCollection, WaitsForItsDialogAndTakesTheNewSettings) {
    const OpenHost host;
    host.press(L"bnRun");
    EXPECT_TRUE(says(host, "Running: "));
    const OpenConfiguration dialog(host, L"bnConfigure");
    EXPECT_TRUE(says(host, "Waits for the dialog: "));
    dialog.type_over(L"txtSubgroupSize", L"2");
    dialog.close();
    EXPECT_TRUE(says(host, "Running: "));
    EXPECT_TRUE(comes_true([&] { return chart_text(host).find(" of 2 pieces") != std::string::npos; }));
}

TEST(SampleProgramCollection, EndsWithTheHost) {
    OpenHost host;
    host.press(L"bnRun");
    EXPECT_TRUE(says(host, "Running: "));
    host.start_again();
    EXPECT_TRUE(says(host, "Not running."));
}

TEST(SampleProgramCollection, FindsAgainWhatWasStoredBeforeItWasKilled) {
    OpenHost host;
    host.press(L"bnRun");
    EXPECT_TRUE(says(host, "Running: 1 subgroup,"));
    host.kill_and_start_again();
    EXPECT_TRUE(says(host, "Not running. 1 subgroup is stored.")) << chart_text(host);
}

} // namespace

} // namespace brx::checks
