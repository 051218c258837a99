#pragma once

#include "scenario.h"

#include <string>
#include <vector>

namespace brx::checks {

/// The test dialog, open for one test of the host's configuration.
class Testing {
public:
    Testing(Play& its, std::shared_ptr<FakeTest> test)
        : its_(its), test_(std::move(test)), edit_(*its.stage, "TestConfiguration") {
        its.host.browser->root.has("Line1", {"Speed", "Force"});
        for (const char* item : {"Line1.Speed", "Line1.Force"}) its.host.group->items->answers[item] = 0;
        edit_.show(test_);
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
