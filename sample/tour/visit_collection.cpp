#include "tour/visit.h"

// She runs a configuration, sees what comes of its settings, and changes them.

namespace tour {

namespace {

constexpr int answers = 1200; ///< values take their time

} // namespace

bool Visit::chart_tells(const std::wstring& text) const {
    return at(L"frmHost") && reads(L"chtValues").find(text) != std::wstring::npos;
}

void Visit::running() {
    select_first_server();
    guide_.step(
        "\"Run\" collects in the configuration; the chart says how the next sample comes.", "run",
        [&] {
            program_.wait_until(L"the chart at rest", [&] { return chart_tells(L"Not running."); });
            press(L"bnRun");
        },
        L"the collection",
        [&] {
            return chart_tells(L"Running: 0 subgroups") &&
                   chart_tells(L"Subgroup: every 15 seconds.  Piece: when Filler.Head 1.Ready = True.");
        });
    guide_.step(
        "Subgroups of three come in; what was not collected is pale.", "collected", [] {}, L"two subgroups",
        [&] { return chart_tells(L"Running: 2 subgroups"); }, answers);
    guide_.step(
        "With \"Configure...\" she takes a piece every second instead, for larger subgroups.",
        "sampling-changed",
        [&] {
            press(L"bnConfigure");
            program_.wait_until(L"the dialog", [&] { return at(L"dlgConfiguration"); });
            fill_in(L"txtSubgroupSize", L"5");
            turn_to(tab::sampling, L"txtPieceTimeInterval");
            fill_in(L"txtPieceTimeInterval", L"1");
            press(L"cmdPieceTrigger");
            program_.wait_until(L"the trigger dialog", [&] { return at(L"dlgEvaluation"); });
            hit(program_.control(L"cboItem"), VK_HOME);
            program_.wait_until(L"no item", [&] { return reads(L"cboItem") == L"<None>"; });
            press(L"bnOK");
        },
        L"the new sampling",
        [&] {
            return at(L"dlgConfiguration") && reads(L"txtPieceTimeInterval") == L"1" &&
                   reads(L"txtPieceEval").find(L"Ready") == std::wstring::npos;
        });
    guide_.step(
        "\"Close\", and collection goes on with it; what there was is kept.", "live-chart",
        [&] { press(L"bnClose"); }, L"subgroups with the new settings",
        [&] { return chart_tells(L"Running: 5 subgroups") && chart_tells(L"Piece: every second."); },
        answers);
    guide_.step(
        "The same button stops it.", "stopped", [&] { press(L"bnRun"); }, L"the end",
        [&] { return chart_tells(L"Stopped: ") && reads(L"bnRun") == L"&Run"; });
}

} // namespace tour
