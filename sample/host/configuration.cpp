#include "host/configuration.h"

#include "common/trap.h"
#include "host/host.h"
#include "host/positions.h"

namespace brx::host {

std::shared_ptr<Configuration> Configuration::make(Host& host, std::weak_ptr<host::ServerEntry> server,
                                                   StoredConfiguration stored) {
    auto made = std::make_shared<Configuration>(host, std::move(server), std::move(stored));
    made->tests_ = TestList::make(host, made, made->id());
    made->descriptors_ = DescriptorList::make(host, made->id());
    made->collection_.has_stored(host.subgroups().counts(made->id()));
    return made;
}

Configuration::Configuration(Host& host, std::weak_ptr<host::ServerEntry> server, StoredConfiguration stored)
    : host_(host), server_(std::move(server)), stored_(std::move(stored)) {}

hlxOPCServerHolderPtr Configuration::Server() {
    return std::make_shared<ServerHolder>(host_.kept(server_.lock()));
}

hlxOPCTestsPtr Configuration::Tests() { return host_.kept(tests_); }

hlxOPCDescriptorsPtr Configuration::Descriptors() { return host_.kept(descriptors_); }

void Configuration::hold() {
    kept_ = Kept::nothing;
    collection_.hold();
}

void Configuration::store(std::initializer_list<ColumnValue> values) {
    host_.configurations().row(id()).write(values);
    kept_ = Kept::some;
}

template <class Value> void Configuration::write(const char* column, Value& field, const Value& value) {
    store({{column, cell_of(value)}});
    field = value;
}

void Configuration::set_SubgroupSize(std::int32_t value) {
    write("subgroup_size", stored_.subgroup_size, value);
}
void Configuration::set_SubgroupTriggerItem(const std::string& value) {
    write("subgroup_trigger_item", stored_.subgroup.trigger_item, value);
}
void Configuration::set_SubgroupInterval(std::int32_t value) {
    write("subgroup_interval", stored_.subgroup.interval, value);
}
void Configuration::set_SubgroupTimeUnit(std::int16_t value) {
    write("subgroup_time_unit", stored_.subgroup.time_unit, checked_code(value, -1, 7));
}
void Configuration::set_PieceTriggerItem(const std::string& value) {
    write("piece_trigger_item", stored_.piece.trigger_item, value);
}
void Configuration::set_PieceInterval(std::int32_t value) {
    write("piece_interval", stored_.piece.interval, value);
}
void Configuration::set_PieceTimeUnit(std::int16_t value) {
    write("piece_time_unit", stored_.piece.time_unit, checked_code(value, -1, 7));
}
void Configuration::set_SyncDateTime(Date value) { write("sync_date_time", stored_.sync_date_time, value); }
void Configuration::set_SubgroupTriggerType(std::int16_t value) {
    write("subgroup_trigger_type", stored_.subgroup.trigger_type, checked_code(value, 0, 6));
}
void Configuration::set_SubgroupTriggerValue(const Variant& value) {
    store({{"subgroup_trigger_value", value_cell_of(value)},
           {"subgroup_trigger_value_type", type_cell_of(value)}});
    stored_.subgroup.trigger_value = value;
}
void Configuration::set_PieceTriggerType(std::int16_t value) {
    write("piece_trigger_type", stored_.piece.trigger_type, checked_code(value, 0, 6));
}
/// The configuration dialog's last one.
void Configuration::set_PieceTriggerValue(const Variant& value) {
    store({{"piece_trigger_value", value_cell_of(value)}, {"piece_trigger_value_type", type_cell_of(value)}});
    stored_.piece.trigger_value = value;
    kept_ = Kept::all;
}
void Configuration::set_Name(const std::string& value) { write("name", stored_.name, value); }
void Configuration::set_Active(bool value) { write("active", stored_.active, value); }
void Configuration::set_DeadBand(float value) { write("dead_band", stored_.dead_band, value); }
void Configuration::set_UpdateRate(std::int32_t value) { write("update_rate", stored_.update_rate, value); }

/// Those that the configuration cannot do without, each once.
std::set<std::string> Configuration::items() const {
    std::set<std::string> wanted = tests_->items();
    wanted.insert({stored_.subgroup.trigger_item, stored_.piece.trigger_item});
    wanted.merge(descriptors_->items());
    wanted.erase("");
    return wanted;
}

void Configuration::add_items(OPCItems& to) {
    const std::set<std::string> wanted = items();
    if (wanted.empty()) return;
    StringArray ids;
    LongArray client_handles;
    for (const std::string& id : wanted) {
        ids.elements.push_back(id);
        client_handles.elements.push_back(static_cast<std::int32_t>(ids.elements.size()));
    }
    const AddedItems added = to.AddItems(ids, client_handles, std::nullopt, std::nullopt);
    std::int32_t position = 0;
    for (const std::string& id : wanted) {
        ++position;
        const std::int32_t handle = added.Errors.at(position) < 0 ? 0 : added.ServerHandles.at(position);
        tests_->item_added(id, handle);
        if (handle == 0) host_.log().add(Name() + ": " + id + " could not be added.");
    }
}

void Configuration::fill_group(const ObjectPtr& server, OpcSource& source) noexcept {
    drop_group();
    if (!server) return;
    attempt([&] {
        try {
            const OPCGroupsPtr groups = resolve<brx::OPCServer>(server)->OPCGroups();
            group_ = groups->Add("Configuration " + std::to_string(id()));
            add_items(*group_->OPCItems());
            subscribe(source);
        } catch (const Error& error) {
            host_.log().add(Name() + ": " + in_one_line(error));
        }
    });
}

/// An OPC group begins without a subscription, and then nothing of it ever changes.
void Configuration::subscribe(OpcSource& source) {
    subscription_ = std::make_unique<Subscription>(source.access(group_), UpdateRate(), DeadBand(),
                                                   [&source] { return source.seconds(); });
    if (!subscription_->refusal().empty())
        host_.log().add(Name() + ": The group is not subscribed, so its values are asked for: " +
                        subscription_->refusal());
}

ItemReading Configuration::reading_of(const std::string& item_id) {
    if (!subscription_) return {std::nullopt, "not connected"};
    ItemReading reading{std::nullopt, "not in the group"};
    attempt([&] { reading = subscription_->read(item_id); });
    return reading;
}

std::optional<double> Configuration::range_of(const std::string& item_id) {
    std::optional<double> range;
    if (subscription_) attempt([&] { range = subscription_->range_of(item_id); });
    return range;
}

void Configuration::drop_group() noexcept {
    subscription_ = nullptr;
    const OPCGroupPtr group = std::exchange(group_, nullptr);
    if (!group) return;
    attempt([&] { group->Parent()->OPCGroups()->Remove(group->Name()); });
}

} // namespace brx::host
