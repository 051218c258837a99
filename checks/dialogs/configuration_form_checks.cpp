#include "dialogs/configuration_form.h"

#include <utility>

using namespace brx;
using namespace brx::checks;

// What of the configuration dialog a person cannot read off the screen, or only as a colour.

namespace {

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

TEST_F(ConfigurationForm, TheListsHaveTheirColumns) {
    while_open([&] {
        EXPECT_EQ(columns_of(list("lvwTest")),
                  (Columns{{"Characteristic", 100}, {"OPC Item", 153}, {"OPC Server", 100}, {"Node", 100}}));
        EXPECT_EQ(columns_of(list("lvwDescriptors")),
                  (Columns{{"Type", 100}, {"Group", 153}, {"Item", 100}}));
        EXPECT_EQ(columns_of(list("lvwServerInfo")), (Columns{{"Property", 153}, {"Value", 323}}));
    });
}

TEST_F(ConfigurationForm, TheListsHaveTheirColumnsWhateverFails) {
    host.calls.fail_at(1);
    while_open([&] {
        for (const auto& [name, count] :
             {std::pair("lvwTest", 4U), std::pair("lvwDescriptors", 3U), std::pair("lvwServerInfo", 2U)})
            EXPECT_EQ(list(name).columns().size(), count) << name;
    });
    EXPECT_EQ(host.reports.size(), 1U);
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

TEST_F(ConfigurationForm, AnEditStartedBesideTheRowsDoesNothing) {
    while_open([&] {
        EXPECT_TRUE(list("lvwTest").user_double_click());
        EXPECT_TRUE(find<TabStrip>("TabStrip1").user_select(3));
        EXPECT_TRUE(list("lvwDescriptors").user_double_click());
    });
    EXPECT_EQ(engine.events, (Names{"open dlgConfiguration", "close dlgConfiguration"}));
    EXPECT_TRUE(host.reports.empty());
}
