#pragma once

#include "scenario.h"

#include <string>
#include <vector>

namespace brx::checks {

/// The test dialog, open for one test of the host's configuration.
class Testing {
public:
    /// Opens it; these messages come before it shows.
    Testing(Play& its, std::shared_ptr<FakeTest> test, const std::vector<Message>& told_first = {})
        : its_(its), test_(std::move(test)), edit_(*its.stage, "TestConfiguration") {
        its.host.browser->root.has("Line1", {"Speed", "Force"});
        for (const char* item : {"Line1.Speed", "Line1.Force"}) its.host.group->items->answers[item] = 0;
        edit_.show(test_);
        for (const Message& message : told_first) its.person.answers(message);
        its.person.is_at("dlgOPCTest");
    }

    bool result() { return edit_.result(); }
    const TestFields& fields() const { return test_->fields; }

    void picks_characteristic(std::int32_t id, const std::string& name, std::int32_t group_id = 1) {
        its_.host.picker->picks = std::make_shared<FakeTestData>(its_.host.calls, id, group_id, name);
        its_.person.presses("bnTest");
    }
    void picks_item(const std::string& item) {
        its_.person.presses("bnItem");
        its_.person.is_at("dlgItemSelect");
        its_.person.enters("txtFullPath", item);
        its_.person.presses("bnOK");
    }
    /// The browser still takes the item, the group does not.
    void picks_item_that_is_refused(const std::string& item) {
        FakeOPCItems& items = *its_.host.group->items;
        its_.person.presses("bnItem");
        its_.person.enters("txtFullPath", item);
        items.claimed_errors = LongArray{{0}};
        items.answers.erase(item);
        its_.person.presses("bnOK");
        its_.person.answers({.text = "UNABLE TO ADD ITEM!\r\n\r\nThe item is not known to the server.\r\n\r\n"
                                     "Item: " +
                                     item,
                             .style = message::critical,
                             .title = component_name});
    }
    void loses_the_server() {
        its_.host.configuration->server->entry = std::make_shared<FakeServer>(its_.host.calls, "Sim", "PC9");
    }

    /// What has been written to the host's objects since the dialog opened, in order.
    std::vector<std::string> writes() const {
        std::vector<std::string> writes = its_.host.calls.members();
        std::erase_if(writes, [](const std::string& member) {
            return !member.ends_with("=") && !member.ends_with(".Save");
        });
        return writes;
    }

private:
    Play& its_;
    std::shared_ptr<FakeTest> test_;
    Showing edit_;
};

/// What is told of an item whose type the server does not tell.
inline Message no_data_type(const std::string& text = "The item is not known to the server.") {
    return {.text = text, .style = message::exclamation, .title = "Error Getting Data Type"};
}

/// Before the next round of a story: no tests, no items, nothing to browse.
inline void start_over(Play& its) {
    its.host.configuration->tests->entries.clear();
    its.host.group->items->forget_all();
    its.host.browser->root.branches.clear();
}

/// A test that has a characteristic, an item and a trigger.
inline std::shared_ptr<FakeTest> a_bound_test(Play& its, std::int16_t data_type) {
    its.host.group->items->data_types["Line1.Speed"] = data_type;
    its.host.group->items->has("Line1.Speed");
    const auto test = its.host.has_test(7, "Length");
    test->fields.item_id = test->fields.item_text = "Line1.Speed";
    test->fields.client_handle = 55;
    test->fields.item_trigger = true;
    test->fields.expression = 2;
    test->fields.value = std::int16_t{12};
    test->fields.constant = 1.5;
    test->fields.save_as = 3;
    return test;
}

} // namespace brx::checks
