// A person works through every dialog in the sample host. The exit status is 0 only if every step came out.

#include "tour/guide.h"

#include <algorithm>
#include <cstdio>

namespace tour {

namespace {

using Lines = std::vector<std::wstring>;

int line_of(const Lines& lines, const std::wstring& wanted) {
    const auto found = std::find(lines.begin(), lines.end(), wanted);
    if (found == lines.end()) throw Disappointment{L"There is no line " + wanted};
    return static_cast<int>(found - lines.begin());
}

/// What she does in the dialogs, and what she reads there.
class Visit {
public:
    Visit(Program& program, Guide& guide) : program_(program), guide_(guide) {}

    void servers() {
        guide_.step(
            "The sample host opens with the servers that it knows.", "sample-host", [] {},
            L"the host's window",
            [&] { return at(L"frmHost") && rows_of(program_.control(L"lstServers")) > 0; });
        guide_.step(
            "She presses \"Select Server...\": the dialog lists them, and OK waits for a choice.",
            "server-selection", [&] { press(program_.control(L"bnSelect")); }, L"the selection dialog",
            [&] { return at(L"dlgServerSelect") && !lines(L"cboServer").empty() && !can_press(L"bnOK"); });
        guide_.step(
            "She picks the second server with the arrow keys.", "server-chosen",
            [&] {
                hit(program_.control(L"cboServer"), VK_DOWN);
                hit(program_.control(L"cboServer"), VK_DOWN);
            },
            L"the second server chosen",
            [&] { return reads(L"cboServer") == lines(L"cboServer").at(1) && can_press(L"bnOK"); });
        known_ = lines(L"cboServer").size();
    }

    void adding() {
        guide_.step(
            "\"Add...\" opens the add-server dialog with the servers of this computer.", "add-server",
            [&] { press(program_.control(L"bnServer")); }, L"the local servers",
            [&] { return at(L"dlgServerAdd") && lines(L"lstOPCServers").size() == 3; });
        guide_.step(
            "She chooses one that the host has already, and is told so.", "server-exists",
            [&] {
                choose(L"Simulation.Packing.1");
                press(program_.control(L"bnOK"));
            },
            L"the message", [&] { return message_starts(L"SERVER ALREADY EXISTS!"); });
        answer();
        // A program that waits for a node answers nobody; the picture shows what its list says meanwhile.
        guide_.step(
            "She types WAREHOUSE and presses Enter: a slow node, and the list says so.", "please-wait",
            [&] { enter_node(L"WAREHOUSE"); }, L"the program busy asking",
            [&] { return is_busy(program_.front()); });
        guide_.step(
            "Then its servers are there.", "warehouse", [] {}, L"the servers of WAREHOUSE",
            [&] { return lines(L"lstOPCServers") == Lines{L"Simulation.Storage.1"}; });
        asks_node("OFFICE has no OPC servers.", "no-servers", L"OFFICE", nothing_found());
        asks_node("GATEWAY lets nobody in, which looks the same.", "refused", L"GATEWAY", nothing_found());
        asks_node("LAB has three servers.", "lab", L"LAB",
                  [](const Lines& found) { return found.size() == 3; });
        guide_.step(
            "One of them cannot be started; she reads why and stays in the dialog.", "unable-to-connect",
            [&] {
                choose(L"Simulation.Kiln.1");
                press(program_.control(L"bnOK"));
            },
            L"a message",
            [&] {
                return message_starts(L"UNABLE TO CONNECT!") || message_starts(L"SERVER ALREADY EXISTS!");
            });
        answer();
        guide_.step(
            "Another one answers.", "balance", [&] { choose(L"Simulation.Balance.1"); },
            L"the server below the list",
            [&] { return reads(L"lblSelectedServer") == L"LAB.Simulation.Balance.1"; });
        guide_.step(
            "OK connects it, and the selection dialog has it selected.", "server-added",
            [&] { press(program_.control(L"bnOK")); }, L"the new server selected",
            [&] {
                return at(L"dlgServerSelect") && lines(L"cboServer").size() == known_ + 1 &&
                       reads(L"cboServer") == L"LAB.Simulation.Balance.1";
            });
        guide_.step(
            "OK hands its position back to the host.", "host-again",
            [&] { press(program_.control(L"bnOK")); }, L"the host's window", [&] { return at(L"frmHost"); });
    }

    void watching() {
        guide_.step(
            "\"Server Information...\" shows the server's status.", "server-information",
            [&] {
                hit(program_.control(L"lstServers"), VK_HOME);
                Program::wait_until(L"a selected server", [&] { return can_press(L"bnInformation"); });
                press(program_.control(L"bnInformation"));
            },
            L"the information dialog",
            [&] { return at(L"dlgServerInformation") && !reads(L"Current").empty(); });
        const std::wstring before = reads(L"Current");
        guide_.step(
            "Its clock goes on while she watches.", "clock-ticks", [] {}, L"the next second",
            [&] { return reads(L"Current") != before; });
        guide_.step(
            "Escape closes it.", "the-end", [&] { hit(program_.control(L"bnOK"), VK_ESCAPE); },
            L"the host's window", [&] { return at(L"frmHost"); });
        close(program_.front());
        if (program_.wait_for_end() != 0) throw Disappointment{L"The host did not end well."};
    }

private:
    bool at(const std::wstring& name) const { return program_.front_name() == name; }
    Lines lines(const std::wstring& list) const { return lines_of(program_.control(list)); }
    std::wstring reads(const std::wstring& control) const { return text_of(program_.control(control)); }
    bool can_press(const std::wstring& button) const { return IsWindowEnabled(program_.control(button)); }
    bool message_starts(const std::wstring& headline) const {
        return at(L"message") && message_of(program_.front()).rfind(headline, 0) == 0;
    }

    void answer() {
        PostMessageW(program_.front(), WM_COMMAND, IDOK, 0);
        Program::wait_until(L"the dialog again", [&] { return at(L"dlgServerAdd"); });
    }

    void choose(const std::wstring& server) {
        click_line(program_.control(L"lstOPCServers"), line_of(lines(L"lstOPCServers"), server));
        Program::wait_until(L"the OK button", [&] { return can_press(L"bnOK"); });
    }

    std::function<bool(const Lines&)> nothing_found() const {
        return [this](const Lines& found) {
            return found == Lines{L"<No Servers available on this Node>"} &&
                   !IsWindowEnabled(program_.control(L"lstOPCServers")) && !can_press(L"bnOK");
        };
    }

    void asks_node(const std::string& telling, const std::string& picture, const std::wstring& node,
                   const std::function<bool(const Lines&)>& found) {
        guide_.step(
            telling, picture, [&] { enter_node(node); }, L"the list for " + node,
            [&] { return found(lines(L"lstOPCServers")); });
    }

    void enter_node(const std::wstring& node) {
        const HWND box = program_.control(L"txtNode");
        click_into(box);
        hit(box, VK_END);
        for (std::size_t i = text_of(box).size(); i > 0; --i) type(box, L"\b");
        type(box, node);
        Program::wait_until(L"the node's name", [&] { return reads(L"txtNode") == node; });
        hit(box, VK_RETURN);
    }

    Program& program_;
    Guide& guide_;
    std::size_t known_ = 0;
};

std::wstring folder_of_this_program() {
    wchar_t path[MAX_PATH]{};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::wstring whole = path;
    return whole.substr(0, whole.find_last_of(L'\\'));
}

int run(const std::wstring& pictures) {
    const std::wstring database = pictures + L"\\tour.db";
    DeleteFileW(database.c_str());
    const std::wstring host = folder_of_this_program() + L"\\..\\window\\brxSampleHost.exe";
    try {
        Program program(L"\"" + host + L"\" --plant \"" + database + L"\"");
        Guide guide(program, pictures);
        Visit visit(program, guide);
        visit.servers();
        visit.adding();
        visit.watching();
        std::printf("%d steps, all as they should be\n", guide.steps());
        return 0;
    } catch (const Disappointment& disappointment) {
        std::printf("    It did not come out: %ls\n", disappointment.what.c_str());
        return 1;
    }
}

} // namespace

} // namespace tour

int wmain(int count, wchar_t** arguments) {
    if (count != 2) {
        std::printf("brxSampleTour FOLDER\n");
        return 2;
    }
    return tour::run(arguments[1]);
}
