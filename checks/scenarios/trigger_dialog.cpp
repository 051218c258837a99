#include "configuring.h"

#include <utility>

// The dialog of one trigger, which the configuration dialog opens.

using namespace brx;
using namespace brx::checks;

namespace {

/// The trigger dialog of the subgroups.
class Triggering {
public:
    explicit Triggering(Play& its) : its_(its), dialog_(its) {
        dialog_.turns_to_sampling();
        its.person.presses("cmdSubgroupTrigger");
        its.person.is_at("dlgEvaluation");
    }
    /// Leaves the trigger and the configuration as they were.
    void cancels() {
        its_.person.presses("bnCancel");
        its_.person.is_at("dlgConfiguration");
        dialog_.leaves();
    }
    Configuring& configuration() { return dialog_; }

private:
    Play& its_;
    Configuring dialog_;
};

} // namespace

SCENARIO(TriggerDialog, EveryFieldHasItsLabelAndItsLetter) {
    a_filled_configuration(its);
    Triggering trigger(its);
    EXPECT_EQ(its.person.title(), "Set Trigger");
    EXPECT_EQ(its.person.reads("Label1"), "&A. OPC Item:");
    EXPECT_EQ(its.person.reads("Label2"), "&B. Expression");
    EXPECT_EQ(its.person.reads("Label3"), "&C. Value");
    EXPECT_EQ(its.person.reads("bnOK"), "OK");
    EXPECT_EQ(its.person.reads("bnCancel"), "&Cancel");
    const std::pair<char, const char*> letters[] = {
        {'b', "cboExpression"}, {'a', "cboItem"}, {'c', "txtValue"}, {'c', "bnCancel"}};
    for (const auto& [letter, control] : letters) {
        its.person.uses_accelerator(letter);
        EXPECT_TRUE(its.person.has_focus(control)) << letter;
    }
    trigger.cancels();
}

SCENARIO(TriggerDialog, TheBrowserStartsAtThePresentItemAndWhatIsPickedIsAdded) {
    a_filled_configuration(its);
    its.host.browser->root.leaves = {"Version"};
    its.host.browser->root.has("Line1", {"Speed", "Force"});
    its.host.group->items->answers["Version"] = 0;
    Triggering trigger(its);
    its.person.presses("bnItem");
    its.person.is_at("dlgItemSelect");
    EXPECT_EQ(its.person.reads("txtFullPath"), "Line1.Speed");
    its.person.enters("txtFullPath", "Version");
    its.person.presses("bnOK");
    its.person.is_at("dlgEvaluation");
    EXPECT_EQ(its.person.reads("cboItem"), "Version");
    EXPECT_EQ(its.person.lines_of("cboItem"), Lines({"<None>", "Line1.Speed", "Line1.Force", "Version"}));
    its.person.presses("bnOK");
    its.person.is_at("dlgConfiguration");
    EXPECT_EQ(its.person.reads("txtSGEval"), "Version = 5");
    EXPECT_EQ(its.host.group->items->added, std::vector{StringArray{{"Version"}}});
    EXPECT_EQ(its.host.group->items->ids(),
              std::vector<std::string>({"Line1.Speed", "Line1.Force", "Version"}));
    trigger.configuration().leaves();
}

SCENARIO(TriggerDialog, ADisconnectedServerCannotBeBrowsedAndIsReportedOnce) {
    a_filled_configuration(its);
    an_unconnected_server(its, "Plant.Simulation.1");
    Triggering trigger(its);
    its.person.presses("bnItem");
    its.expect_report(error::type_mismatch, "CommonTools.ResolveOPCServer");
    its.person.is_at("dlgEvaluation");
    EXPECT_EQ(its.person.reads("cboItem"), "Line1.Speed");
    trigger.cancels();
}

SCENARIO(TriggerDialog, WithoutAServerATypeThatCannotBeReadIsToldOnceAndWithoutAText) {
    a_filled_configuration(its);
    an_unconnected_server(its, "Plant.Simulation.1");
    Triggering trigger(its);
    its.host.group->items->forget_all();
    its.person.presses("bnOK");
    its.person.answers({.text = "", .style = message::exclamation, .title = "Error Getting Data Type"});
    its.person.is_at("dlgConfiguration");
    EXPECT_EQ(its.person.reads("txtSGEval"), "Line1.Speed = 5");
    trigger.configuration().leaves();
}
