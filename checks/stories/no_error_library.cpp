#include "told_errors.h"

// A host that does not take reports: the person is told.

using namespace brx;
using namespace brx::checks;

namespace {

const Message wrong_servers = told(error::type_mismatch, "Type mismatch", "ServerAdd.ResolvehlxOPCServers");

/// Chooses the server and presses OK, with a host that cannot add it.
void fails_to_add(Play& its) {
    its.host.calls.fail_on("hlxOPCServers.Add");
    its.person.picks("lstOPCServers", "Plant.Simulation.1");
    its.person.presses("bnOK");
}

/// She does, and is told so.
void is_told_that_adding_fails(Play& its) {
    fails_to_add(its);
    its.person.answers(told_of_failure(its, "dlgServerAdd.ConnectServer"));
}

} // namespace

SCENARIO(WithoutAnErrorLibrary, AFailingOkIsToldAndTheDialogStays) {
    its.host.has_no_error_library();
    Adding dialog(its);
    is_told_that_adding_fails(its);
    its.person.is_at("dlgServerAdd");
    EXPECT_TRUE(its.host.servers->entries().empty());
    its.host.calls.fail_on("");
    its.person.presses("bnOK");
    EXPECT_TRUE(dialog.add.result());
}

SCENARIO(WithoutAnErrorLibrary, AWrongArgumentIsToldAlthoughNoDialogOpens) {
    its.host.has_no_error_library();
    Showing add(*its.stage, "ServerAdd");
    add.show(nullptr);
    its.person.answers(wrong_servers);
    its.person.is_at("");
    EXPECT_FALSE(add.result());
}

SCENARIO(WithoutAnErrorLibrary, WhatFailsAsADialogLoadsIsToldBeforeItOpens) {
    its.host.has_no_error_library();
    its.host.can_create_entries = false;
    Showing select(*its.stage, "ServerSelect");
    select.show(its.host.servers);
    its.person.presses("bnServer");
    its.person.answers(
        told(error::cannot_create_object, "ActiveX component can't create object", "dlgServerAdd.Form_Load"));
    its.person.is_at("dlgServerAdd");
    its.person.presses("bnCancel");
    its.person.presses("bnCancel");
    EXPECT_FALSE(select.result());
}

SCENARIO(WithoutAnErrorLibrary, TheSameErrorIsToldOnceInAShowingAndAgainInTheNext) {
    its.host.has_no_error_library();
    Adding dialog(its);
    is_told_that_adding_fails(its);
    its.person.presses("bnOK");
    its.person.is_at("dlgServerAdd");
    dialog.cancels();

    dialog.add.show(its.host.servers);
    is_told_that_adding_fails(its);
    dialog.cancels();
}

SCENARIO(WithoutAnErrorLibrary, AnotherPlaceIsToldAndSoIsAnotherErrorInTheSamePlace) {
    its.host.has_no_error_library();
    Adding dialog(its);
    is_told_that_adding_fails(its);
    its.host.calls.fail_on("OPCServer.GetOPCServers()");
    its.person.presses("cmdRefreshList");
    its.person.answers(told_of_failure(its, "dlgServerAdd.cmdRefreshList_Click"));
    its.host.calls.fail_on("");
    its.host.enumerator->registered[""] = Empty{};
    its.person.presses("cmdRefreshList");
    its.person.answers(told(error::type_mismatch, "Type mismatch", "dlgServerAdd.cmdRefreshList_Click"));
    its.person.presses("cmdRefreshList");
    its.person.is_at("dlgServerAdd");
    dialog.cancels();
}

SCENARIO(WithoutAnErrorLibrary, ADialogThatAnotherOpensAgainTellsAgain) {
    its.host.has_no_error_library();
    Showing select(*its.stage, "ServerSelect");
    select.show(its.host.servers);
    for (int times = 0; times < 2; ++times) {
        its.person.presses("bnServer");
        is_told_that_adding_fails(its);
        its.person.presses("bnOK");
        its.person.is_at("dlgServerAdd");
        its.person.presses("bnCancel");
        its.person.is_at("dlgServerSelect");
    }
    its.person.presses("bnCancel");
    EXPECT_FALSE(select.result());
}

SCENARIO(WithoutAnErrorLibrary, AFailingOkIsToldInEachShowingOfTheTestWhatIsAroundItAndItsTimersOnce) {
    nobody_to_tell_and_no_groups(its);
    a_trigger_without_its_item(its);
    Configuring dialog(its);
    its.person.waits_for_ticks(1);
    its.person.answers(no_groups);
    its.person.presses("bnClose");
    its.person.answers(no_trigger_item);
    for (int times = 0; times < 2; ++times) {
        its.person.double_clicks("lvwTest", its.person.line_of("lvwTest", 0));
        its.person.is_at("dlgOPCTest");
        its.host.calls.fail_on("hlxOPCTest.SaveAs=");
        const std::size_t before = its.host.calls.made().size();
        its.person.presses("bnOK");
        its.person.answers(told_of_failure_after(its, before, "dlgOPCTest.TestChoices"));
        its.host.calls.fail_on("");
        its.person.waits_for_ticks(1);
        its.person.presses("bnCancel");
        its.person.is_at("dlgConfiguration");
        its.person.presses("bnClose");
        its.person.waits_for_ticks(1);
        its.person.is_at("dlgConfiguration");
    }
    dialog.leaves();
}

SCENARIO(WithoutAnErrorLibrary, WhatFailsBeforeADialogOpensIsToldOnceInTheDialogThatWasToOpenIt) {
    its.host.has_no_error_library();
    a_filled_configuration(its);
    Configuring dialog(its);
    its.host.calls.fail_on("hlxOPCTests.Parent");
    its.person.double_clicks("lvwTest", its.person.line_of("lvwTest", 0));
    its.person.answers(told_of_failure(its, "TestConfiguration.Show"));
    its.person.double_clicks("lvwTest", its.person.line_of("lvwTest", 0));
    its.person.is_at("dlgConfiguration");
    dialog.leaves();
}

SCENARIO(WithoutAnErrorLibrary, TheDialogBelowShowsWhatWasDoneBeforeTheFailure) {
    its.host.has_no_error_library();
    Adding dialog(its);
    EXPECT_FALSE(its.person.lines_of("lstOPCServers").empty());
    its.host.calls.fail_on("OPCServer.GetOPCServers()");
    its.person.presses("cmdRefreshList");
    EXPECT_EQ(its.person.screen().front(), "message");
    EXPECT_EQ(its.person.lines_of("lstOPCServers"), Lines());
    its.person.answers(told_of_failure(its, "dlgServerAdd.cmdRefreshList_Click"));
    dialog.cancels();
}

SCENARIO(WithoutAnErrorLibrary, OneOfTheTwoLibrariesTakesOnlyItsOwnReports) {
    its.host.error_classes[ErrorLibrary::hlxER01] = ErrorClass::missing;
    its.host.connection->groups = nullptr;
    a_trigger_without_its_item(its);
    Configuring dialog(its);
    its.person.waits_for_ticks(1);
    its.expect_report(error::object_not_set, "dlgConfiguration.Timer1_Timer");
    its.person.presses("bnClose");
    its.person.answers(no_trigger_item);
    dialog.leaves();
}

SCENARIO(WithoutAnErrorLibrary, TheOtherOneDoesSoToo) {
    its.host.error_classes[ErrorLibrary::brxError6] = ErrorClass::missing;
    its.host.connection->groups = nullptr;
    a_trigger_without_its_item(its);
    Configuring dialog(its);
    its.person.presses("bnClose");
    its.expect_report(error::subscript_out_of_range, "dlgConfiguration.bnClose_Click", ErrorLibrary::hlxER01);
    its.person.waits_for_ticks(1);
    its.person.answers(no_groups);
    dialog.leaves();
}

SCENARIO(WithoutAnErrorLibrary, AnErrorClassThatFailsIsNoBetterThanNone) {
    its.host.error_classes[ErrorLibrary::brxError6] = ErrorClass::fails;
    Adding dialog(its);
    is_told_that_adding_fails(its);
    dialog.cancels();
}

SCENARIO(WithoutAnErrorLibrary, TheHostsMessageServiceTells) {
    its.host.has_no_error_library();
    its.host.message_service = std::make_shared<FakeMessageService>(its.host.calls);
    Showing add(*its.stage, "ServerAdd");
    add.show(nullptr);
    its.person.is_at("");
    EXPECT_EQ(its.host.message_service->shown, std::vector<Message>{wrong_servers});
    EXPECT_FALSE(add.result());
}

SCENARIO(WithoutAnErrorLibrary, WhereTheMessageServiceFailsTooTheSystemsBoxTells) {
    its.host.has_no_error_library();
    its.host.message_service = std::make_shared<FakeMessageService>(its.host.calls);
    its.host.servers->has_connected("Plant.Simulation.1");
    its.host.calls.fail_on("hlxMessage.Show");
    Adding dialog(its);
    its.person.picks("lstOPCServers", "Plant.Simulation.1");
    its.person.presses("bnOK"); // it is there already, as the service fails to tell
    const int asked = its.host.calls.count("hlxMessage.Show");
    EXPECT_EQ(asked, 2) << "Once for the dialog's message, once for its failure.";
    const std::string first =
        CallLog::failure_text(static_cast<int>(its.host.calls.made().size()) - 1, "hlxMessage.Show");
    its.person.answers(told(CallLog::failure_number, first, "dlgServerAdd.bnOK_Click"));
    its.person.is_at("dlgServerAdd");
    dialog.cancels();
}
