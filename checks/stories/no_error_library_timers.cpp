#include "told_errors.h"

// A host that does not take reports, and timers that have something to tell.

using namespace brx;
using namespace brx::checks;

SCENARIO(WithoutAnErrorLibrary, OfItsTimersADialogTellsOnceWhateverTheyRunInto) {
    nobody_to_tell_and_no_groups(its);
    a_trigger_without_its_item(its);
    Configuring dialog(its);
    its.person.waits_for_ticks(1);
    its.person.answers(no_groups);
    its.person.waits_for_ticks(1);
    its.host.calls.fail_on("OPCServer.Bandwidth");
    its.person.waits_for_ticks(2);
    its.person.is_at("dlgConfiguration");
    its.person.presses("bnClose");
    its.person.answers(no_trigger_item);
    dialog.leaves();
}

SCENARIO(WithoutAnErrorLibrary, ATimerTellsWhatAButtonHasNotTold) {
    nobody_to_tell_and_no_groups(its);
    a_trigger_without_its_item(its);
    Configuring dialog(its);
    its.person.presses("bnClose");
    its.person.answers(no_trigger_item);
    its.person.waits_for_ticks(1);
    its.person.answers(no_groups);
    its.person.presses("bnClose");
    its.person.waits_for_ticks(1);
    its.person.is_at("dlgConfiguration");
    dialog.leaves();
}

SCENARIO(WithoutAnErrorLibrary, TimersGoOnUnderTheMessageAndPutNoneOverIt) {
    its.host.has_no_error_library();
    a_trigger_without_its_item(its);
    Configuring dialog(its);
    its.person.presses("bnClose");
    const int before = its.host.calls.count("OPCServer.Bandwidth");
    its.host.connection->groups = nullptr;
    its.person.waits_for_ticks(2);
    EXPECT_EQ(its.host.calls.count("OPCServer.Bandwidth"), before + 2);
    its.person.answers(no_trigger_item);
    its.person.is_at("dlgConfiguration");
    its.person.waits_for_ticks(1);
    its.person.answers(no_groups);
    dialog.leaves();
}

SCENARIO(WithoutAnErrorLibrary, ATimerPutsNothingOverAQuestion) {
    nobody_to_tell_and_no_groups(its);
    Configuring dialog(its);
    its.person.presses("bnClose");
    its.person.waits_for_ticks(2);
    its.person.answers({.text = "Without a Test Characteristic this Configuration will be removed.  Are you "
                                "sure you want to continue?",
                        .style = message::question + message::ok_cancel,
                        .title = "No Test Exists"},
                       message::cancel);
    its.person.is_at("dlgConfiguration");
    its.person.waits_for_ticks(1);
    its.person.answers(no_groups);
    dialog.leaves();
}

SCENARIO(WithoutAnErrorLibrary, ATimersErrorIsToldOverTheDialogInFront) {
    nobody_to_tell_and_no_groups(its);
    Configuring dialog(its);
    dialog.turns_to_descriptors();
    its.person.presses("bnAddDesc");
    its.person.is_at("dlgDescriptorType");
    its.person.waits_for_ticks(1);
    its.person.answers(no_groups);
    its.person.is_at("dlgDescriptorType");
    its.person.presses("bnCancel");
    dialog.leaves();
}
