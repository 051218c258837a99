#pragma once

#include "host/fake_descriptors.h"
#include "host/fake_tests.h"

#include <memory>
#include <string>

namespace brx::checks {

/// What a configuration holds.
struct ConfigurationFields {
    std::int32_t subgroup_size = 5;
    std::string subgroup_trigger_item;
    std::int32_t subgroup_interval = 0;
    std::int16_t subgroup_time_unit = 0;
    std::string piece_trigger_item;
    std::int32_t piece_interval = 0;
    std::int16_t piece_time_unit = 0;
    Date sync_date_time;
    std::int16_t subgroup_trigger_type = 0;
    Variant subgroup_trigger_value;
    std::int16_t piece_trigger_type = 0;
    Variant piece_trigger_value;
    std::string name;
    bool active = false;
    float dead_band = 0;
    std::int32_t update_rate = 1000;
    bool operator==(const ConfigurationFields&) const = default;
};

/// What a configuration refers to its server by.
class FakeServerHolder : public hlxOPCServerHolder, public Recorded {
public:
    explicit FakeServerHolder(CallLog& calls) : Recorded(calls, "hlxOPCServerHolder") {}
    hlxOPCServerPtr entry;
    hlxOPCServerPtr ServerEntry() override { return read("ServerEntry", entry); }
};

class FakeApplication : public hlxApplication, public Recorded {
public:
    explicit FakeApplication(CallLog& calls) : Recorded(calls, "hlxApplication") {}
    ObjectPtr database;
    ObjectPtr Database() override { return read("Database", database); }
};

/// One collection configuration of the fake host.
class FakeConfiguration : public hlxOPCConfiguration, public Recorded {
public:
    explicit FakeConfiguration(CallLog& calls) : Recorded(calls, "hlxOPCConfiguration") {}

    ConfigurationFields fields;
    std::shared_ptr<FakeServerHolder> server;
    ObjectPtr group;
    std::shared_ptr<FakeTests> tests;
    std::shared_ptr<FakeDescriptors> descriptors;

    hlxOPCServerHolderPtr Server() override { return read("Server", server); }
    ObjectPtr OPCGroup() override { return read("OPCGroup", group); }
    hlxOPCDescriptorsPtr Descriptors() override { return read("Descriptors", descriptors); }
    hlxOPCTestsPtr Tests() override { return read("Tests", tests); }
    std::int32_t SubgroupSize() override { return read("SubgroupSize", fields.subgroup_size); }
    void set_SubgroupSize(std::int32_t value) override { write("SubgroupSize", fields.subgroup_size, value); }
    std::string SubgroupTriggerItem() override {
        return read("SubgroupTriggerItem", fields.subgroup_trigger_item);
    }
    void set_SubgroupTriggerItem(const std::string& value) override {
        write("SubgroupTriggerItem", fields.subgroup_trigger_item, value);
    }
    std::int32_t SubgroupInterval() override { return read("SubgroupInterval", fields.subgroup_interval); }
    void set_SubgroupInterval(std::int32_t value) override {
        write("SubgroupInterval", fields.subgroup_interval, value);
    }
    std::int16_t SubgroupTimeUnit() override { return read("SubgroupTimeUnit", fields.subgroup_time_unit); }
    void set_SubgroupTimeUnit(std::int16_t value) override {
        write("SubgroupTimeUnit", fields.subgroup_time_unit, value);
    }
    std::string PieceTriggerItem() override { return read("PieceTriggerItem", fields.piece_trigger_item); }
    void set_PieceTriggerItem(const std::string& value) override {
        write("PieceTriggerItem", fields.piece_trigger_item, value);
    }
    std::int32_t PieceInterval() override { return read("PieceInterval", fields.piece_interval); }
    void set_PieceInterval(std::int32_t value) override {
        write("PieceInterval", fields.piece_interval, value);
    }
    std::int16_t PieceTimeUnit() override { return read("PieceTimeUnit", fields.piece_time_unit); }
    void set_PieceTimeUnit(std::int16_t value) override {
        write("PieceTimeUnit", fields.piece_time_unit, value);
    }
    Date SyncDateTime() override { return read("SyncDateTime", fields.sync_date_time); }
    void set_SyncDateTime(Date value) override { write("SyncDateTime", fields.sync_date_time, value); }
    std::int16_t SubgroupTriggerType() override {
        return read("SubgroupTriggerType", fields.subgroup_trigger_type);
    }
    void set_SubgroupTriggerType(std::int16_t value) override {
        write("SubgroupTriggerType", fields.subgroup_trigger_type, value);
    }
    Variant SubgroupTriggerValue() override {
        return read("SubgroupTriggerValue", fields.subgroup_trigger_value);
    }
    void set_SubgroupTriggerValue(const Variant& value) override {
        write("SubgroupTriggerValue", fields.subgroup_trigger_value, value);
    }
    std::int16_t PieceTriggerType() override { return read("PieceTriggerType", fields.piece_trigger_type); }
    void set_PieceTriggerType(std::int16_t value) override {
        write("PieceTriggerType", fields.piece_trigger_type, value);
    }
    Variant PieceTriggerValue() override { return read("PieceTriggerValue", fields.piece_trigger_value); }
    void set_PieceTriggerValue(const Variant& value) override {
        write("PieceTriggerValue", fields.piece_trigger_value, value);
    }
    std::string Name() override { return read("Name", fields.name); }
    void set_Name(const std::string& value) override { write("Name", fields.name, value); }
    bool Active() override { return read("Active", fields.active); }
    void set_Active(bool value) override { write("Active", fields.active, value); }
    float DeadBand() override { return read("DeadBand", fields.dead_band); }
    void set_DeadBand(float value) override { write("DeadBand", fields.dead_band, value); }
    std::int32_t UpdateRate() override { return read("UpdateRate", fields.update_rate); }
    void set_UpdateRate(std::int32_t value) override { write("UpdateRate", fields.update_rate, value); }
};

} // namespace brx::checks
