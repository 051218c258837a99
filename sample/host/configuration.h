#pragma once

#include "common/model/opc_automation.h"
#include "host/collection.h"
#include "host/configuration_descriptors.h"
#include "host/configuration_tests.h"
#include "host/subscription.h"

#include <memory>
#include <set>

namespace brx::host {

class Host;
class ServerEntry;

/// How much of a configuration's settings a dialog has written since it was opened: the last one comes only
/// after all others.
enum class Kept { nothing, some, all };

/// One collection configuration of a server. What is written is stored at once; a write that fails changes
/// nothing.
class Configuration final : public hlxOPCConfiguration, public std::enable_shared_from_this<Configuration> {
public:
    /// With the tests and descriptors that the file has of it.
    static std::shared_ptr<Configuration> make(Host& host, std::weak_ptr<ServerEntry> server,
                                               StoredConfiguration stored);
    Configuration(Host& host, std::weak_ptr<ServerEntry> server, StoredConfiguration stored);

    hlxOPCServerHolderPtr Server() override;
    ObjectPtr OPCGroup() override { return group_; }
    hlxOPCDescriptorsPtr Descriptors() override;
    hlxOPCTestsPtr Tests() override;
    std::int32_t SubgroupSize() override { return stored_.subgroup_size; }
    void set_SubgroupSize(std::int32_t value) override;
    std::string SubgroupTriggerItem() override { return stored_.subgroup.trigger_item; }
    void set_SubgroupTriggerItem(const std::string& value) override;
    std::int32_t SubgroupInterval() override { return stored_.subgroup.interval; }
    void set_SubgroupInterval(std::int32_t value) override;
    std::int16_t SubgroupTimeUnit() override { return stored_.subgroup.time_unit; }
    void set_SubgroupTimeUnit(std::int16_t value) override;
    std::string PieceTriggerItem() override { return stored_.piece.trigger_item; }
    void set_PieceTriggerItem(const std::string& value) override;
    std::int32_t PieceInterval() override { return stored_.piece.interval; }
    void set_PieceInterval(std::int32_t value) override;
    std::int16_t PieceTimeUnit() override { return stored_.piece.time_unit; }
    void set_PieceTimeUnit(std::int16_t value) override;
    Date SyncDateTime() override { return stored_.sync_date_time; }
    void set_SyncDateTime(Date value) override;
    std::int16_t SubgroupTriggerType() override { return stored_.subgroup.trigger_type; }
    void set_SubgroupTriggerType(std::int16_t value) override;
    Variant SubgroupTriggerValue() override { return stored_.subgroup.trigger_value; }
    void set_SubgroupTriggerValue(const Variant& value) override;
    std::int16_t PieceTriggerType() override { return stored_.piece.trigger_type; }
    void set_PieceTriggerType(std::int16_t value) override;
    Variant PieceTriggerValue() override { return stored_.piece.trigger_value; }
    void set_PieceTriggerValue(const Variant& value) override;
    std::string Name() override { return stored_.name; }
    void set_Name(const std::string& value) override;
    bool Active() override { return stored_.active; }
    void set_Active(bool value) override;
    float DeadBand() override { return stored_.dead_band; }
    void set_DeadBand(float value) override;
    std::int32_t UpdateRate() override { return stored_.update_rate; }
    void set_UpdateRate(std::int32_t value) override;

    std::int64_t id() const { return stored_.id; }
    TestList& tests() { return *tests_; }
    DescriptorList& descriptors() { return *descriptors_; }
    Collection& collection() { return collection_; }
    /// A dialog opens on it: nothing is collected meanwhile, and what the dialog keeps is noted afresh.
    void hold();
    Kept kept() const { return kept_; }
    /// Makes the group anew with the items of the tests, triggers and descriptors; none without a connected
    /// server. Never fails: what cannot be had is told in the log and by the tests' states.
    void fill_group(const ObjectPtr& server, OpcSource& source) noexcept;
    void drop_group() noexcept;
    /// What an item of the group says now.
    ItemReading reading_of(const std::string& item_id);
    /// How far its values can lie apart; none when that is not known.
    std::optional<double> range_of(const std::string& item_id);

private:
    template <class Value> void write(const char* column, Value& field, const Value& value);
    void store(std::initializer_list<ColumnValue> values);
    std::set<std::string> items() const;
    void add_items(OPCItems& to);
    void subscribe(OpcSource& source);

    Host& host_;
    std::weak_ptr<ServerEntry> server_;
    StoredConfiguration stored_;
    std::shared_ptr<TestList> tests_;
    std::shared_ptr<DescriptorList> descriptors_;
    Collection collection_{*this};
    Kept kept_ = Kept::nothing;
    OPCGroupPtr group_; ///< null while the server is not connected
    std::unique_ptr<Subscription> subscription_;
};

/// What a configuration refers to its server by.
class ServerHolder final : public hlxOPCServerHolder {
public:
    explicit ServerHolder(hlxOPCServerPtr entry) : entry_(std::move(entry)) {}
    hlxOPCServerPtr ServerEntry() override { return entry_; }

private:
    hlxOPCServerPtr entry_;
};

} // namespace brx::host
