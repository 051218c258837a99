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
class FakeTest : public hlxOPCTest {
public:
    FakeTest(CallLog& calls, std::shared_ptr<FakeTestData> record) : data(std::move(record)), calls_(calls) {}

    TestFields fields;
    std::shared_ptr<FakeTestData> data;
    std::weak_ptr<hlxOPCTests> parent;
    std::string untold; ///< the member that cannot be read

    std::int32_t State() override { return read("State", fields.state); }
    void set_State(std::int32_t value) override { write("State=", fields.state, value); }
    hlxOPCTestsPtr Parent() override { return read("Parent", parent.lock()); }
    std::int32_t Index() override;
    ObjectPtr TestData() override { return read("TestData", data); }
    std::string OPCItemID() override { return read("OPCItemID", fields.item_id); }
    std::string ItemText() override { return read("ItemText", fields.item_text); }
    void set_OPCItemID(const std::string& value) override { write("OPCItemID=", fields.item_id, value); }
    std::int32_t ClientHandle() override { return read("ClientHandle", fields.client_handle); }
    void set_ClientHandle(std::int32_t value) override {
        write("ClientHandle=", fields.client_handle, value);
    }
    void set_ItemTrigger(bool value) override { write("ItemTrigger=", fields.item_trigger, value); }
    bool ItemTrigger() override { return read("ItemTrigger", fields.item_trigger); }
    std::int16_t TriggerExpression() override { return read("TriggerExpression", fields.expression); }
    void set_TriggerExpression(std::int16_t value) override {
        write("TriggerExpression=", fields.expression, value);
    }
    Variant TriggerValue() override { return read("TriggerValue", fields.value); }
    void set_TriggerValue(const Variant& value) override { write("TriggerValue=", fields.value, value); }
    double Constant() override { return read("Constant", fields.constant); }
    void set_Constant(double value) override { write("Constant=", fields.constant, value); }
    std::int16_t SaveAs() override { return read("SaveAs", fields.save_as); }
    void set_SaveAs(std::int16_t value) override { write("SaveAs=", fields.save_as, value); }
    std::string CharacteristicName() override {
        return read("CharacteristicName", fields.characteristic.empty() ? data->name : fields.characteristic);
    }

private:
    template <class Value> Value read(const std::string& member, const Value& value) {
        calls_.note("hlxOPCTest." + member);
        if (member == untold) throw Error(error::invalid_procedure_call);
        return value;
    }
    template <class Value> void write(const std::string& member, Value& field, const Value& value) {
        calls_.note("hlxOPCTest." + member);
        field = value;
    }

    CallLog& calls_;
};

/// The tests of the fake configuration.
class FakeTests : public hlxOPCTests, public std::enable_shared_from_this<FakeTests> {
public:
    explicit FakeTests(CallLog& calls) : calls_(calls) {}

    std::vector<std::shared_ptr<FakeTest>> entries;
    bool keeps_all = false;       ///< Remove fails
    bool drops_and_fails = false; ///< Remove fails, and has removed it all the same
    bool adds_and_fails = false;  ///< Add fails, and has added it all the same
    bool gives_nothing = false;   ///< Add gives Nothing, and has added it all the same
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
        calls_.note("hlxOPCTests.Add");
        const auto added = has(0, "", 0);
        if (adds_and_fails) throw Error(error::invalid_procedure_call);
        return gives_nothing ? nullptr : added;
    }
    hlxOPCTestPtr Item(const Variant& position) override {
        calls_.note("hlxOPCTests.Item");
        return entries.at(static_cast<std::size_t>(std::get<std::int32_t>(position)) - 1);
    }
    std::int32_t Count() override {
        calls_.note("hlxOPCTests.Count");
        return static_cast<std::int32_t>(entries.size());
    }
    void Remove(std::int32_t position) override {
        calls_.note("hlxOPCTests.Remove");
        if (keeps_all) throw Error(error::invalid_procedure_call);
        if (position < 1 || static_cast<std::size_t>(position) > entries.size())
            throw Error(error::subscript_out_of_range);
        entries.erase(entries.begin() + position - 1);
        if (drops_and_fails) throw Error(error::invalid_procedure_call);
    }
    hlxOPCConfigurationPtr Parent() override {
        calls_.note("hlxOPCTests.Parent");
        return parent.lock();
    }

private:
    CallLog& calls_;
};

inline std::int32_t FakeTest::Index() {
    calls_.note("hlxOPCTest.Index");
    std::int32_t position = 0;
    for (const auto& entry : std::dynamic_pointer_cast<FakeTests>(parent.lock())->entries) {
        ++position;
        if (entry.get() == this) return position;
    }
    return 0;
}

} // namespace brx::checks
