// What a test is made of: choosing its characteristic and its item.

#include "classes/LeafSelect.h"
#include "common/call_gate.h"
#include "common/group_items.h"
#include "tests/dlgOPCTest.h"

#include <utility>

namespace brx {

void dlgOPCTest::bnTest_Click() {
    trap("bnTest_Click", [&] {
        const auto picker = create<hlxSelection>(environment().objects, class_name::hlxTestSelection);
        if (!answered([&] { return picker->Show(database_, test_id_, test_group_id_); }))
            return allow_confirming();
        const hlxTestDataPtr picked = ResolveTestDat(picker->Record());
        if (!picked) return;
        const std::int32_t id = picked->ID();
        if (is_duplicate(id)) {
            show_message({.text = "DUPLICATE TEST!  Unable to add duplicate tests to a group.",
                          .style = message::exclamation,
                          .title = "Add Error"});
            return;
        }
        // All of it or, when something fails, nothing.
        const std::int32_t group_id = picked->GroupID();
        const hlxRecordPtr group = GetTestGrp(group_id);
        if (!group) return;
        std::string group_name = group->Name();
        test_name_ = picked->Name();
        test_id_ = id;
        test_group_id_ = group_id;
        test_group_name_ = std::move(group_name);
        txtTest.set_text(test_name_);
        test_chosen_ = true;
        allow_confirming();
    });
}

/// The test that is being edited counts as well.
bool dlgOPCTest::is_duplicate(std::int32_t id) {
    work().waits_for("Looking for other tests of the characteristic");
    const hlxOPCTestsPtr tests = the(test_).Parent();
    const std::int32_t count = the(tests).Count();
    return work().first_of(count, [&](std::int32_t i) {
        return resolve<hlxTestData>(the(tests->Item(i)).TestData())->ID() == id;
    }) != 0;
}

hlxRecordPtr dlgOPCTest::GetTestGrp(std::int32_t id) {
    hlxRecordPtr group;
    trap("GetTestGrp", [&] {
        const auto record = create<hlxRecord>(environment().objects, class_name::hlxTestGroup);
        record->set_ID(id);
        record->set_SearchFlag(1);
        record->Load(database_);
        group = record;
    });
    return group;
}

hlxTestDataPtr dlgOPCTest::ResolveTestDat(const ObjectPtr& object) {
    hlxTestDataPtr data;
    trap("ResolveTestDat", [&] { data = resolve<hlxTestData>(object); });
    return data;
}

void dlgOPCTest::bnItem_Click() {
    trap("bnItem_Click", [&] {
        const hlxOPCConfigurationPtr around = configuration();
        const hlxOPCServerPtr entry = the(the(around).Server()).ServerEntry();
        const ObjectPtr server = the(entry).OPCServer();
        const ObjectPtr group = around->OPCGroup();
        if (!server) {
            const std::string node = entry->Node();
            const std::string name = entry->ServerName();
            show_message({.text = "The OPCServer is disconnected or does not exist.\r\nServer Node: " + node +
                                  "\r\nServer Name: " + name,
                          .style = message::exclamation,
                          .title = "Server Error"});
            return;
        }
        if (!group) {
            show_message(
                {.text = "The OPCGroup is Invalid.", .style = message::exclamation, .title = "Server Error"});
            return;
        }
        LeafSelect browser(environment());
        browser.set_ItemID(txtItem.text());
        if (!browser.Show(server, group)) return;
        const OPCItemsPtr group_items = items_of(group);
        const bool already_there = holds_item(the(group_items), browser.ItemID());
        item_id_ = browser.ItemID();
        txtItem.set_text(item_id_);
        if (!already_there) take_item(*group_items, server);
        allow_confirming();
    });
}

/// Adds the item to the group. One that cannot be added is not kept as the test's.
void dlgOPCTest::take_item(OPCItems& items, const ObjectPtr& server) {
    const auto forget_item = [&] {
        txtItem.set_text("");
        item_id_.clear();
        allow_confirming();
    };
    work().waits_for("Adding " + item_id_ + " to the group");
    try {
        const StringArray ids{{item_id_}};
        const ShortArray types{{0}};
        const StringArray paths{{""}};
        items.Validate(ids, types, paths);
        const AddedItems added = items.AddItems(ids, LongArray{{test_id_}}, types, paths);
        const std::int32_t error = added.Errors.at(1);
        if (error == 0) {
            server_handles_ = LongArray{{added.ServerHandles.at(1)}};
            client_handle_ = server_handles_.at(1);
            added_new_item_ = true;
            return;
        }
        server_handles_ = LongArray{{0}};
        added_new_item_ = false;
        tell_refusal(server, error, item_id_, [&](const std::string& text) {
            show_message({.text = text, .style = message::critical});
        });
    } catch (...) {
        forget_item();
        throw;
    }
    forget_item();
}

/// A handle goes back to the server once: after a failure nobody knows whether it is still good, and a stale
/// one can bring the server down. An item whose group cannot be reached waits for the next time.
void dlgOPCTest::drop_added_item() {
    if (!added_new_item_ || server_handles_.at(1) == 0) return;
    const call_gate::Undoing undoing;
    const OPCItemsPtr group_items = items_of(the(configuration()).OPCGroup());
    OPCItems& reached = the(group_items);
    added_new_item_ = false;
    reached.Remove(server_handles_);
}

} // namespace brx
