#include "common/version.h"
#include "sample/windows/host_program.h"
#include "sample/windows/objects_stage.h"
#include "sample/windows/ticking.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace brx::checks {

namespace {

using testing::EndsWith;
using testing::HasSubstr;

/// The boxes of this thread, read as they open.
class SampleErrorBox : public ObjectsCheck {
protected:
    void report(const std::string& location) {
        call(error_.get(), "Show",
             {std::int32_t{91}, std::string("Object variable not set"), std::string("brxOpcDlgs6"), location,
              std::string("brxOpcDlgs6 " BRX_VERSION_TEXT)});
    }
    static std::vector<HWND> boxes() {
        std::vector<HWND> found;
        for (HWND each = nullptr;
             (each = FindWindowExW(nullptr, each, L"#32770", L"Unexpected Error")) != nullptr;)
            if (GetWindowThreadProcessId(each, nullptr) == GetCurrentThreadId()) found.push_back(each);
        return found;
    }
    /// Reports an error, and another one at each tick while its box is open, until there are so many in all.
    /// Gives what the box says in the end; "" when none came.
    std::string said_of(const std::string& location, int errors) {
        std::string text;
        const Ticking ticking([&] {
            const auto open = boxes();
            if (open.empty()) return;
            most_boxes = std::max(most_boxes, open.size());
            if (--errors > 0) return report(location);
            text = text_of_box(open.front());
            PostMessageW(open.front(), WM_COMMAND, IDOK, 0);
        });
        report(location);
        return text;
    }
    std::string error_text() { return std::get<std::string>(get(host.get(), "ErrorText")); }
    std::int32_t log_lines() { return std::get<std::int32_t>(get(host.get(), "LogCount")); }

    std::size_t most_boxes = 0;

private:
    com_ptr<IDispatch> error_ = create_by_name(L"brxError6.Error");
};

TEST_F(SampleErrorBox, CountsThoseThatAreLikeItsOwn) {
    const std::int32_t lines = log_lines();
    const std::string text = said_of("dlgConfiguration.Timer1_Timer", 42);
    EXPECT_THAT(text, HasSubstr("Location: dlgConfiguration.Timer1_Timer"));
    EXPECT_THAT(text, HasSubstr("and 41 more like it"));
    EXPECT_EQ(most_boxes, 1U);
    EXPECT_EQ(log_lines(), lines + 1);
    EXPECT_THAT(error_text(),
                EndsWith("dlgConfiguration.Timer1_Timer: Object variable not set, and 41 more like it"));
}

TEST_F(SampleErrorBox, DoesNotComeBackForATimerWhenItWasClosed) {
    EXPECT_NE(said_of("dlgServerInformation.Timer1_Timer", 1), "");
    EXPECT_EQ(said_of("dlgServerInformation.Timer1_Timer", 1), "");
    EXPECT_THAT(error_text(), HasSubstr("dlgServerInformation.Timer1_Timer"));
    EXPECT_THAT(error_text(), EndsWith("and 1 more like it"));
}

TEST_F(SampleErrorBox, ComesBackForWhatAPersonDoesAgain) {
    EXPECT_NE(said_of("dlgItemSelect.bnOK_Click", 1), "");
    EXPECT_NE(said_of("dlgItemSelect.bnOK_Click", 1), "");
}

} // namespace

} // namespace brx::checks
