#include "configuration/dlgConfiguration.h"
#include "forms/one_form.h"

#include <gtest/gtest.h>

#include <map>
#include <utility>

using namespace brx;
using namespace brx::checks;

// What of the configuration dialog a person cannot read off the screen, or only as a colour.

namespace {

struct ConfigurationForm : testing::Test {
    ConfigurationForm() {
        host.has_test(7, "Length")->fields.item_id = "Line1.Speed";
        form.set_configuration(host.configuration);
    }

    FakeHost host;
    ScriptedEngine engine;
    Environment environment{engine, host, host, Locale::us_english()};
    dlgConfiguration form{environment};

    template <class Which> Which& find(const std::string& name) { return control_of<Which>(form, name); }
    TextBox& box(const std::string& name) { return find<TextBox>(name); }
    ListView& list(const std::string& name) { return find<ListView>(name); }
    void tick() { EXPECT_TRUE(find<Timer>("Timer1").tick()); }

    void while_open(const std::function<void()>& story) {
        engine.while_open = [=](Form& shown) {
            const ModalTurn waiting(&shown);
            story();
        };
        form.show_modal();
    }
    /// What is typed, or pasted, replaces the text.
    void enter(const std::string& name, const std::string& text) {
        const bool on_sampling = name == "txtSGInterval" || name == "txtPieceTimeInterval";
        EXPECT_TRUE(find<TabStrip>("TabStrip1").user_select(on_sampling ? 2 : 1));
        EXPECT_TRUE(box(name).user_text(text));
    }

    std::vector<std::string> red_boxes() {
        std::vector<std::string> red;
        for (const char* name :
             {"txtDeadband", "txtPieceTimeInterval", "txtSGInterval", "txtSubgroupSize", "txtUpdateRate"})
            if (box(name).back_color() != color::window) {
                EXPECT_EQ(box(name).back_color(), color::red);
                red.emplace_back(name);
            }
        return red;
    }
};

using Names = std::vector<std::string>;
using Columns = std::vector<std::pair<std::string, int>>;

Columns columns_of(const ListView& list) {
    Columns columns;
    for (const ListView::Column& column : list.columns()) columns.emplace_back(column.caption, column.width);
    return columns;
}

} // namespace

TEST_F(ConfigurationForm, TheSubgroupIntervalGivesTheOthersTheirColourWhenTheirOwnTextChanges) {
    while_open([&] {
        EXPECT_EQ(red_boxes(), Names());
        enter("txtSGInterval", "30000");
        EXPECT_EQ(red_boxes(), Names());
        enter("txtSGInterval", "30001");
        EXPECT_EQ(red_boxes(), Names{"txtSGInterval"});
        enter("txtDeadband", "1");
        enter("txtPieceTimeInterval", "1");
        enter("txtSubgroupSize", "1");
        enter("txtUpdateRate", "1");
        EXPECT_EQ(red_boxes(),
                  (Names{"txtDeadband", "txtPieceTimeInterval", "txtSGInterval", "txtSubgroupSize"}));
        enter("txtSGInterval", "5");
        EXPECT_EQ(red_boxes(), (Names{"txtDeadband", "txtPieceTimeInterval", "txtSubgroupSize"}));
        enter("txtDeadband", "99999");
        EXPECT_EQ(red_boxes(), (Names{"txtPieceTimeInterval", "txtSubgroupSize"}));
    });
    EXPECT_TRUE(host.reports.empty());
}

TEST_F(ConfigurationForm, TheUpdateRateHasItsOwnColour) {
    while_open([&] {
        enter("txtUpdateRate", "30001");
        EXPECT_EQ(red_boxes(), Names{"txtUpdateRate"});
        enter("txtUpdateRate", "30000x");
        EXPECT_EQ(red_boxes(), Names());
        enter("txtUpdateRate", "-1");
        EXPECT_EQ(red_boxes(), Names{"txtUpdateRate"});
        enter("txtUpdateRate", "");
        EXPECT_EQ(red_boxes(), Names());
    });
}

TEST_F(ConfigurationForm, TheColoursOfTheStartComeFromWhatIsLoadedBefore) {
    host.configuration->fields.subgroup_interval = 40000;
    host.configuration->fields.subgroup_size = 99999;
    while_open([&] { EXPECT_EQ(red_boxes(), (Names{"txtPieceTimeInterval", "txtSGInterval"})); });
}

TEST_F(ConfigurationForm, ANumberThatNothingCanHoldIsReportedByTheChangedField) {
    while_open([&] { enter("txtSGInterval", "1E999"); });
    ASSERT_EQ(host.reports.size(), 1U);
    EXPECT_EQ(host.reports[0].what.number, error::overflow);
    EXPECT_EQ(host.reports[0].what.location, "dlgConfiguration.txtSGInterval_Change");
    EXPECT_EQ(host.reports[0].library, ErrorLibrary::hlxER01);
}

TEST_F(ConfigurationForm, TheListsHaveTheirColumns) {
    while_open([&] {
        EXPECT_EQ(columns_of(list("lvwTest")),
                  (Columns{{"Characteristic", 100}, {"OPC Item", 153}, {"OPC Server", 100}, {"Node", 100}}));
        EXPECT_EQ(columns_of(list("lvwDescriptors")),
                  (Columns{{"Type", 100}, {"Group", 153}, {"Item", 100}}));
        const Columns status = columns_of(list("lvwServerInfo"));
        ASSERT_EQ(status.size(), 2U);
        EXPECT_EQ(status[0].first, "Property");
        EXPECT_EQ(status[1].first, "Value");
    });
}

TEST_F(ConfigurationForm, ContainersThatDoNotShowLieFarToTheLeft) {
    const auto lefts = [&] {
        std::vector<int> all;
        for (const char* name : {"frmTab(0)", "frmTab(1)", "frmTab(2)", "frmTab(3)"})
            all.push_back(find<Panel>(name).place().left);
        return all;
    };
    while_open([&] {
        EXPECT_TRUE(find<TabStrip>("TabStrip1").user_select(3));
        EXPECT_EQ(lefts(), (std::vector<int>{-1333, -1333, 15, -1333}));
        EXPECT_TRUE(find<TabStrip>("TabStrip1").user_select(1));
        EXPECT_EQ(lefts(), (std::vector<int>{15, -1333, -1333, -1333}));
    });
}

TEST_F(ConfigurationForm, EachRowOfADescriptorKeepsItsKind) {
    for (const std::int32_t type : {8, 0, 42})
        host.configuration->descriptors->has({.type = type, .item = "x", .group = "y"});
    while_open([&] {
        ListView& rows = list("lvwDescriptors");
        EXPECT_EQ(rows.row(1).tag(), 8);
        EXPECT_EQ(rows.row(2).tag(), 0);
        EXPECT_EQ(rows.row(3).tag(), 42);
        EXPECT_EQ(rows.row(3).text(), "");
    });
}

TEST_F(ConfigurationForm, StatusRowsAreKeptUnderTheirKeys) {
    host.groups->has("Fast");
    host.groups->has("Slow");
    while_open([&] {
        tick();
        ListView& rows = list("lvwServerInfo");
        int position = 0;
        for (const char* key : {"Node", "Name", "StartTime", "CurrentTime", "LastUpdate", "Bandwidth",
                                "Build", "Client", "Major", "Minor", "State", "Vendor", "Group1", "Group2"})
            EXPECT_EQ(rows.row(++position).key(), key);
        EXPECT_EQ(rows.row("Group1").text(), "Group ");
        EXPECT_EQ(rows.row("Group2").text(), "Group 2");
    });
}

TEST_F(ConfigurationForm, AnUnchangedTickWritesNothing) {
    for (int n = 0; n < 1000; ++n) host.groups->has("Group of the plant " + std::to_string(n));
    while_open([&] {
        tick();
        list("lvwServerInfo").take_changes();
        tick();
        ListView::Changes changes = list("lvwServerInfo").take_changes();
        EXPECT_FALSE(changes.rows);
        EXPECT_EQ(changes.positions, std::vector<int>());
        host.groups->entries[499]->name = "Another";
        tick();
        changes = list("lvwServerInfo").take_changes();
        EXPECT_FALSE(changes.rows);
        EXPECT_EQ(changes.positions, std::vector<int>{12 + 500});
    });
}

TEST_F(ConfigurationForm, ATickReadsEachValueOnce) {
    for (int n = 0; n < 3; ++n) host.groups->has("Group");
    while_open([&] {
        tick();
        const std::size_t before = host.calls.made().size();
        tick();
        // The way to the server, its twelve values, its groups, their count; each group and its name.
        EXPECT_EQ(host.calls.made().size() - before, 3U + 12 + 2 + 3 * 2);
    });
}

TEST_F(ConfigurationForm, TheTimerTicksEverySecondFromTheStart) {
    while_open([&] {
        EXPECT_EQ(find<Timer>("Timer1").interval(), 1000);
        EXPECT_TRUE(find<Timer>("Timer1").enabled());
    });
}

TEST_F(ConfigurationForm, TheTwoNumbersForTheOneWhoShowsItAreLongIntegers) {
    EXPECT_EQ(form.first_value(), Variant(std::int32_t{0}));
    EXPECT_EQ(form.second_value(), Variant(std::int32_t{0}));
}

TEST_F(ConfigurationForm, DoesNotHoldTheHostsObjectsAfterwards) {
    while_open([] {});
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

TEST_F(ConfigurationForm, AnEditStartedBesideTheRowsDoesNothing) {
    while_open([&] {
        EXPECT_TRUE(list("lvwTest").user_double_click());
        EXPECT_TRUE(find<TabStrip>("TabStrip1").user_select(3));
        EXPECT_TRUE(list("lvwDescriptors").user_double_click());
    });
    EXPECT_EQ(engine.events, (Names{"open dlgConfiguration", "close dlgConfiguration"}));
    EXPECT_TRUE(host.reports.empty());
}

TEST_F(ConfigurationForm, EachFieldHasItsCaption) {
    std::map<std::string, std::string> captions;
    for (Control* control : form.controls()) {
        if (const auto* label = dynamic_cast<Label*>(control)) captions[control->name()] = label->caption();
        if (const auto* button = dynamic_cast<Button*>(control))
            captions[control->name()] = button->caption();
        if (const auto* check = dynamic_cast<CheckBox*>(control))
            captions[control->name()] = check->caption();
        if (const auto* frame = dynamic_cast<Frame*>(control)) captions[control->name()] = frame->caption();
    }
    EXPECT_EQ(captions, (std::map<std::string, std::string>{{"bnAdd", "&G. Add..."},
                                                            {"bnAddDesc", "&B. Add..."},
                                                            {"bnClose", "&Close"},
                                                            {"bnEditDesc", "&C. Edit..."},
                                                            {"bnRemove", "&I. Remove"},
                                                            {"bnRemoveDesc", "&D. Remove"},
                                                            {"chkActive", "&D. Active"},
                                                            {"cmdEdit", "&H. Edit..."},
                                                            {"cmdPieceTrigger", "..."},
                                                            {"cmdSubgroupTrigger", "..."},
                                                            {"frmDescriptors", "&A. Descriptors"},
                                                            {"frmPiece", "Piece Sampling Period"},
                                                            {"frmSubgroup", "Subgroup Sampling Period"},
                                                            {"frmSync", "Synchronization Date/Time"},
                                                            {"frmTests", "&F. Tests"},
                                                            {"lblDeadband", "&C. Dead Band (%FS):"},
                                                            {"lblName", "&A. Name:"},
                                                            {"lblPieceEval", "&H. Trigger:"},
                                                            {"lblPieceTimeInterval", "&F. Interval:"},
                                                            {"lblPieceTimeUnit", "&G. Unit:"},
                                                            {"lblSGEval", "&E. Trigger:"},
                                                            {"lblSGInterval", "&C. Interval:"},
                                                            {"lblSGTimeUnit", "&D. Unit:"},
                                                            {"lblServer", "OPC Server:"},
                                                            {"lblSubgroupSize", "&E. Subgroup Size:"},
                                                            {"lblSyncDate", "&A. Date:"},
                                                            {"lblSyncTime", "&B. Time:"},
                                                            {"lblUpdateRate", "&B. Update Rate:"}}));
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

TEST_F(ConfigurationForm, WhereTheCommaSeparatesDecimalsTheDeadBandIsReadUpToIt) {
    environment.locale = Locale::german();
    host.configuration->fields.dead_band = 2.5F;
    while_open([&] {
        EXPECT_EQ(box("txtDeadband").text(), "2,5");
        EXPECT_TRUE(find<Button>("bnClose").user_click());
    });
    EXPECT_EQ(host.configuration->fields.dead_band, 2.0F);
}
