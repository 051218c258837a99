#pragma once

#include "common/model/configuration.h"
#include "host/configuration_store.h"
#include "host/record_store.h"

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace brx::host {

class Configuration;
class Host;
class TestList;

/// One test of a configuration. What is written is stored at once; a write that fails changes nothing, and
/// every write fails once the test has been removed.
class CollectionTest final : public hlxOPCTest, public std::enable_shared_from_this<CollectionTest> {
public:
    /// The state of a test whose item the server did not let into the group.
    static constexpr std::int32_t item_not_added = 2;

    CollectionTest(Host& host, std::weak_ptr<TestList> tests, StoredTest stored)
        : host_(host), tests_(std::move(tests)), stored_(std::move(stored)) {}

    std::int32_t State() override { return stored_.state; }
    void set_State(std::int32_t value) override;
    hlxOPCTestsPtr Parent() override;
    std::int32_t Index() override;
    ObjectPtr TestData() override;
    std::string OPCItemID() override { return stored_.item_id; }
    std::string ItemText() override { return stored_.item_id; }
    void set_OPCItemID(const std::string& value) override;
    std::int32_t ClientHandle() override { return stored_.client_handle; }
    void set_ClientHandle(std::int32_t value) override;
    void set_ItemTrigger(bool value) override;
    bool ItemTrigger() override { return stored_.item_trigger; }
    std::int16_t TriggerExpression() override { return stored_.trigger_expression; }
    void set_TriggerExpression(std::int16_t value) override;
    Variant TriggerValue() override { return stored_.trigger_value; }
    void set_TriggerValue(const Variant& value) override;
    double Constant() override { return stored_.constant; }
    void set_Constant(double value) override;
    std::int16_t SaveAs() override { return stored_.save_as; }
    void set_SaveAs(std::int16_t value) override;
    std::string CharacteristicName() override;

    std::int64_t id() const { return stored_.id; }
    /// 0 for none.
    std::int64_t characteristic_id() const { return stored_.characteristic_id; }
    /// The item is in the group by this handle of the server's, or with 0 is not. Holds until the next time.
    void item_added(std::int32_t server_handle);
    void leave() { tests_.reset(); }

private:
    template <class Value> void write(const char* column, Value& field, const Value& value);
    void save_characteristic(std::int32_t id);
    StoredRecord characteristic() const;

    Host& host_;
    std::weak_ptr<TestList> tests_;
    StoredTest stored_;
};

/// The tests of a configuration.
class TestList final : public hlxOPCTests, public std::enable_shared_from_this<TestList> {
public:
    static std::shared_ptr<TestList> make(Host& host, std::weak_ptr<Configuration> configuration,
                                          std::int64_t configuration_id);
    TestList(Host& host, std::weak_ptr<Configuration> configuration, std::int64_t configuration_id)
        : host_(host), configuration_(std::move(configuration)), configuration_id_(configuration_id) {}

    hlxOPCTestPtr Add() override;
    hlxOPCTestPtr Item(const Variant& position) override;
    std::int32_t Count() override { return static_cast<std::int32_t>(tests_.size()); }
    void Remove(std::int32_t position) override;
    hlxOPCConfigurationPtr Parent() override;

    std::int32_t position(const CollectionTest* test) const;
    const std::vector<std::shared_ptr<CollectionTest>>& all() const { return tests_; }
    /// The items that the tests are bound to.
    std::set<std::string> items() const;
    /// Tells every test of the item.
    void item_added(const std::string& item_id, std::int32_t server_handle);

private:
    Host& host_;
    std::weak_ptr<Configuration> configuration_;
    std::int64_t configuration_id_;
    std::vector<std::shared_ptr<CollectionTest>> tests_;
};

} // namespace brx::host
