#include "adding.h"
#include "configuring.h"
#include "describing.h"
#include "help_file.h"
#include "testing.h"

// F1, in every dialog. The item browser's own is told where the browser is.

using namespace brx;
using namespace brx::checks;

namespace {

/// The configuration dialog of a host that has a help file.
struct HelpedConfiguring {
    explicit HelpedConfiguring(Play& its) : file(its), dialog(a_filled_configuration(its)) {}
    HelpFile file;
    Configuring dialog;
};

Message missing(const std::string& file) {
    return {.text = "The help file " + file + " cannot be found.",
            .style = message::exclamation,
            .title = "brxOpcDlgs6"};
}

} // namespace

SCENARIO(HelpKey, OpensTheTopicsOfTheServerDialogs) {
    const HelpFile file(its);
    const auto server = std::make_shared<FakeOPCServer>(its.host.calls);
    Showing select(*its.stage, "ServerSelect");
    select.show(its.host.servers);
    file.expect_f1_to_open_at(193);
    its.person.presses("bnServer");
    file.expect_f1_to_open_at(195);
    its.person.presses("bnCancel");
    file.expect_f1_to_open_at(193);
    its.person.presses("bnCancel");
    EXPECT_FALSE(select.result());

    Showing information(*its.stage, "ServerInformation");
    information.show(server);
    file.expect_f1_to_open_at(198);
    its.person.presses("bnOK");
    information.result();
}

SCENARIO(HelpKey, OpensTheTopicOfTheTestDialogAndTheContentsInTheConfigurationDialogAroundIt) {
    HelpedConfiguring helped(its);
    EXPECT_EQ(its.host.calls.count("hlxHelp.HelpFile"), 0);
    helped.file.expect_f1_to_open_at(0);
    its.person.double_clicks("lvwTest", its.person.line_of("lvwTest", 0));
    its.person.is_at("dlgOPCTest");
    helped.file.expect_f1_to_open_at(194);
    its.person.presses("bnCancel");
    its.person.is_at("dlgConfiguration");
    helped.file.expect_f1_to_open_at(0);
    helped.dialog.leaves();
}

SCENARIO(HelpKey, OpensTheTopicOfTheTriggerDialog) {
    HelpedConfiguring helped(its);
    helped.dialog.turns_to_sampling();
    its.person.presses("cmdPieceTrigger");
    its.person.is_at("dlgEvaluation");
    helped.file.expect_f1_to_open_at(196);
    its.person.presses("bnCancel");
    helped.dialog.leaves();
}

SCENARIO(HelpKey, OpensTheContentsInTheDescriptorDialogs) {
    HelpedConfiguring helped(its);
    helped.dialog.turns_to_descriptors();
    its.person.presses("bnAddDesc");
    its.person.is_at("dlgDescriptorType");
    helped.file.expect_f1_to_open_at(0);
    its.person.presses("bnOK");
    its.person.is_at("dlgDescriptorProperties");
    EXPECT_EQ(its.host.calls.count("hlxHelp.HelpFile"), 1);
    helped.file.expect_f1_to_open_at(0);
    its.person.presses("bnItem");
    its.person.is_at("dlgItemSelect");
    helped.file.expect_f1_to_open_at(197);
    its.person.presses("bnCancel");
    helped.file.expect_f1_to_open_at(0);
    its.person.presses("bnCancel");
    helped.dialog.leaves();
}

SCENARIO(HelpKey, AHelpFileThatIsNotThereIsTold) {
    a_filled_configuration(its);
    its.host.help_service->path = "C:\\Plant\\collection.chm";
    Configuring dialog(its);
    its.person.hits(Key::f1);
    its.person.answers(missing("C:\\Plant\\collection.chm"));
    its.person.is_at("dlgConfiguration");
    its.person.presses("bnAdd");
    its.person.is_at("dlgOPCTest");
    its.person.hits(Key::f1);
    its.person.answers(missing("C:\\Plant\\collection.chm"));
    its.person.presses("bnCancel");
    dialog.leaves();
}

SCENARIO(HelpKey, AHelpFileThatIsNotThereIsToldWhateverTheFormOfItsName) {
    for (const char* name : {"brx no such help.chm", "help\\brx no such help.chm", "\\brx no such help.chm",
                             "C:brx no such help.chm", "\\\\.\\brx no such help.chm", "brx no such help.hlp",
                             "C:\\Plant\\collection.chm::/first.htm", "brx no such help.chm>main"}) {
        its.host.help_service->path = name;
        Adding dialog(its);
        its.person.hits(Key::f1);
        its.person.answers(missing(name));
        its.person.is_at("dlgServerAdd");
        dialog.cancels();
    }
}

SCENARIO(HelpKey, DoesNothingWhereTheHostHasNoHelp) {
    its.host.help_service = nullptr;
    Configuring dialog(its);
    its.person.hits(Key::f1);
    its.person.is_at("dlgConfiguration");
    EXPECT_EQ(its.person.screen().help(), "");
    dialog.leaves();
}
