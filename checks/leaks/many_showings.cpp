#include "leaks/system_handles.h"
#include "stories/configuring.h"
#include "stories/testing.h"

#include <windows.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

// What a host does all day must leave nothing behind: objects, windows, fonts, brushes, names.

using namespace brx;
using namespace brx::checks;

namespace {

/// Half of the day where every call is translated to 64 bits: what a showing leaves behind tells as well.
constexpr int showings = sizeof(void*) == 8 ? 1000 : 500;
/// Not one handle for every few showings: what the system keeps for itself, not what showings leave behind.
constexpr int slack = 100;

void leaves_nothing_behind(Play& its, const std::function<void()>& show_once) {
    for (int i = 0; i < 20; ++i) show_once(); // what the system makes once is made now
    SystemHandles before;
    its.stage->start([&] { before = system_handles(); });
    for (int i = 0; i < showings; ++i) show_once();
    SystemHandles after;
    its.stage->start([&] { after = system_handles(); });
    EXPECT_LT(after.user - before.user, slack) << "Windows or other USER objects stayed.";
    EXPECT_LT(after.gdi - before.gdi, slack) << "Fonts, brushes or other GDI objects stayed.";
}

/// The names of windows are the session's: what ended in the middle of one, in another program, left its
/// name. How often a name is held shows only by letting go of it.
int times_held(const wchar_t* name) {
    int times = 0;
    for (ATOM atom = GlobalFindAtomW(name); atom != 0; atom = GlobalFindAtomW(name), ++times)
        GlobalDeleteAtom(atom);
    for (int i = 0; i < times; ++i) GlobalAddAtomW(name);
    return times;
}

std::map<std::wstring, int> names_held() {
    std::map<std::wstring, int> held;
    for (const wchar_t* name :
         {L"bnOK", L"dlgServerSelect", L"dlgServerAdd", L"dlgServerInformation", L"dlgItemSelect", L"TrView",
          L"dlgOPCTest", L"chkItemTrigger", L"dlgConfiguration", L"TabStrip1", L"dlgEvaluation",
          L"dlgDescriptorType", L"dlgDescriptorProperties"})
        held[name] = times_held(name);
    return held;
}

template <class... Objects>
void show_again_and_again(Play& its, const std::string& class_name, const Objects&... objects) {
    const auto held_before = names_held();
    Showing dialog(*its.stage, class_name);
    leaves_nothing_behind(its, [&] {
        dialog.show(objects...);
        its.person.closes_the_window();
        dialog.result();
    });
    EXPECT_EQ(names_held(), held_before) << "The name of a window stayed.";
}

} // namespace

SCENARIO(ManyShowings, OfTheServerSelectionLeaveNothingBehind) {
    its.host.servers->has("Matrix");
    its.host.servers->has("Sim", "PC7");
    show_again_and_again(its, "ServerSelect", its.host.servers);
}

SCENARIO(ManyShowings, OfTheAddServerDialogLeaveNothingBehind) {
    show_again_and_again(its, "ServerAdd", its.host.servers);
}

SCENARIO(ManyShowings, OfTheServerInformationLeaveNothingBehind) {
    show_again_and_again(its, "ServerInformation", its.host.enumerator);
}

SCENARIO(ManyShowings, OfTheItemBrowserLeaveNothingBehind) {
    its.host.browser->root.has("Line1", {"Speed"});
    its.host.browser->root.has("Line2");
    show_again_and_again(its, "LeafSelect", its.host.connection, its.host.group);
}

SCENARIO(ManyShowings, OfTheTestDialogLeaveNothingBehind) {
    show_again_and_again(its, "TestConfiguration", a_bound_test(its, 2));
}

SCENARIO(ManyShowings, OfTheConfigurationDialogLeaveNothingBehind) {
    a_filled_configuration(its);
    show_again_and_again(its, "ConfigurationSetup", its.host.configuration);
}

SCENARIO(ManyShowings, OfTheDialogsOverTheConfigurationLeaveNothingBehind) {
    a_filled_configuration(its);
    its.host.configuration->descriptors->has({.type = 0, .item = "Wheel", .group = "Castings"});
    Configuring dialog(its);
    leaves_nothing_behind(its, [&] {
        dialog.turns_to_sampling();
        its.person.presses("cmdSubgroupTrigger");
        its.person.closes_the_window();
        dialog.turns_to_descriptors();
        its.person.presses("bnAddDesc");
        its.person.closes_the_window();
        its.person.picks("lvwDescriptors", "Part | Castings | Wheel");
        its.person.presses("bnEditDesc");
        its.person.closes_the_window();
    });
    dialog.leaves();
}

TEST(SystemHandlesCheck, NoticesWindowsAndPensThatStay) {
    const SystemHandles before = system_handles();
    std::vector<HPEN> pens;
    std::vector<HWND> windows;
    for (int i = 0; i < showings; ++i) {
        pens.push_back(CreatePen(PS_SOLID, 1, RGB(1, 2, 3)));
        windows.push_back(CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, HWND_MESSAGE, nullptr,
                                          nullptr, nullptr));
    }
    const SystemHandles after = system_handles();
    EXPECT_GE(after.gdi - before.gdi, slack);
    EXPECT_GE(after.user - before.user, slack);
    for (HPEN pen : pens) DeleteObject(pen);
    for (HWND window : windows) DestroyWindow(window);
}
