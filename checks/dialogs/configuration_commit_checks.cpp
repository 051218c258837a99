#include "classes/ConfigurationSetup.h"
#include "common/locales.h"
#include "dialogs/configuration_form.h"

#include <utility>

using namespace brx;
using namespace brx::checks;

// What the configuration dialog commits and reports where a person could not bring it about, and what it lets
// go of.

namespace {

/// What was reported to the library for most of this dialog, and from where.
std::vector<std::string> reported(const FakeHost& host, std::int32_t number) {
    std::vector<std::string> locations;
    for (const Report& report : host.reports) {
        EXPECT_EQ(report.what.number, number);
        EXPECT_EQ(report.library, ErrorLibrary::hlxER01);
        locations.push_back(report.what.location);
    }
    return locations;
}

} // namespace

TEST_F(ConfigurationForm, ANumberThatNothingCanHoldIsReportedByEachChangedField) {
    while_open([&] {
        enter("txtSGInterval", "1E999");
        enter("txtDeadband", "1");
        enter("txtSubgroupSize", "1");
        enter("txtPieceTimeInterval", "1");
        enter("txtUpdateRate", "1E999");
    });
    EXPECT_EQ(reported(host, error::overflow),
              (std::vector<std::string>{
                  "dlgConfiguration.txtSGInterval_Change", "dlgConfiguration.txtDeadband_Change",
                  "dlgConfiguration.txtSubgroupSize_Change", "dlgConfiguration.txtPieceTimeInterval_Change",
                  "dlgConfiguration.txtUpdateRate_Change"}));
}

TEST_F(ConfigurationForm, ATriggerDialogThatCannotBeShownIsReportedByItsButton) {
    while_open([&] {
        engine.while_open = [](Form&) { throw Error(error::out_of_memory); };
        EXPECT_TRUE(find<TabStrip>("TabStrip1").user_select(2));
        EXPECT_TRUE(find<Button>("cmdPieceTrigger").user_click());
        EXPECT_TRUE(find<Button>("cmdSubgroupTrigger").user_click());
    });
    EXPECT_EQ(reported(host, error::out_of_memory),
              (std::vector<std::string>{"dlgConfiguration.cmdPieceTrigger_Click",
                                        "dlgConfiguration.cmdSubgroupTrigger_Click"}));
}

TEST_F(ConfigurationForm, ADialogThatCannotBeShownIsReportedByTheClass) {
    engine.while_open = [](Form&) { throw Error(error::out_of_memory); };
    ConfigurationSetup(environment).Show(host.configuration);
    ASSERT_EQ(host.reports.size(), 1U);
    EXPECT_EQ(host.reports[0].what.number, error::out_of_memory);
    EXPECT_EQ(host.reports[0].what.location, "ConfigurationSetup.Show");
    EXPECT_EQ(host.reports[0].library, ErrorLibrary::brxError6);
}

TEST_F(ConfigurationForm, DoesNotHoldTheHostsObjectsAfterwards) {
    while_open([] {});
    EXPECT_EQ(host.still_held(), "");
}

TEST_F(ConfigurationForm, TheClassHoldsNothingBetweenItsShowings) {
    form.set_configuration(nullptr);
    ConfigurationSetup setup(environment);
    setup.Show(host.configuration);
    EXPECT_EQ(engine.events.front(), "open dlgConfiguration");
    EXPECT_EQ(host.still_held(), "");
}

TEST_F(ConfigurationForm, ADateBeforeItsCalendarIsReportedAndNothingIsCommitted) {
    host.configuration->fields.sync_date_time = Date{-200000}; // in 1352
    while_open([&] { EXPECT_TRUE(find<Button>("bnClose").user_click()); });
    ASSERT_EQ(host.reports.size(), 1U);
    EXPECT_EQ(host.reports[0].what.number, error::invalid_procedure_call);
    EXPECT_EQ(host.reports[0].what.location, "dlgConfiguration.Form_Load");
    EXPECT_EQ(host.calls.count("hlxOPCConfiguration.Name="), 0);
}

TEST_F(ConfigurationForm, FormatsThatCannotBeReadBackLoseNoDate) {
    const Date sync{46347.5625};
    host.configuration->fields.sync_date_time = sync;
    for (const auto& [short_date, long_time] :
         {std::pair("yyyy. MM. dd.", "H:mm:ss"), std::pair("yyyy-MM-dd", "tt h:mm:ss"),
          std::pair("d.M.yyyy '\u0433.'", "H:mm:ss '\u0447.'")}) {
        environment.locale.short_date = short_date;
        environment.locale.long_time = long_time;
        form.set_configuration(host.configuration);
        while_open([&] { EXPECT_TRUE(find<Button>("bnClose").user_click()); });
        EXPECT_EQ(host.calls.count("hlxOPCConfiguration.SyncDateTime="), 1) << short_date << long_time;
        EXPECT_NEAR(host.configuration->fields.sync_date_time.days, sync.days, 1e-9);
        EXPECT_TRUE(host.reports.empty());
        host.calls = CallLog();
    }
}

TEST_F(ConfigurationForm, TheDateIsCommittedAsItsTextsTellIt) {
    struct Case {
        const char* short_date;
        const char* long_time;
        double before;
        double after;
    };
    constexpr double second = 1.0 / 86400;
    for (const Case& each : {Case{"M/d/yyyy", "HH:mm", 46347.5625 + 30 * second, 46347.5625},
                             Case{"M/d/yy", "h:mm:ss tt", 9822.5625, 46347.5625}}) { // from 1926 to 2026
        environment.locale.short_date = each.short_date;
        environment.locale.long_time = each.long_time;
        host.configuration->fields.sync_date_time = Date{each.before};
        form.set_configuration(host.configuration);
        while_open([&] { EXPECT_TRUE(find<Button>("bnClose").user_click()); });
        EXPECT_NEAR(host.configuration->fields.sync_date_time.days, each.after, 1e-9) << each.short_date;
    }
    EXPECT_TRUE(host.reports.empty());
}

TEST_F(ConfigurationForm, WhereTheCommaSeparatesDecimalsTheDeadBandIsReadUpToIt) {
    environment.locale = locale_of_germany();
    host.configuration->fields.dead_band = 2.5F;
    while_open([&] {
        EXPECT_EQ(box("txtDeadband").text(), "2,5");
        EXPECT_TRUE(find<Button>("bnClose").user_click());
    });
    EXPECT_EQ(host.configuration->fields.dead_band, 2.0F);
}
