#include "tour/visit.h"

namespace tour {

void Visit::browsing() {
    select_first_server();
    guide_.step(
        "\"Browse Items...\" opens the item browser with the branches of the packing line.", "branches",
        [&] { press(L"bnBrowse"); }, L"the branches",
        [&] {
            return at(L"dlgItemSelect") && tree().rows() == Lines{L"Filler", L"Capper", L"Labeller"} &&
                   !can_press(L"bnOK");
        });
    guide_.step(
        "A click on the sign before the filler opens it.", "branch-open",
        [&] { tree().click_sign(L"Filler"); }, L"the branches below",
        [&] {
            return tree().rows() == Lines{L"Filler", L"  Head 1", L"  Head 2", L"Capper", L"Labeller"};
        });
    guide_.step(
        "A click on its first head lists the items there.", "items", [&] { tree().click_node(L"Head 1"); },
        L"the items",
        [&] {
            return lines(L"lstItem") == Lines{L"Weight", L"Volume", L"Ready"};
        });
    guide_.step(
        "She picks the weight, and reads its identifier.", "item-browser",
        [&] { click_on(L"lstItem", L"Weight"); }, L"the identifier",
        [&] { return reads(L"txtFullPath") == L"Filler.Head 1.Weight" && can_press(L"bnOK"); });
    guide_.step(
        "OK hands it to the host.", "item-chosen", [&] { press(L"bnOK"); }, L"the item in the host's window",
        [&] { return at(L"frmHost") && reads(L"txtItem") == L"Filler.Head 1.Weight"; });
    guide_.step(
        "Next time the browser starts with it.", "item-again", [&] { press(L"bnBrowse"); },
        L"the identifier of the last time",
        [&] { return at(L"dlgItemSelect") && reads(L"txtFullPath") == L"Filler.Head 1.Weight"; });
    guide_.step(
        "She types an item that the server does not have; OK tells what the server says.", "unknown-item",
        [&] {
            fill_in(L"txtFullPath", L"Filler.Head 3.Weight");
            press(L"bnOK");
        },
        L"the message", [&] { return message_starts(L"The item identifier is not known to the server."); });
    answer(L"dlgItemSelect");
    guide_.step(
        "Escape leaves it at the item that was chosen before.", "item-kept",
        [&] { hit(program_.control(L"txtFullPath"), VK_ESCAPE); }, L"the host's window",
        [&] { return at(L"frmHost") && reads(L"txtItem") == L"Filler.Head 1.Weight"; });
}

void Visit::browsing_other_servers() {
    add_server(L"Simulation.Metering.1");
    guide_.step(
        "A flow computer has no branches: all its items are in one list.", "flat-server",
        [&] { press(L"bnBrowse"); }, L"the items",
        [&] { return at(L"dlgItemSelect") && lines(L"lstItem").size() == 10 && !is_visible(L"TrView"); });
    guide_.step(
        "A double click takes one at once.", "item-taken", [&] { click_on(L"lstItem", L"PT-202", true); },
        L"the item in the host's window", [&] { return at(L"frmHost") && reads(L"txtItem") == L"PT-202"; });
    add_server(L"Simulation.Terminal.1");
    guide_.step(
        "A press terminal cannot be browsed at all; she types the item.", "typed-item",
        [&] {
            press(L"bnBrowse");
            program_.wait_until(L"the item browser without items", [&] {
                return at(L"dlgItemSelect") && !is_visible(L"TrView") &&
                       !IsWindowEnabled(program_.control(L"lstItem"));
            });
            fill_in(L"txtFullPath", L"[press1]Force");
        },
        L"the OK button", [&] { return can_press(L"bnOK"); });
    guide_.step(
        "Enter takes it.", "typed-item-chosen", [&] { hit(program_.control(L"txtFullPath"), VK_RETURN); },
        L"the item in the host's window",
        [&] { return at(L"frmHost") && reads(L"txtItem") == L"[press1]Force"; });
}

} // namespace tour
