#include "classes/TestConfiguration.h"
#include "configuration/dlgConfiguration.h"

#include <algorithm>
#include <array>
#include <vector>

namespace brx {

namespace {

/// Characteristic, item, server, node.
struct TestRow {
    std::array<std::string, 4> cells;
    bool item_shows = true;
};

TestRow read_row(hlxOPCTest& test) {
    TestRow row;
    row.cells[0] = test.CharacteristicName();
    row.cells[1] = test.OPCItemID();
    const hlxOPCConfigurationPtr configuration = the(test.Parent()).Parent();
    const hlxOPCServerPtr entry = the(the(configuration).Server()).ServerEntry();
    row.cells[2] = the(entry).ServerName();
    row.cells[3] = entry->Node();
    row.item_shows = test.State() != test_state::item_not_shown;
    return row;
}

} // namespace

/// Rows and tests have the same positions. All tests are read before the list changes: when one cannot be
/// read, the list stays as it is.
void dlgConfiguration::AddToList() {
    tests_listed_ = false;
    const hlxOPCTestsPtr tests = the(configuration_).Tests();
    std::vector<TestRow> rows(static_cast<std::size_t>(std::max(the(tests).Count(), 0)));
    std::int32_t position = 0;
    for (TestRow& row : rows) row = read_row(the(tests->Item(++position)));

    lvwTest.clear();
    for (const TestRow& each : rows) {
        ListRow& row = lvwTest.add("", each.cells[0]);
        for (int column = 1; column < 4; ++column) {
            const bool hidden = column == 1 && !each.item_shows;
            row.set_text(column, hidden ? std::string() : each.cells[static_cast<std::size_t>(column)]);
        }
        if (each.item_shows) continue;
        for (const int column : {0, 2, 3}) row.set_look(column, {.bold = true, .fore_color = color::red});
    }
    tests_listed_ = true;
}

void dlgConfiguration::bnAdd_Click() {
    trap("bnAdd_Click", [&] {
        TestConfiguration editor(environment());
        const hlxOPCTestPtr test = the(the(configuration_).Tests()).Add();
        if (editor.Show(test))
            AddToList();
        else
            take_back(the(test));
    });
}

/// When the host does not let it go, the list shows it: rows and tests must go on matching.
void dlgConfiguration::take_back(hlxOPCTest& test) {
    try {
        const hlxOPCTestsPtr owner = test.Parent();
        the(owner).Remove(test.Index());
    } catch (...) {
        attempt([&] { AddToList(); });
        throw;
    }
}

void dlgConfiguration::cmdEdit_Click() {
    trap("cmdEdit_Click", [&] { EditItem(); });
}

void dlgConfiguration::lvwTest_DblClick() {
    trap("lvwTest_DblClick", [&] { EditItem(); });
}

void dlgConfiguration::EditItem() {
    const int position = lvwTest.selected();
    if (position == 0) return;
    const hlxOPCTestPtr test = the(the(configuration_).Tests()).Item(std::int32_t{position});
    TestConfiguration editor(environment());
    if (editor.Show(test)) AddToList();
}

void dlgConfiguration::bnRemove_Click() {
    trap("bnRemove_Click", [&] {
        const int position = lvwTest.selected();
        if (position == 0) return;
        the(the(configuration_).Tests()).Remove(position);
        lvwTest.remove(position);
    });
}

/// An empty list that is not known to be the configuration's proves nothing: then the tests are counted.
bool dlgConfiguration::is_without_tests() const {
    if (lvwTest.count() != 0) return false;
    return tests_listed_ || the(the(configuration_).Tests()).Count() == 0;
}

} // namespace brx
