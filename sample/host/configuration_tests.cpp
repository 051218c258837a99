#include "host/configuration_tests.h"

#include "host/host.h"
#include "host/positions.h"
#include "host/records.h"

namespace brx::host {

template <class Value> void CollectionTest::write(const char* column, Value& field, const Value& value) {
    host_.configurations().test_row(id()).write({{column, cell_of(value)}});
    field = value;
}

void CollectionTest::set_State(std::int32_t value) { write("state", stored_.state, value); }
void CollectionTest::set_OPCItemID(const std::string& value) { write("item_id", stored_.item_id, value); }
void CollectionTest::set_ClientHandle(std::int32_t value) {
    write("client_handle", stored_.client_handle, value);
}
void CollectionTest::set_ItemTrigger(bool value) { write("item_trigger", stored_.item_trigger, value); }
void CollectionTest::set_TriggerExpression(std::int16_t value) {
    write("trigger_expression", stored_.trigger_expression, checked_code(value, 0, 6));
}
void CollectionTest::set_TriggerValue(const Variant& value) {
    host_.configurations().test_row(id()).write(
        {{"trigger_value", value_cell_of(value)}, {"trigger_value_type", type_cell_of(value)}});
    stored_.trigger_value = value;
}
void CollectionTest::set_Constant(double value) { write("constant_value", stored_.constant, value); }
void CollectionTest::set_SaveAs(std::int16_t value) {
    write("save_as", stored_.save_as, checked_code(value, 0, 3));
}

hlxOPCTestsPtr CollectionTest::Parent() { return host_.kept(tests_.lock()); }

std::int32_t CollectionTest::Index() {
    const auto tests = tests_.lock();
    return tests ? tests->position(this) : 0;
}

StoredRecord CollectionTest::characteristic() const {
    const auto found = host_.records(RecordKind::characteristic).record(stored_.characteristic_id);
    return found.value_or(StoredRecord{});
}

std::string CollectionTest::CharacteristicName() { return characteristic().name; }

ObjectPtr CollectionTest::TestData() {
    const auto self = host_.kept(shared_from_this());
    return std::make_shared<host::TestData>(host_.database(), characteristic(),
                                            [self](std::int32_t id) { self->save_characteristic(id); });
}

void CollectionTest::save_characteristic(std::int32_t characteristic_id) {
    if (characteristic_id != 0 && !host_.records(RecordKind::characteristic).record(characteristic_id))
        throw Error(error::invalid_procedure_call,
                    "There is no characteristic " + std::to_string(characteristic_id) + ".", "brxSample");
    host_.configurations().test_row(id()).write(
        {{"characteristic_id", characteristic_id == 0 ? Cell() : cell_of(characteristic_id)}});
    stored_.characteristic_id = characteristic_id;
}

/// Not stored: it is found out anew with every connection.
void CollectionTest::item_added(std::int32_t server_handle) {
    stored_.client_handle = server_handle;
    if (server_handle == 0)
        stored_.state = item_not_added;
    else if (stored_.state == item_not_added)
        stored_.state = 1;
}

std::shared_ptr<TestList> TestList::make(Host& host, std::weak_ptr<host::Configuration> configuration,
                                         std::int64_t configuration_id) {
    auto made = std::make_shared<TestList>(host, std::move(configuration), configuration_id);
    for (StoredTest& stored : host.configurations().tests_of(configuration_id))
        made->tests_.push_back(std::make_shared<CollectionTest>(host, made, std::move(stored)));
    return made;
}

hlxOPCTestPtr TestList::Add() {
    tests_.reserve(tests_.size() + 1); // nothing may fail once it is stored
    const auto added = std::make_shared<CollectionTest>(host_, weak_from_this(),
                                                        host_.configurations().add_test(configuration_id_));
    tests_.push_back(added);
    return host_.kept(added);
}

hlxOPCTestPtr TestList::Item(const Variant& position) {
    return host_.kept(tests_[index_of(tests_, position_in(position))]);
}

void TestList::Remove(std::int32_t position) {
    const std::size_t index = index_of(tests_, position);
    host_.configurations().remove_test(tests_[index]->id());
    tests_[index]->leave();
    erase_at(tests_, index);
}

hlxOPCConfigurationPtr TestList::Parent() { return host_.kept(configuration_.lock()); }

std::int32_t TestList::position(const CollectionTest* test) const { return position_of(tests_, test); }

std::set<std::string> TestList::items() const {
    std::set<std::string> found;
    for (const auto& test : tests_) found.insert(test->OPCItemID());
    return found;
}

void TestList::item_added(const std::string& item_id, std::int32_t server_handle) {
    for (const auto& test : tests_)
        if (test->OPCItemID() == item_id) test->item_added(server_handle);
}

} // namespace brx::host
