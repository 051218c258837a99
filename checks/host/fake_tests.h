#pragma once

#include "common/model/configuration.h"
#include "host/fake_database.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace brx::checks {

/// What a test holds.
struct TestFields {
    std::int32_t state = 0;
    std::string item_id;
    std::string item_text;
    std::int32_t client_handle = 0;
    bool item_trigger = false;
    std::int16_t expression = 0;
    Variant value = std::int16_t{0};
    double constant = 0;
    std::int16_t save_as = 0;
    std::string characteristic;
    bool operator==(const TestFields&) const = default;
};

/// One test of the fake host.
class FakeTest : public hlxOPCTest, public Recorded {
public:
    FakeTest(CallLog& calls, std::shared_ptr<FakeTestData> record)
        : Recorded(calls, "hlxOPCTest"), data(std::move(record)) {}

    TestFields fields;
    std::shared_ptr<FakeTestData> data;
    std::weak_ptr<hlxOPCTests> parent;

    std::int32_t State() override { return read("State", fields.state); }
    void set_State(std::int32_t value) override { write("State", fields.state, value); }
    hlxOPCTestsPtr Parent() override { return read("Parent", parent.lock()); }
    std::int32_t Index() override;
    ObjectPtr TestData() override { return read("TestData", data); }
    std::string OPCItemID() override { return read("OPCItemID", fields.item_id); }
    std::string ItemText() override { return read("ItemText", fields.item_text); }
    void set_OPCItemID(const std::string& value) override { write("OPCItemID", fields.item_id, value); }
    std::int32_t ClientHandle() override { return read("ClientHandle", fields.client_handle); }
    void set_ClientHandle(std::int32_t value) override { write("ClientHandle", fields.client_handle, value); }
    void set_ItemTrigger(bool value) override { write("ItemTrigger", fields.item_trigger, value); }
    bool ItemTrigger() override { return read("ItemTrigger", fields.item_trigger); }
    std::int16_t TriggerExpression() override { return read("TriggerExpression", fields.expression); }
    void set_TriggerExpression(std::int16_t value) override {
        write("TriggerExpression", fields.expression, value);
    }
    Variant TriggerValue() override { return read("TriggerValue", fields.value); }
    void set_TriggerValue(const Variant& value) override { write("TriggerValue", fields.value, value); }
    double Constant() override { return read("Constant", fields.constant); }
    void set_Constant(double value) override { write("Constant", fields.constant, value); }
    std::int16_t SaveAs() override { return read("SaveAs", fields.save_as); }
    void set_SaveAs(std::int16_t value) override { write("SaveAs", fields.save_as, value); }
    std::string CharacteristicName() override {
        return read("CharacteristicName", fields.characteristic.empty() ? data->name : fields.characteristic);
    }
};

/// The tests of the fake configuration.
class FakeTests : public RecordedCollection<hlxOPCTests, hlxOPCTest, FakeTest>,
                  public std::enable_shared_from_this<FakeTests> {
public:
    explicit FakeTests(CallLog& calls) : RecordedCollection(calls, "hlxOPCTests") {}

    std::weak_ptr<hlxOPCConfiguration> parent;

    /// The characteristics that the database has, by their ids.
    std::map<std::int32_t, std::string> characteristics;

    std::shared_ptr<FakeTest> has(std::int32_t id, const std::string& name, std::int32_t group_id) {
        const auto test =
            std::make_shared<FakeTest>(calls_, std::make_shared<FakeTestData>(calls_, id, group_id, name));
        test->data->names = &characteristics;
        test->parent = weak_from_this();
        entries.push_back(test);
        return test;
    }

    hlxOPCTestPtr Add() override {
        note("Add");
        return added(has(0, "", 0));
    }
    hlxOPCConfigurationPtr Parent() override { return read("Parent", parent.lock()); }
};

inline std::int32_t FakeTest::Index() {
    return read("Index", std::dynamic_pointer_cast<FakeTests>(parent.lock())->position_of(this));
}

} // namespace brx::checks
