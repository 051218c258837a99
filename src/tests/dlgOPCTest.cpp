#include "tests/dlgOPCTest.h"

#include "classes/LeafSelect.h"
#include "common/group_items.h"
#include "common/values/convert.h"
#include "forms/setup_form.h"

#include <optional>
#include <utility>

namespace brx {

dlgOPCTest::dlgOPCTest(Environment& environment)
    : Form(environment, {.name = "dlgOPCTest",
                         .caption = "OPC Test Configuration",
                         .size = {421, 263},
                         .font_family = "Arial"}),
      tools_(environment.errors) {}

hlxOPCConfigurationPtr dlgOPCTest::configuration() { return the(the(test_).Parent()).Parent(); }

ObjectPtr dlgOPCTest::server() { return connection_of(the(configuration())); }

OPCItemsPtr dlgOPCTest::items_of(const ObjectPtr& group) {
    return the(tools_.ResolveOPCGroup(group)).OPCItems();
}

void dlgOPCTest::Form_Load() {
    trap("Form_Load", [&] {
        ok_pressed_ = false;
        edit_mode_ = test_chosen_ = added_new_item_ = all_read_ = false;
        former_ = {};
        server_handles_ = LongArray{{0}};
        fill_operators(cboExpression);
        cboExpression.select(trigger_operator::always);
        for (const char* text :
             {"Actual Value", "Absolute Value", "Reversed Sign of Actual Value", "Constant Value"})
            cboSaveAs.add_line(text);
        cboSaveAs.select(0);
        chkItemTrigger.set_value(0);
        chkItemTrigger.set_enabled(false);
        bnOK.set_enabled(false);
        ShowEvalType(0);
        const std::string bound = the(test_).OPCItemID();
        edit_mode_ = !item_id_.empty() || !bound.empty();
        all_read_ = !edit_mode_; // a new test has nothing to read
        if (edit_mode_) {
            former_.item_id = bound;
            former_.state = state_;
            EditSet();
        }
        SetupForm(*this, 194);
    });
}

void dlgOPCTest::Form_Unload() {
    test_ = nullptr;
    database_ = nullptr;
}

/// A test that the host could not tell whole cannot be confirmed. A code or value that no control can show is
/// reported as well, but the person can choose another.
void dlgOPCTest::EditSet() {
    trap("EditSet", [&] {
        hlxOPCTest& test = the(test_);
        std::optional<Error> unfit;
        const auto fit = [&](const auto& show) {
            const auto failure = failure_of(show);
            if (!unfit) unfit = failure;
        };
        former_.client_handle = client_handle_ = test.ClientHandle();
        test_name_ = test.CharacteristicName();
        txtTest.set_text(test_name_);
        txtItem.set_text(item_id_);
        const bool trigger = test.ItemTrigger();
        former_.item_trigger = trigger;
        chkItemTrigger.set_value(trigger ? 1 : 0);
        const double constant = test.Constant();
        former_.constant = constant;
        txtConstant.set_text(to_text(constant, environment().locale));
        const std::int16_t save_as = test.SaveAs();
        former_.save_as = save_as;
        fit([&] { cboSaveAs.select(save_as); });
        if (chkItemTrigger.value() == 1) {
            GetItemDataType();
            ShowEvalType(chkItemTrigger.value());
            const std::int16_t expression = test.TriggerExpression();
            former_.trigger_expression = expression;
            fit([&] { cboExpression.select(expression); });
            value_ = test.TriggerValue();
            former_.trigger_value = value_;
            fit([&] { txtValue.set_text(to_text(value_, environment().locale)); });
        }
        all_read_ = true;
        chkItemTrigger.set_enabled(true);
        bnOK.set_enabled(true);
        if (unfit) throw Error(*unfit);
    });
}

void dlgOPCTest::bnTest_Click() {
    trap("bnTest_Click", [&] {
        const auto picker = create<hlxSelection>(environment().objects, class_name::hlxTestSelection);
        if (!picker->Show(database_, test_id_, test_group_id_)) return allow_confirming();
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
    const hlxOPCTestsPtr tests = the(test_).Parent();
    const std::int32_t count = the(tests).Count();
    for (std::int32_t i = 1; i <= count; ++i)
        if (resolve<hlxTestData>(the(tests->Item(i)).TestData())->ID() == id) return true;
    return false;
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

void dlgOPCTest::allow_confirming() {
    const bool complete = all_read_ && !item_id_.empty() && !test_name_.empty();
    bnOK.set_enabled(complete);
    chkItemTrigger.set_enabled(complete);
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

void dlgOPCTest::bnCancel_Click() {
    trap("bnCancel_Click", [&] {
        ok_pressed_ = false;
        drop_added_item();
        client_handle_ = 0;
        value_ = std::int16_t{0};
        expression_ = trigger_operator::always;
        test_id_ = 0;
        test_name_.clear();
        test_group_id_ = 0;
        test_group_name_.clear();
        item_id_.clear();
        unload();
    });
}

/// A handle goes back to the server once: after a failure nobody knows whether it is still good, and a stale
/// one can bring the server down. An item whose group cannot be reached waits for the next time.
void dlgOPCTest::drop_added_item() {
    if (!added_new_item_ || server_handles_.at(1) == 0) return;
    const OPCItemsPtr group_items = items_of(the(configuration()).OPCGroup());
    OPCItems& reached = the(group_items);
    added_new_item_ = false;
    reached.Remove(server_handles_);
}

} // namespace brx
