#include "tour/visit.h"

// She makes a configuration of a server that was added before, from its name to its triggers.

namespace tour {

namespace {} // namespace

void Visit::configuring() {
    select_flow_computer();
    guide_.step(
        "\"New Configuration...\" makes one for the flow computer and opens its dialog.", "configuration-new",
        [&] { press(L"bnNewConfiguration"); }, L"the configuration dialog",
        [&] {
            return at(L"dlgConfiguration") && reads(L"txtServer") == L"Simulation.Metering.1" &&
                   rows_of(program_.control(L"lvwTest")) == 0;
        });
    guide_.step(
        "She gives it a name, and says how often it is updated and how large a subgroup is.",
        "configuration-named",
        [&] {
            fill_in(L"txtName", L"Flow computer");
            fill_in(L"txtUpdateRate", L"500");
            fill_in(L"txtDeadband", L"2");
            fill_in(L"txtSubgroupSize", L"4");
        },
        L"the number", [&] { return reads(L"txtSubgroupSize") == L"4"; });
    add_test();
    set_sampling();
    set_subgroup_trigger();
    add_descriptors();
    watch_status();
    guide_.step(
        "\"Close\" keeps it, and the host shows it with its test.", "configured", [&] { press(L"bnClose"); },
        L"the configuration in the host's window",
        [&] {
            return configuration_is_listed() &&
                   log_tells(L"Flow computer closed, and its settings are kept.");
        });
}

void Visit::select_flow_computer() const {
    const HWND list = program_.control(L"lstServers");
    hit(list, VK_END);
    hit(list, VK_UP);
    program_.wait_until(L"the flow computer selected", [&] {
        const int row = selected_row(list);
        return row >= 0 && cells(L"lstServers", row, 1) == Lines{L"Simulation.Metering.1"};
    });
}

void Visit::add_test() {
    guide_.step(
        "\"Add...\" opens the test dialog; she chooses what is measured, where, and when it is collected.",
        "configuration-test",
        [&] {
            press(L"bnAdd");
            program_.wait_until(L"the test dialog", [&] { return at(L"dlgOPCTest"); });
            press(L"bnTest");
            program_.wait_until(L"the characteristics", [&] { return at(L"frmPicker"); });
            click_on(L"lstGroups", L"Filling");
            program_.wait_until(L"the group", [&] { return lines(L"lstRecords").size() == 4; });
            click_on(L"lstRecords", L"Fill temperature", true);
            program_.wait_until(L"the characteristic", [&] { return at(L"dlgOPCTest"); });
            press(L"bnItem");
            program_.wait_until(L"the items", [&] { return at(L"dlgItemSelect"); });
            click_on(L"lstItem", L"TT-301", true);
            program_.wait_until(L"the item", [&] { return at(L"dlgOPCTest"); });
            press(L"chkItemTrigger");
            program_.wait_until(L"the expression", [&] { return can_press(L"cboExpression"); });
            hit(program_.control(L"cboExpression"), VK_DOWN);
            hit(program_.control(L"cboExpression"), VK_DOWN);
            program_.wait_until(L"the value", [&] { return can_press(L"txtValue"); });
            fill_in(L"txtValue", L"72.5");
        },
        L"the test",
        [&] {
            return reads(L"txtTest") == L"Fill temperature" && reads(L"txtItem") == L"TT-301" &&
                   reads(L"cboExpression") == L" > ";
        });
    guide_.step(
        "OK, and the test is listed.", "configuration-general", [&] { press(L"bnOK"); }, L"the test",
        [&] { return general_is_filled_in(); });
}

void Visit::set_sampling() {
    guide_.step(
        "On the second tab she has a subgroup taken every two hours, a piece every 30 minutes.", "sampling",
        [&] {
            turn_to(tab::sampling, L"txtSGInterval");
            fill_in(L"txtSGInterval", L"2");
            hit(program_.control(L"cboSGTimeUnit"), VK_DOWN);
            fill_in(L"txtPieceTimeInterval", L"30");
            hit(program_.control(L"cboPieceTimeUnit"), VK_DOWN);
        },
        L"the units",
        [&] { return reads(L"cboSGTimeUnit") == L"Hours" && reads(L"cboPieceTimeUnit") == L"Minutes"; });
    guide_.step(
        "Both count from the morning of the fourth of January.", "synchronization",
        [&] {
            type_fields(program_.control(L"dtSyncDate"), {L"1", L"4", L"2027"});
            type_fields(program_.control(L"dtSyncTime"), {L"6", L"0", L"0"});
        },
        L"date and time",
        [&] { return reads(L"dtSyncDate") == L"1/4/2027" && reads(L"dtSyncTime") == L"6:00:00 AM"; });
}

void Visit::set_subgroup_trigger() {
    guide_.step(
        "The button beside the trigger opens its dialog: a subgroup also begins when the valve opens.",
        "set-trigger",
        [&] {
            press(L"cmdSubgroupTrigger");
            program_.wait_until(L"the trigger dialog", [&] {
                return at(L"dlgEvaluation") && lines(L"cboItem") == Lines{L"<None>", L"TT-301"};
            });
            press(L"bnItem");
            program_.wait_until(L"the items", [&] { return at(L"dlgItemSelect"); });
            click_on(L"lstItem", L"XV-501.Open", true);
            program_.wait_until(L"the item", [&] {
                return at(L"dlgEvaluation") && reads(L"cboItem") == L"XV-501.Open" &&
                       can_press(L"cboExpression");
            });
            hit(program_.control(L"cboExpression"), VK_DOWN);
            program_.wait_until(L"the value", [&] { return can_press(L"txtValue"); });
            fill_in(L"txtValue", L"True");
        },
        L"the trigger", [&] { return reads(L"cboExpression") == L" = " && can_press(L"bnOK"); });
    guide_.step(
        "OK writes it beside the button.", "configuration-sampling", [&] { press(L"bnOK"); }, L"the trigger",
        [&] { return sampling_is_filled_in(); });
}

void Visit::watch_status() {
    guide_.step(
        "The fourth tab tells what the server does.", "configuration-server",
        [&] { turn_to(tab::server_information, L"lvwServerInfo"); }, L"the status",
        [&] {
            return rows_of(program_.control(L"lvwServerInfo")) >= 13 &&
                   cells(L"lvwServerInfo", 1, 2) == Lines{L"Server Name", L"Simulation.Metering.1"} &&
                   cells(L"lvwServerInfo", 3, 1) == Lines{L"Current Time"};
        });
    const Lines before = cells(L"lvwServerInfo", 3, 2);
    guide_.step(
        "Its clock goes on while she looks.", "configuration-server-later", [] {}, L"the next second",
        [&] { return cells(L"lvwServerInfo", 3, 2) != before; });
}

void Visit::configuring_in_vain() {
    guide_.step(
        "She makes another one, and closes it without any test: it will go, she reads.", "no-test",
        [&] {
            press(L"bnNewConfiguration");
            program_.wait_until(L"the configuration dialog", [&] { return at(L"dlgConfiguration"); });
            press(L"bnClose");
        },
        L"the question", [&] { return message_starts(L"Without a Test Characteristic"); });
    guide_.step(
        "OK, and the host has removed it.", "removed",
        [&] { PostMessageW(program_.front(), WM_COMMAND, IDOK, 0); }, L"the host's window",
        [&] { return configuration_is_listed() && rows_of(program_.control(L"lstConfigurations")) == 1; });
}

void Visit::finding_the_configuration_again() {
    select_flow_computer();
    program_.wait_until(L"the configuration", [&] { return configuration_is_listed(); });
    guide_.step(
        "\"Configure...\" opens the configuration of the flow computer as she left it.", "general-again",
        [&] { press(L"bnConfigure"); }, L"the first tab",
        [&] { return at(L"dlgConfiguration") && general_is_filled_in(); });
    guide_.step(
        "Intervals, units, beginning and trigger are there.", "sampling-again",
        [&] { turn_to(tab::sampling, L"txtSGInterval"); }, L"the second tab",
        [&] { return sampling_is_filled_in(); });
    guide_.step(
        "So are the descriptors.", "descriptors-again", [&] { turn_to(tab::descriptors, L"lvwDescriptors"); },
        L"the third tab", [&] { return descriptors_are_filled_in(); });
    guide_.step(
        "The close box changes nothing, and the log says so.", "configuration-kept",
        [&] { close(program_.front()); }, L"the host's window",
        [&] {
            return configuration_is_listed() &&
                   log_tells(L"Flow computer left, and its settings are as they were.");
        });
}

bool Visit::general_is_filled_in() const {
    return at(L"dlgConfiguration") && is_visible(L"lvwTest") && reads(L"txtName") == L"Flow computer" &&
           reads(L"txtUpdateRate") == L"500" && reads(L"txtDeadband") == L"2" &&
           reads(L"txtSubgroupSize") == L"4" &&
           cells(L"lvwTest", 0, 4) == Lines{L"Fill temperature", L"TT-301", L"Simulation.Metering.1", L""};
}

/// When the form loads, a second blank stands before the value.
bool Visit::sampling_is_filled_in() const {
    const std::wstring trigger = at(L"dlgConfiguration") ? reads(L"txtSGEval") : L"";
    return (trigger == L"XV-501.Open = True" || trigger == L"XV-501.Open =  True") &&
           reads(L"txtSGInterval") == L"2" && reads(L"cboSGTimeUnit") == L"Hours" &&
           reads(L"txtPieceTimeInterval") == L"30" && reads(L"cboPieceTimeUnit") == L"Minutes" &&
           reads(L"dtSyncDate") == L"1/4/2027" && reads(L"dtSyncTime") == L"6:00:00 AM";
}

bool Visit::configuration_is_listed() const {
    return at(L"frmHost") && cells(L"lstConfigurations", 0, 3) == Lines{L"Flow computer", L"1", L"Active"} &&
           cells(L"lstTests", 0, 2) == Lines{L"Fill temperature", L"TT-301"};
}

} // namespace tour
