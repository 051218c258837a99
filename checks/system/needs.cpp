#include "system/needs.h"

#include "system/this_system.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <string>
#include <string_view>

namespace brx::checks {

namespace {

struct Need {
    bool (*is_met)();
    const char* reason; ///< what is told when it is not
};

constexpr Need administrator{is_elevated,
                             "it registers for the machine, which needs the rights of an administrator"};
constexpr Need us_settings{has_us_settings,
                           "it reads and types with the settings and the language of the United States"};
constexpr Need room{[] {
                        const SIZE screen = screen_size();
                        return screen.cx >= 1280 && screen.cy >= 1024;
                    },
                    "its windows need a screen of at least 1280 x 1024"};
constexpr Need quiet_viewer{is_wine,
                            "the viewer of Windows may tell of that file in a box that waits for a person"};

struct Line {
    std::string_view program;
    std::string_view checks; ///< the beginning of their names
    const Need* need;
};

constexpr std::array table = {
    Line{"brx_com_checks", "FailureTest.FallsBackOnTheSystemsText", &us_settings},
    Line{"brx_server_checks", "RegistrationTest.", &administrator},
    Line{"brx_server_checks", "ThreadsTest.ARegistered", &administrator},
    Line{"brx_server_checks", "ObjectFactoryTest.ARegisteredName", &administrator},
    Line{"brx_server_checks", "ReportTest.AClassWithoutShow", &administrator},
    Line{"brx_server_checks", "ReportTest.TheRegisteredName", &administrator},
    Line{"brx_server_checks", "ReportTest.TheOtherLibrary", &administrator},
    Line{"brx_win32_checks", "HelpTest.ABareName", &administrator},
    Line{"brx_win32_checks", "HelpTest.TheSystemsViewerTakesNoFileThatIsNoHelp", &quiet_viewer},
    Line{"brx_win32_checks", "", &room},
    Line{"brx_win32_checks", "", &us_settings},
    Line{"brx_screen_checks", "", &room},
    Line{"brx_screen_checks", "", &us_settings},
    Line{"brx_sample_checks", "", &room},
    Line{"brx_sample_checks", "", &us_settings},
    Line{"brx_stories_windows", "", &room},
    Line{"brx_stories_windows", "", &us_settings},
    Line{"brx_apart_checks", "", &room},
    Line{"brx_apart_checks", "", &us_settings},
    Line{"brx_apart_checks", "EachDialog/Apart.", &administrator},
    Line{"brx_apart_checks", "HoldingServer.", &administrator},
    Line{"brx_apart_checks", "Installing.", &administrator},
    Line{"brx_apart_checks", "ApartWithManyItems.", &administrator},
    Line{"brx_apart_checks", "SampleHostApart.", &administrator},
    Line{"brx_leak_checks", "ManyShowings.", &room},
};

std::string own_name() {
    std::wstring program(MAX_PATH, L'\0');
    program.resize(GetModuleFileNameW(nullptr, program.data(), MAX_PATH));
    return std::filesystem::path(program).stem().string();
}

class Skipping : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo& check) override {
        const std::string name = std::string(check.test_suite_name()) + "." + check.name();
        for (const Line& each : table)
            if (each.program == program_ && name.starts_with(each.checks) && !each.need->is_met())
                GTEST_SKIP() << each.need->reason;
    }

    std::string program_ = own_name();
};

/// A check that was renamed would no longer be skipped where it cannot pass.
class TableFits : public testing::Environment {
    void SetUp() override {
        for (const Line& each : table)
            if (each.program == own_name() && !fits_a_check(each))
                ADD_FAILURE() << "No check is called " << each.checks
                              << ", which should be skipped at times.";
    }

    static bool fits_a_check(const Line& line) {
        const auto& all = *testing::UnitTest::GetInstance();
        for (int i = 0; i < all.total_test_suite_count(); ++i) {
            const auto& suite = *all.GetTestSuite(i);
            for (int k = 0; k < suite.total_test_count(); ++k)
                if ((std::string(suite.name()) + "." + suite.GetTestInfo(k)->name()).starts_with(line.checks))
                    return true;
        }
        return false;
    }
};

} // namespace

void skip_what_the_system_lacks() {
    testing::AddGlobalTestEnvironment(new TableFits); // GoogleTest deletes both
    testing::UnitTest::GetInstance()->listeners().Append(new Skipping);
}

} // namespace brx::checks
