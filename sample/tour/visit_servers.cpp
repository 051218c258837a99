#include "tour/visit.h"

namespace tour {

void Visit::selecting() {
    guide_.step(
        "The sample host opens with the servers that it knows.", "sample-host", [] {}, L"the host's window",
        [&] { return at(L"frmHost") && rows_of(program_.control(L"lstServers")) > 0; });
    guide_.step(
        "She presses \"Select Server...\": the dialog lists them, and OK waits for a choice.",
        "server-selection", [&] { press(L"bnSelect"); }, L"the selection dialog",
        [&] { return at(L"dlgServerSelect") && lines(L"cboServer").size() == 3 && !can_press(L"bnOK"); });
    guide_.step(
        "She picks the second server with the arrow keys.", "server-chosen",
        [&] {
            hit(program_.control(L"cboServer"), VK_DOWN);
            hit(program_.control(L"cboServer"), VK_DOWN);
        },
        L"the second server chosen",
        [&] { return reads(L"cboServer") == L"LINE1.Simulation.Filling.1" && can_press(L"bnOK"); });
}

void Visit::adding() {
    guide_.step(
        "\"Add...\" opens the add-server dialog with the servers of this computer.", "add-server",
        [&] { press(L"bnServer"); }, L"the local servers",
        [&] { return at(L"dlgServerAdd") && lines(L"lstOPCServers").size() == 3; });
    guide_.step(
        "She chooses one that the host has already, and is told so.", "server-exists",
        [&] {
            choose_server(L"Simulation.Packing.1");
            press(L"bnOK");
        },
        L"the message", [&] { return message_starts(L"SERVER ALREADY EXISTS!"); });
    answer(L"dlgServerAdd");
    // A program that waits for a node answers nobody; the picture shows what its list says meanwhile.
    guide_.step(
        "She types WAREHOUSE and presses Enter: a slow node, and the list says so.", "please-wait",
        [&] { enter_node(L"WAREHOUSE"); }, L"the program busy asking", [&] { return program_.is_busy(); });
    guide_.step(
        "Then its servers are there.", "warehouse", [] {}, L"the servers of WAREHOUSE",
        [&] { return lines(L"lstOPCServers") == Lines{L"Simulation.Storage.1"}; });
    const auto nothing = [&](const Lines& found) { return nothing_found(found); };
    ask_node("OFFICE has no OPC servers.", "no-servers", L"OFFICE", nothing);
    ask_node("GATEWAY lets nobody in, which looks the same.", "refused", L"GATEWAY", nothing);
    ask_node("LAB has three servers.", "lab", L"LAB", [](const Lines& found) { return found.size() == 3; });
    guide_.step(
        "One of them cannot be started; she reads why and stays in the dialog.", "unable-to-connect",
        [&] {
            choose_server(L"Simulation.Kiln.1");
            press(L"bnOK");
        },
        L"the message", [&] { return message_starts(L"UNABLE TO CONNECT!"); });
    answer(L"dlgServerAdd");
    guide_.step(
        "Another one answers.", "balance", [&] { choose_server(L"Simulation.Balance.1"); },
        L"the server below the list",
        [&] { return reads(L"lblSelectedServer") == L"LAB.Simulation.Balance.1"; });
    guide_.step(
        "OK connects it, and the selection dialog has it selected.", "server-added", [&] { press(L"bnOK"); },
        L"the new server selected",
        [&] {
            return at(L"dlgServerSelect") && lines(L"cboServer").size() == 4 &&
                   reads(L"cboServer") == L"LAB.Simulation.Balance.1";
        });
    guide_.step(
        "OK hands its position back to the host.", "host-again", [&] { press(L"bnOK"); },
        L"the host's window with the server selected",
        [&] { return at(L"frmHost") && selected_row(program_.control(L"lstServers")) == 3; });
}

void Visit::watching() {
    select_first_server();
    guide_.step(
        "\"Server Information...\" shows the status of the packing line's server.", "server-information",
        [&] { press(L"bnInformation"); }, L"the information dialog",
        [&] { return at(L"dlgServerInformation") && !reads(L"Current").empty(); });
    const std::wstring before = reads(L"Current");
    guide_.step(
        "Its clock goes on while she watches.", "clock-ticks", [] {}, L"the next second",
        [&] { return reads(L"Current") != before; });
    guide_.step(
        "Escape closes it.", "the-end", [&] { hit(program_.control(L"bnOK"), VK_ESCAPE); },
        L"the host's window", [&] { return at(L"frmHost"); });
}

void Visit::leaving() {
    close(program_.front());
    if (program_.wait_for_end() != 0) throw Disappointment{L"The host did not end well."};
}

void Visit::select_first_server() const {
    hit(program_.control(L"lstServers"), VK_HOME);
    program_.wait_until(L"the first server selected",
                        [&] { return selected_row(program_.control(L"lstServers")) == 0; });
}

void Visit::choose_server(const std::wstring& server) const {
    click_on(L"lstOPCServers", server);
    program_.wait_until(L"the chosen server",
                        [&] { return reads(L"lblSelectedServer").ends_with(server) && can_press(L"bnOK"); });
}

bool Visit::nothing_found(const Lines& found) const {
    return found == Lines{L"<No Servers available on this Node>"} &&
           !IsWindowEnabled(program_.control(L"lstOPCServers")) && !can_press(L"bnOK");
}

void Visit::ask_node(const std::string& telling, const std::string& picture, const std::wstring& node,
                     const std::function<bool(const Lines&)>& found) {
    guide_.step(
        telling, picture, [&] { enter_node(node); }, L"the list for " + node,
        [&] { return found(lines(L"lstOPCServers")); });
}

void Visit::enter_node(const std::wstring& node) const {
    fill_in(L"txtNode", node);
    hit(program_.control(L"txtNode"), VK_RETURN);
}

void Visit::add_server(const std::wstring& server) const {
    const int known = rows_of(program_.control(L"lstServers"));
    press(L"bnAdd");
    program_.wait_until(L"the local servers",
                        [&] { return at(L"dlgServerAdd") && lines(L"lstOPCServers").size() == 3; });
    choose_server(server);
    press(L"bnOK");
    program_.wait_until(L"the new server in the host", [&] {
        return at(L"frmHost") && selected_row(program_.control(L"lstServers")) == known;
    });
}

} // namespace tour
