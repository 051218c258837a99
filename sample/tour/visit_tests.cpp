#include "tour/visit.h"

namespace tour {

void Visit::configurations() {
    select_first_server();
    guide_.step(
        "The packing line has a collection configuration with two tests.", "configurations", [] {},
        L"the configuration and its tests",
        [&] {
            return cells(L"lstConfigurations", 0, 2) == Lines{L"Filler head 1", L"2"} &&
                   cells(L"lstTests", 0, 2) == Lines{L"Fill weight", L"Filler.Head 1.Weight"};
        });
    const Lines before = cells(L"lstTests", 0, 5);
    guide_.step(
        "Their values follow the machine.", "live-values", [] {}, L"another value",
        [&] {
            const Lines now = cells(L"lstTests", 0, 5);
            return !now.back().empty() && now.back() != before.back();
        });
    guide_.step(
        "On the filling line an item has gone; its test is marked.", "item-refused",
        [&] { hit(program_.control(L"lstServers"), VK_DOWN); }, L"the marked test",
        [&] {
            return cells(L"lstTests", 1, 5) ==
                   Lines{L"Fill temperature", L"", L"Actual value", L"", L"Item refused"};
        });
}

void Visit::editing_a_test() {
    select_first_server();
    program_.wait_until(L"the tests of the packing line",
                        [&] { return cells(L"lstTests", 0, 1) == Lines{L"Fill weight"}; });
    guide_.step(
        "\"Edit Test...\" opens the selected one.", "test", [&] { press(L"bnEditTest"); }, L"the test dialog",
        [&] {
            return at(L"dlgOPCTest") && reads(L"txtTest") == L"Fill weight" &&
                   reads(L"txtItem") == L"Filler.Head 1.Weight" && can_press(L"bnOK");
        });
    choose_characteristic();
    choose_item();
    set_trigger();
    guide_.step(
        "OK, and the host's window shows what she entered.", "test-changed", [&] { press(L"bnOK"); },
        L"the edited test", [&] { return edited_test_is_listed(); });
}

void Visit::choose_characteristic() {
    guide_.step(
        "The button beside the test opens the host's own list of characteristics.", "characteristics",
        [&] { press(L"bnTest"); }, L"the characteristics",
        [&] { return at(L"frmPicker") && !lines(L"lstRecords").empty() && !can_press(L"bnOK"); });
    guide_.step(
        "She takes one that the configuration has already, and is told so.", "duplicate-test",
        [&] {
            click_on(L"lstGroups", L"Filling");
            program_.wait_until(L"the group", [&] { return lines(L"lstRecords").size() == 4; });
            click_on(L"lstRecords", L"Fill volume", true);
        },
        L"the message", [&] { return message_starts(L"DUPLICATE TEST!"); });
    answer(L"dlgOPCTest");
    guide_.step(
        "So she looks in another group.", "characteristic-chosen",
        [&] {
            press(L"bnTest");
            program_.wait_until(L"the characteristics", [&] { return at(L"frmPicker"); });
            click_on(L"lstGroups", L"Labelling");
            program_.wait_until(L"the group", [&] { return lines(L"lstRecords").size() == 2; });
            click_on(L"lstRecords", L"Label offset");
        },
        L"the OK button", [&] { return can_press(L"bnOK"); });
    guide_.step(
        "OK puts it into the test.", "test-chosen", [&] { press(L"bnOK"); }, L"the characteristic",
        [&] { return at(L"dlgOPCTest") && reads(L"txtTest") == L"Label offset"; });
}

void Visit::choose_item() {
    guide_.step(
        "The button beside the item opens the item browser.", "test-item",
        [&] {
            press(L"bnItem");
            program_.wait_until(L"the branches",
                                [&] { return at(L"dlgItemSelect") && !tree().rows().empty(); });
            tree().click_node(L"Labeller");
            program_.wait_until(L"the items", [&] { return lines(L"lstItem").size() == 4; });
            click_on(L"lstItem", L"Offset");
        },
        L"the identifier", [&] { return reads(L"txtFullPath") == L"Labeller.Offset" && can_press(L"bnOK"); });
    guide_.step(
        "OK brings the item into the configuration's group.", "test-item-chosen", [&] { press(L"bnOK"); },
        L"the item", [&] { return at(L"dlgOPCTest") && reads(L"txtItem") == L"Labeller.Offset"; });
}

void Visit::set_trigger() {
    guide_.step(
        "She has the offset kept without its sign, and fills in a constant.", "save-as",
        [&] {
            hit(program_.control(L"cboSaveAs"), VK_DOWN);
            fill_in(L"txtConstant", L"0.5");
        },
        L"the choice", [&] { return reads(L"cboSaveAs") == L"Absolute Value"; });
    guide_.step(
        "Collection is to start when the offset is greater than 0.25.", "test-configuration",
        [&] {
            press(L"chkItemTrigger");
            program_.wait_until(L"the expression", [&] { return can_press(L"cboExpression"); });
            hit(program_.control(L"cboExpression"), VK_DOWN);
            hit(program_.control(L"cboExpression"), VK_DOWN);
            program_.wait_until(L"the value", [&] { return can_press(L"txtValue"); });
            fill_in(L"txtValue", L"0.25");
        },
        L"the trigger", [&] { return reads(L"cboExpression") == L" > "; });
}

bool Visit::edited_test_is_listed() const {
    return at(L"frmHost") && cells(L"lstTests", 0, 4) ==
                                 Lines{L"Label offset", L"Labeller.Offset", L"Absolute value", L"> 0.25"};
}

void Visit::finding_the_test_again() {
    guide_.step(
        "The host is closed and started again: the test is there.", "restarted", [] {}, L"the edited test",
        [&] { return edited_test_is_listed(); });
    guide_.step(
        "Everything that she entered is in its dialog.", "test-again", [&] { press(L"bnEditTest"); },
        L"the test as it was entered",
        [&] {
            return at(L"dlgOPCTest") && reads(L"txtTest") == L"Label offset" &&
                   reads(L"txtItem") == L"Labeller.Offset" && reads(L"cboSaveAs") == L"Absolute Value" &&
                   reads(L"txtConstant") == L"0.5" && reads(L"cboExpression") == L" > " &&
                   reads(L"txtValue") == L"0.25";
        });
    guide_.step(
        "Escape leaves it as it is.", "test-kept", [&] { hit(program_.control(L"bnOK"), VK_ESCAPE); },
        L"the host's window", [&] { return edited_test_is_listed(); });
}

} // namespace tour
