#include "forms/one_form.h"
#include "servers/dlgServerAdd.h"
#include "servers/dlgServerInformation.h"
#include "servers/dlgServerSelect.h"

#include <gtest/gtest.h>

using namespace brx;
using namespace brx::checks;

// What the forms do for their caller beside the public classes.

namespace {

struct ServerForms : testing::Test {
    FakeHost host;
    ScriptedEngine engine;
    Environment environment{engine, host, host, Locale{}};

    template <class Which> Which* find(Form& form, const std::string& name) {
        for (Control* control : form.controls())
            if (control->name() == name) return dynamic_cast<Which*>(control);
        return nullptr;
    }
};

} // namespace

TEST_F(ServerForms, EachHasItsOwnHelpTopic) {
    std::vector<std::int32_t> topics;
    engine.while_open = [&](Form& form) { topics.push_back(form.help_topic()); };
    dlgServerSelect select(environment);
    select.set_servers(host.servers);
    select.show_modal();
    dlgServerAdd add(environment);
    add.set_servers(host.servers);
    add.show_modal();
    dlgServerInformation information(environment);
    information.set_server(host.enumerator);
    information.show_modal();
    EXPECT_EQ(topics, (std::vector<std::int32_t>{193, 195, 198}));
}

TEST_F(ServerForms, ComingToTheNodeSelectsItsWholeText) {
    dlgServerAdd add(environment);
    add.set_servers(host.servers);
    engine.while_open = [&](Form& form) {
        const ModalTurn waiting(&form);
        auto& node = *find<TextBox>(form, "txtNode");
        EXPECT_TRUE(node.user_text("PC7"));
        EXPECT_TRUE(find<ListBox>(form, "lstOPCServers")->user_focus());
        EXPECT_FALSE(node.all_selected());
        EXPECT_TRUE(node.user_focus());
        EXPECT_TRUE(node.all_selected());
    };
    add.show_modal();
    EXPECT_TRUE(host.reports.empty());
}

TEST_F(ServerForms, AnOutcomeThatAnOwnerSetsIsToldUntilTheNextShowing) {
    dlgServerAdd add(environment);
    add.set_servers(host.servers);
    add.set_OKPressed(true);
    EXPECT_TRUE(add.OKPressed());
    engine.while_open = [&](Form&) { EXPECT_FALSE(add.OKPressed()); };
    add.show_modal();
    EXPECT_FALSE(add.OKPressed());
}

TEST_F(ServerForms, InformationWithoutAServerStaysEmptyAndReportsNothing) {
    dlgServerInformation information(environment);
    engine.while_open = [&](Form& form) {
        for (const char* name : {"Start", "Current", "Last", "Version", "Vendor"})
            EXPECT_EQ(find<TextBox>(form, name)->text(), "") << name;
        EXPECT_TRUE(find<Timer>(form, "Timer1")->tick());
        EXPECT_EQ(form.help_topic(), 0);
    };
    information.show_modal();
    EXPECT_TRUE(host.reports.empty());
    EXPECT_TRUE(host.calls.made().empty());
}

TEST_F(ServerForms, InformationTicksOnceASecond) {
    dlgServerInformation information(environment);
    const auto* timer = find<Timer>(information, "Timer1");
    ASSERT_NE(timer, nullptr);
    EXPECT_EQ(timer->interval(), 1000);
    EXPECT_TRUE(timer->enabled());
}

TEST_F(ServerForms, AddHandsBackWhatWasChosen) {
    host.servers_on("PC7", {"Sim"});
    dlgServerAdd add(environment);
    add.set_servers(host.servers);
    engine.while_open = [&](Form& form) {
        find<TextBox>(form, "txtNode")->user_text("PC7");
        find<Button>(form, "cmdRefreshList")->user_click();
        find<ListBox>(form, "lstOPCServers")->user_select(0);
        EXPECT_EQ(add.ServerName(), "Sim") << "Set when the line is clicked.";
        EXPECT_EQ(add.Node(), "") << "Set when OK succeeds.";
        find<Button>(form, "bnOK")->user_click();
    };
    add.show_modal();
    EXPECT_TRUE(add.OKPressed());
    EXPECT_EQ(add.ServerName(), "Sim");
    EXPECT_EQ(add.Node(), "PC7");
    EXPECT_EQ(add.added_server_index(), 1);
}

TEST_F(ServerForms, AnEarlierOkDoesNotOutliveItsShowing) {
    dlgServerAdd add(environment);
    add.set_servers(host.servers);
    engine.while_open = [&](Form& form) {
        find<ListBox>(form, "lstOPCServers")->user_select(0);
        find<Button>(form, "bnOK")->user_click();
    };
    add.show_modal();
    EXPECT_TRUE(add.OKPressed());
    add.set_servers(host.servers);
    engine.while_open = [](Form& form) { form.user_close(); };
    add.show_modal();
    EXPECT_FALSE(add.OKPressed());
}

TEST_F(ServerForms, AddTakesWhatItsCallerSays) {
    dlgServerAdd add(environment);
    add.set_OKPressed(true);
    add.set_ServerName("Sim");
    add.set_Node("PC7");
    EXPECT_TRUE(add.OKPressed());
    EXPECT_EQ(add.ServerName(), "Sim");
    EXPECT_EQ(add.Node(), "PC7");
    EXPECT_EQ(add.added_server_index(), 0);
}

TEST_F(ServerForms, ANodeOfAnEarlierShowingIsNewAgain) {
    host.servers_on("PC7", {"Sim"});
    dlgServerAdd add(environment);
    for (int showing = 0; showing < 2; ++showing) {
        add.set_servers(host.servers);
        engine.while_open = [&](Form& form) {
            EXPECT_EQ(find<ListBox>(form, "lstOPCServers")->count(), 2);
            find<TextBox>(form, "txtNode")->user_text("PC7");
            EXPECT_EQ(find<ListBox>(form, "lstOPCServers")->count(), 0);
        };
        add.show_modal();
    }
}

TEST_F(ServerForms, AddLeavesTheFocusWhereItWasWhenOkSucceeds) {
    dlgServerAdd add(environment);
    add.set_servers(host.servers);
    engine.while_open = [&](Form& form) {
        auto* list = find<ListBox>(form, "lstOPCServers");
        host.servers->after_adding = [&] { find<Button>(form, "bnCancel")->set_focus(); };
        list->user_focus();
        list->user_select(0);
        list->user_double_click();
        EXPECT_EQ(form.focused(), list);
    };
    add.show_modal();
    EXPECT_TRUE(add.OKPressed());
}

TEST_F(ServerForms, ItemDataAreTheIndicesOfTheEnumeration) {
    dlgServerAdd add(environment);
    add.set_servers(host.servers);
    engine.while_open = [&](Form& form) {
        auto* list = find<ListBox>(form, "lstOPCServers");
        EXPECT_EQ(list->data(0), 1);
        EXPECT_EQ(list->data(1), 2);
    };
    add.show_modal();
}

TEST_F(ServerForms, MoreServersOnANodeThanA16BitNumberCountsAreReported) {
    host.local_servers(std::vector<std::string>(32768, "Sim"));
    dlgServerAdd add(environment);
    add.set_servers(host.servers);
    engine.while_open = [&](Form& form) { EXPECT_EQ(find<ListBox>(form, "lstOPCServers")->count(), 32767); };
    add.show_modal();
    ASSERT_EQ(host.reports.size(), 1U);
    EXPECT_EQ(host.reports[0].what.number, error::overflow);
    EXPECT_EQ(host.reports[0].what.location, "dlgServerAdd.cmdRefreshList_Click");
}

TEST_F(ServerForms, OnlyEnterAmongTheKeysOfTheNodeBoxRefreshes) {
    dlgServerAdd add(environment);
    add.set_servers(host.servers);
    engine.while_open = [&](Form& form) {
        auto* box = find<TextBox>(form, "txtNode");
        const int asked = host.calls.count("OPCServer.GetOPCServers()");
        EXPECT_EQ(box->user_key_press('P'), 'P');
        EXPECT_EQ(box->user_key_press(8), 8);
        EXPECT_EQ(host.calls.count("OPCServer.GetOPCServers()"), asked);
        EXPECT_EQ(box->user_key_press(13), 13) << "No key is changed.";
        EXPECT_EQ(host.calls.count("OPCServer.GetOPCServers()"), asked + 1);
    };
    add.show_modal();
}

TEST_F(ServerForms, ClearingTheNodeBoxAtOnceEmptiesTheListToo) {
    host.servers_on("PC7", {"Sim"});
    dlgServerAdd add(environment);
    add.set_servers(host.servers);
    engine.while_open = [&](Form& form) {
        find<TextBox>(form, "txtNode")->user_text("PC7");
        find<Button>(form, "cmdRefreshList")->user_click();
        EXPECT_EQ(find<ListBox>(form, "lstOPCServers")->count(), 1);
        find<TextBox>(form, "txtNode")->user_text("");
        EXPECT_EQ(find<ListBox>(form, "lstOPCServers")->count(), 0);
    };
    add.show_modal();
}

TEST_F(ServerForms, SelectKeepsPositionsOfEntriesAfterOnesWithoutAName) {
    host.servers->has("");
    host.servers->has("Sim", "PC7");
    dlgServerSelect select(environment);
    select.set_servers(host.servers);
    engine.while_open = [&](Form& form) { EXPECT_EQ(find<ComboBox>(form, "cboServer")->data(0), 2); };
    select.show_modal();
}

TEST_F(ServerForms, FormsLetGoOfTheHostsObjectsWhenTheyUnload) {
    dlgServerSelect select(environment);
    select.set_servers(host.servers);
    select.show_modal();
    dlgServerAdd add(environment);
    add.set_servers(host.servers);
    add.show_modal();
    dlgServerInformation information(environment);
    information.set_server(host.enumerator);
    information.show_modal();
    EXPECT_EQ(host.still_held(), "");
}
