#include "classes/TestConfiguration.h"
#include "common/call_gate.h"
#include "configuration/dlgConfiguration.h"

#include <string>

namespace brx {

/// Rows and tests have the same positions.
void dlgConfiguration::AddToList() {
    tests_.list([&](ListedObjects::Drafts& rows) {
        work().go_on_with("Reading the tests of " + txtName.text());
        const hlxOPCTestsPtr tests = the(configuration_).Tests();
        const std::int32_t count = the(tests).Count();
        work().all(count, [&](std::int32_t position) {
            const hlxOPCTestPtr test = tests->Item(position);
            const std::string name = the(test).CharacteristicName();
            ListedObjects::draft(rows, [&](RowDraft& row) {
                row.set_text(name);
                row.set_text(1, test->OPCItemID());
                const hlxOPCConfigurationPtr configuration = the(test->Parent()).Parent();
                const hlxOPCServerPtr entry = the(the(configuration).Server()).ServerEntry();
                row.set_text(2, the(entry).ServerName());
                row.set_text(3, entry->Node());
                if (test->State() != test_state::item_not_shown) return;
                row.set_text(1, "");
                for (const int column : {0, 2, 3})
                    row.set_look(column, {.bold = true, .fore_color = color::red});
            });
        });
    });
}

void dlgConfiguration::bnAdd_Click() {
    trap("bnAdd_Click", [&] {
        TestConfiguration editor(environment());
        const hlxOPCTestsPtr tests = the(configuration_).Tests();
        hlxOPCTests& owner = the(tests);
        hlxOPCTestPtr test;
        bool confirmed = false;
        tests_.add(
            [&] {
                test = owner.Add();
                confirmed = editor.Show(test); // which tells of Nothing in its own way
                the(test);
            },
            [&] { AddToList(); });
        if (!confirmed) return take_back(*test);
        AddToList();
        tests_.select(lvwTest.count());
    });
}

void dlgConfiguration::take_back(hlxOPCTest& test) {
    const call_gate::Undoing undoing;
    const auto remove = [&] {
        const hlxOPCTestsPtr owner = test.Parent();
        const std::int32_t position = test.Index();
        the(owner).Remove(position);
    };
    tests_.take_away(remove, [&] { AddToList(); });
}

void dlgConfiguration::cmdEdit_Click() {
    trap("cmdEdit_Click", [&] { EditItem(); });
}

void dlgConfiguration::lvwTest_DblClick() {
    trap("lvwTest_DblClick", [&] { EditItem(); });
}

void dlgConfiguration::EditItem() {
    const int position = tests_.chosen();
    if (position == 0) return;
    const hlxOPCTestPtr test = the(the(configuration_).Tests()).Item(std::int32_t{position});
    TestConfiguration editor(environment());
    if (!editor.Show(test)) return;
    AddToList();
    tests_.select(position);
}

void dlgConfiguration::bnRemove_Click() {
    trap("bnRemove_Click", [&] {
        const int position = tests_.chosen();
        if (position == 0) return;
        const hlxOPCTestsPtr tests = the(configuration_).Tests();
        tests_.take_away([&] { the(tests).Remove(position); }, [&] { AddToList(); });
        lvwTest.remove(position);
    });
}

/// An empty list that is not known to be the configuration's proves nothing: then the tests are counted.
bool dlgConfiguration::is_without_tests() const {
    if (lvwTest.count() != 0) return false;
    return tests_.is_whole() || the(the(configuration_).Tests()).Count() == 0;
}

} // namespace brx
