#pragma once

#include "configuring.h"

#include <string>
#include <vector>

namespace brx::checks {

inline void three_tests(Play& its) {
    a_filled_configuration(its);
    its.host.has_test(8, "Width")->fields.item_id = "Line1.Force";
    its.host.has_test(9, "Mass")->fields.item_id = "Line1.Torque";
}

inline Lines characteristics(const Play& its) {
    Lines names;
    for (const auto& test : its.host.configuration->tests->entries) names.push_back(test->data->name);
    return names;
}

/// How the host's tests read in the list.
inline const Lines test_rows = {"Length | Line1.Speed | Matrix | PC7", "Width | Line1.Force | Matrix | PC7",
                                "Mass | Line1.Torque | Matrix | PC7"};

/// Adds the test of the width and confirms all of it but the test itself.
inline void prepares_width(Play& its) {
    its.host.picker->picks = std::make_shared<FakeTestData>(its.host.calls, 8, 1, "Width");
    its.host.browser->root.has("Line1", {"Speed", "Force"});
    its.host.group->items->answers["Line1.Force"] = 0;
    its.person.presses("bnAdd");
    its.person.is_at("dlgOPCTest");
    its.person.presses("bnTest");
    its.person.presses("bnItem");
    its.person.enters("txtFullPath", "Line1.Force");
    its.person.presses("bnOK");
}
inline void adds_width(Play& its) {
    prepares_width(its);
    its.person.presses("bnOK");
    its.person.is_at("dlgConfiguration");
}

inline Play& three_descriptors(Play& its) {
    its.host.configuration->descriptors->has({.type = 0, .item = "Wheel", .group = "Castings"});
    its.host.configuration->descriptors->has({.type = 7, .item = "(%Line1.Serial)", .group = ""});
    its.host.configuration->descriptors->has({.type = 5, .item = "Red", .group = "Colours"});
    return its;
}

/// How they read in the list.
inline const Lines three_rows = {"Part | Castings | Wheel", "Serial Number |  | (%Line1.Serial)",
                                 "User Defined (Subgroup) | Colours | Red"};

/// The configuration dialog, open at the list of the three.
class ListingDescriptors : public Configuring {
public:
    explicit ListingDescriptors(Play& its) : Configuring(three_descriptors(its)) { turns_to_descriptors(); }
    /// As it loads, the first calls of this member come through and the next one fails.
    ListingDescriptors(Play& its, const std::string& failing, int spared)
        : Configuring(with_a_failing(its, "hlxOPCDescriptor." + failing, spared)) {
        its.expect_report(CallLog::failure_number, "dlgConfiguration.Form_Load", ErrorLibrary::hlxER01);
        its.host.calls.fail_on("");
        turns_to_descriptors();
    }

private:
    static Play& with_a_failing(Play& its, const std::string& member, int spared) {
        its.host.calls.fail_on(member, spared);
        return three_descriptors(its);
    }
};

/// Gives a new descriptor of this kind its names, and confirms all of it but the names.
inline void prepares_descriptor(Play& its, const std::string& kind) {
    its.person.presses("bnAddDesc");
    its.person.picks("List1", kind);
    its.person.presses("bnOK");
    its.person.is_at("dlgDescriptorProperties");
    its.person.enters("txtItem", "New");
    its.person.enters("txtGroup", "Group");
}
inline void adds_descriptor(Play& its, const std::string& kind) {
    prepares_descriptor(its, kind);
    its.person.presses("bnOK");
    its.person.is_at("dlgConfiguration");
}

/// The selected row of the list can neither be edited nor removed.
inline void expect_out_of_reach(Play& its, const std::string& list, const std::string& edit,
                                const std::string& remove) {
    EXPECT_FALSE(its.person.can_press(edit));
    EXPECT_FALSE(its.person.can_press(remove));
    its.person.double_clicks(list, its.person.line_of(list, 0));
    its.person.is_at("dlgConfiguration");
}

} // namespace brx::checks
