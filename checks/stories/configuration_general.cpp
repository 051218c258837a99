#include "configuring.h"

#include <utility>

// The configuration dialog as a whole and its first tab.

using namespace brx;
using namespace brx::checks;

namespace {

/// What was asked of configurations since there were `from` calls.
Lines asked_of_configurations(const Play& its, std::size_t from) {
    Lines asked;
    const std::vector<HostCall>& made = its.host.calls.made();
    const std::string prefix = "hlxOPCConfiguration.";
    for (std::size_t n = from; n < made.size(); ++n)
        if (made[n].member.starts_with(prefix)) asked.push_back(made[n].member.substr(prefix.size()));
    return asked;
}

} // namespace

SCENARIO(ConfigurationDialog, ShowsTheGeneralSettings) {
    a_filled_configuration(its);
    Configuring dialog(its);
    EXPECT_EQ(its.person.title(), "Configuration Properties");
    EXPECT_EQ(its.person.reads("txtServer"), "PC7.Matrix");
    EXPECT_EQ(its.person.reads("txtName"), "Line 1");
    EXPECT_EQ(its.person.reads("txtSubgroupSize"), "5");
    EXPECT_EQ(its.person.reads("txtUpdateRate"), "1000");
    EXPECT_EQ(its.person.reads("txtDeadband"), "0.1");
    EXPECT_EQ(its.person.sees("chkActive").selected, 1);
    EXPECT_EQ(dialog.containers(), std::vector<int>{0});
    EXPECT_TRUE(its.person.has_focus("txtName"));
    dialog.leaves();
}

SCENARIO(ConfigurationDialog, ReadsEverySettingOnceAndInOneOrder) {
    a_filled_configuration(its);
    // Hosts that bind early and late take turns.
    for (int opening = 0; opening < 3; ++opening) {
        const std::size_t before = its.host.calls.made().size();
        Configuring dialog(its);
        EXPECT_EQ(asked_of_configurations(its, before), (Lines{"Server",
                                                               "Name",
                                                               "SubgroupSize",
                                                               "UpdateRate",
                                                               "DeadBand",
                                                               "Active",
                                                               "SyncDateTime",
                                                               "SubgroupTimeUnit",
                                                               "PieceTimeUnit",
                                                               "SubgroupInterval",
                                                               "PieceInterval",
                                                               "SubgroupTriggerType",
                                                               "SubgroupTriggerItem",
                                                               "SubgroupTriggerValue",
                                                               "PieceTriggerType",
                                                               "PieceTriggerItem",
                                                               "PieceTriggerValue",
                                                               "Descriptors",
                                                               "Tests",
                                                               "Server"})); // that of the only test
        dialog.leaves();
    }
}

SCENARIO(ConfigurationDialog, TheServerOfTheLocalComputerGoesWithoutANode) {
    an_unconnected_server(its, "Plant.Simulation.1");
    Configuring dialog(its);
    EXPECT_EQ(its.person.reads("txtServer"), "Plant.Simulation.1");
    EXPECT_EQ(its.person.sees("chkActive").selected, 0);
    dialog.leaves();
}

SCENARIO(ConfigurationDialog, TheServerBoxIsForReadingOnly) {
    Configuring dialog(its);
    its.person.goes_to("txtServer");
    its.person.screen().type("x");
    EXPECT_EQ(its.person.reads("txtServer"), "PC7.Matrix");
    dialog.leaves();
}

SCENARIO(ConfigurationDialog, EachTabShowsItsContainerAndNoOther) {
    Configuring dialog(its);
    EXPECT_EQ(its.person.lines_of("TabStrip1"),
              (Lines{"&1. General", "&2. Sampling", "&3. Descriptors", "&4. Server Information"}));
    EXPECT_EQ(its.person.sees("TabStrip1").selected, 0);
    for (const int tab : {1, 2, 3, 0}) {
        its.person.picks("TabStrip1", its.person.line_of("TabStrip1", tab));
        EXPECT_EQ(dialog.containers(), std::vector<int>{tab});
        EXPECT_TRUE(its.person.has_focus("TabStrip1"));
    }
    dialog.leaves();
}

SCENARIO(ConfigurationDialog, AcceleratorsTurnTheTabs) {
    Configuring dialog(its);
    its.person.uses_accelerator('2');
    EXPECT_EQ(dialog.containers(), std::vector<int>{1});
    EXPECT_TRUE(its.person.has_focus("dtSyncDate"));
    its.person.uses_accelerator('4');
    EXPECT_EQ(dialog.containers(), std::vector<int>{3});
    EXPECT_TRUE(its.person.has_focus("lvwServerInfo"));
    its.person.uses_accelerator('1');
    EXPECT_EQ(dialog.containers(), std::vector<int>{0});
    EXPECT_TRUE(its.person.has_focus("txtName"));
    dialog.leaves();
}

SCENARIO(ConfigurationDialog, CtrlTabTurnsTheTabsRoundTheEnds) {
    Configuring dialog(its);
    its.person.hits(Key::next_tab);
    EXPECT_EQ(dialog.containers(), std::vector<int>{1});
    EXPECT_TRUE(its.person.has_focus("dtSyncDate"));
    its.person.hits(Key::previous_tab);
    its.person.hits(Key::previous_tab);
    EXPECT_EQ(dialog.containers(), std::vector<int>{3});
    its.person.hits(Key::next_tab);
    EXPECT_EQ(dialog.containers(), std::vector<int>{0});
    dialog.leaves();
}

SCENARIO(ConfigurationDialog, ArrowKeysTurnTheTabsWhenTheStripHasTheFocus) {
    Configuring dialog(its);
    dialog.turns_to_sampling();
    its.person.hits(Key::right);
    EXPECT_EQ(dialog.containers(), std::vector<int>{2});
    its.person.hits(Key::left);
    EXPECT_EQ(dialog.containers(), std::vector<int>{1});
    dialog.leaves();
}

SCENARIO(ConfigurationDialog, TheLetterInACaptionLeadsToTheFieldBehindIt) {
    a_filled_configuration(its);
    Configuring dialog(its);
    using Letters = std::vector<std::pair<char, const char*>>;
    // The letter of the dead band is that of the button to close, too.
    for (const auto& [letter, field] : Letters{{'e', "txtSubgroupSize"},
                                               {'a', "txtName"},
                                               {'b', "txtUpdateRate"},
                                               {'c', "txtDeadband"},
                                               {'f', "lvwTest"},
                                               {'d', "chkActive"}}) {
        its.person.uses_accelerator(letter);
        EXPECT_TRUE(its.person.has_focus(field)) << field;
    }
    EXPECT_EQ(its.person.sees("chkActive").selected, 0);
    dialog.turns_to_sampling();
    for (const auto& [letter, field] : Letters{{'a', "dtSyncDate"},
                                               {'b', "dtSyncTime"},
                                               {'c', "txtSGInterval"},
                                               {'d', "cboSGTimeUnit"},
                                               {'e', "txtSGEval"},
                                               {'f', "txtPieceTimeInterval"},
                                               {'g', "cboPieceTimeUnit"},
                                               {'h', "txtPieceEval"}}) {
        its.person.uses_accelerator(letter);
        EXPECT_TRUE(its.person.has_focus(field)) << field;
    }
    dialog.leaves();
}

SCENARIO(ConfigurationDialog, AcceleratorsOfHiddenTabsAreDead) {
    a_filled_configuration(its);
    Configuring dialog(its);
    its.person.picks("lvwTest", its.person.line_of("lvwTest", 0));
    its.person.uses_accelerator('b'); // the update rate here, the time on the second tab
    EXPECT_TRUE(its.person.has_focus("txtUpdateRate"));
    its.person.uses_accelerator('e');
    EXPECT_TRUE(its.person.has_focus("txtSubgroupSize"));
    its.person.uses_accelerator('2');
    its.person.uses_accelerator('b');
    EXPECT_TRUE(its.person.has_focus("dtSyncTime"));
    its.person.screen().accelerator('i'); // would remove the test
    EXPECT_EQ(its.host.configuration->tests->entries.size(), 1U);
    EXPECT_EQ(dialog.containers(), std::vector<int>{1});
    dialog.leaves();
}

SCENARIO(ConfigurationDialog, TheTabKeyGoesThroughTheTabThatShows) {
    a_filled_configuration(its);
    Configuring dialog(its);
    for (const char* next : {"txtServer", "txtUpdateRate", "txtDeadband", "chkActive", "txtSubgroupSize",
                             "lvwTest", "bnAdd", "cmdEdit", "bnRemove", "bnClose", "TabStrip1", "txtName"}) {
        its.person.hits(Key::tab);
        EXPECT_TRUE(its.person.has_focus(next)) << next;
    }
    its.person.uses_accelerator('2');
    for (const char* next : {"dtSyncTime", "txtSGInterval", "cboSGTimeUnit", "txtSGEval",
                             "cmdSubgroupTrigger", "txtPieceTimeInterval", "cboPieceTimeUnit", "txtPieceEval",
                             "cmdPieceTrigger", "bnClose", "TabStrip1", "dtSyncDate"}) {
        its.person.hits(Key::tab);
        EXPECT_TRUE(its.person.has_focus(next)) << next;
    }
    dialog.leaves();
}

SCENARIO(ConfigurationDialog, NumbersTakeDigitsAndNothingElseFromTheKeyboard) {
    a_filled_configuration(its);
    Configuring dialog(its);
    for (const char* box : {"txtDeadband", "txtSubgroupSize", "txtUpdateRate"}) {
        its.person.replaces(box, "1-2.3,4 x/:5");
        EXPECT_EQ(its.person.reads(box), "12345") << box;
        its.person.hits(Key::backspace);
        EXPECT_EQ(its.person.reads(box), "12345") << box;
        its.person.pastes("-.5x");
        EXPECT_EQ(its.person.reads(box), "12345-.5x") << box;
    }
    dialog.turns_to_sampling();
    for (const char* box : {"txtPieceTimeInterval", "txtSGInterval"}) {
        its.person.replaces(box, "-3.0e/:0");
        EXPECT_EQ(its.person.reads(box), "300") << box;
        its.person.hits(Key::backspace);
        EXPECT_EQ(its.person.reads(box), "300") << box;
        its.person.pastes("-");
        EXPECT_EQ(its.person.reads(box), "300-") << box;
    }
    dialog.leaves();
}

SCENARIO(ConfigurationDialog, ControlAndVPastesAnythingIntoTheNumbers) {
    a_filled_configuration(its);
    Configuring dialog(its);
    for (const char* box : {"txtDeadband", "txtSubgroupSize", "txtUpdateRate"}) {
        its.person.replaces(box, "");
        its.person.pastes_by_key("12x");
        EXPECT_EQ(its.person.reads(box), "12x") << box;
    }
    dialog.turns_to_sampling();
    for (const char* box : {"txtPieceTimeInterval", "txtSGInterval"}) {
        its.person.replaces(box, "");
        its.person.pastes_by_key("-.5");
        EXPECT_EQ(its.person.reads(box), "-.5") << box;
    }
    dialog.leaves();
}

SCENARIO(ConfigurationDialog, NothingIsWrittenBeforeClose) {
    a_filled_configuration(its);
    Configuring dialog(its);
    const ConfigurationFields before = dialog.fields();
    its.person.enters("txtName", "Other");
    its.person.replaces("txtUpdateRate", "5");
    its.person.ticks("chkActive");
    dialog.turns_to_sampling();
    its.person.replaces("txtSGInterval", "77");
    its.person.picks("cboSGTimeUnit", "Year");
    EXPECT_EQ(dialog.writes(), Lines());
    dialog.leaves();
    EXPECT_EQ(dialog.fields(), before);
    EXPECT_EQ(dialog.writes(), Lines());
}

SCENARIO(ConfigurationDialog, EscapeDoesNothing) {
    Configuring dialog(its);
    its.person.screen().key(Key::escape);
    its.person.is_at("dlgConfiguration");
    dialog.leaves();
}

SCENARIO(ConfigurationSetup, ReportsWhatIsNoConfiguration) {
    Showing setup(*its.stage, "ConfigurationSetup");
    setup.show(its.host.database);
    its.person.is_at("");
    its.expect_report(error::type_mismatch, "ConfigurationSetup.ResolveOPCConfiguration");
    setup.show(nullptr);
    its.person.is_at("");
    its.expect_report(error::type_mismatch, "ConfigurationSetup.ResolveOPCConfiguration");
}
