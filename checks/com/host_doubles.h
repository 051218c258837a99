#pragma once

#include "com/doubles.h"

namespace brx::checks {

template <> class DoubleOf<hlxApplication> : public hlxApplication, public Double {
public:
    ObjectPtr Database() override { return answer<ObjectPtr>("Database"); }
};

template <> class DoubleOf<hlxOPCServers> : public hlxOPCServers, public Double {
public:
    ObjectPtr Parent() override { return answer<ObjectPtr>("Parent"); }
    hlxOPCServerPtr Add(const std::string& server_name, const std::string& node, bool connect) override {
        return answer<hlxOPCServerPtr>("Add", server_name, node, connect);
    }
    std::string LastError() override { return answer<std::string>("LastError"); }
    hlxOPCServerPtr Item(const Variant& index) override { return answer<hlxOPCServerPtr>("Item", index); }
    std::int32_t Count() override { return answer<std::int32_t>("Count"); }
};

template <> class DoubleOf<hlxOPCServer> : public hlxOPCServer, public Double {
public:
    std::string ServerName() override { return answer<std::string>("ServerName"); }
    std::string Node() override { return answer<std::string>("Node"); }
    ObjectPtr Parent() override { return answer<ObjectPtr>("Parent"); }
    ObjectPtr OPCServer() override { return answer<ObjectPtr>("OPCServer"); }
};

template <> class DoubleOf<hlxOPCServerHolder> : public hlxOPCServerHolder, public Double {
public:
    hlxOPCServerPtr ServerEntry() override { return answer<hlxOPCServerPtr>("ServerEntry"); }
};

template <> class DoubleOf<hlxOPCConfiguration> : public hlxOPCConfiguration, public Double {
public:
    hlxOPCServerHolderPtr Server() override { return answer<hlxOPCServerHolderPtr>("Server"); }
    ObjectPtr OPCGroup() override { return answer<ObjectPtr>("OPCGroup"); }
    hlxOPCDescriptorsPtr Descriptors() override { return answer<hlxOPCDescriptorsPtr>("Descriptors"); }
    hlxOPCTestsPtr Tests() override { return answer<hlxOPCTestsPtr>("Tests"); }
    std::int32_t SubgroupSize() override { return answer<std::int32_t>("SubgroupSize"); }
    void set_SubgroupSize(std::int32_t value) override { put("SubgroupSize", value); }
    std::string SubgroupTriggerItem() override { return answer<std::string>("SubgroupTriggerItem"); }
    void set_SubgroupTriggerItem(const std::string& value) override { put("SubgroupTriggerItem", value); }
    std::int32_t SubgroupInterval() override { return answer<std::int32_t>("SubgroupInterval"); }
    void set_SubgroupInterval(std::int32_t value) override { put("SubgroupInterval", value); }
    std::int16_t SubgroupTimeUnit() override { return answer<std::int16_t>("SubgroupTimeUnit"); }
    void set_SubgroupTimeUnit(std::int16_t value) override { put("SubgroupTimeUnit", value); }
    std::string PieceTriggerItem() override { return answer<std::string>("PieceTriggerItem"); }
    void set_PieceTriggerItem(const std::string& value) override { put("PieceTriggerItem", value); }
    std::int32_t PieceInterval() override { return answer<std::int32_t>("PieceInterval"); }
    void set_PieceInterval(std::int32_t value) override { put("PieceInterval", value); }
    std::int16_t PieceTimeUnit() override { return answer<std::int16_t>("PieceTimeUnit"); }
    void set_PieceTimeUnit(std::int16_t value) override { put("PieceTimeUnit", value); }
    Date SyncDateTime() override { return answer<Date>("SyncDateTime"); }
    void set_SyncDateTime(Date value) override { put("SyncDateTime", value); }
    std::int16_t SubgroupTriggerType() override { return answer<std::int16_t>("SubgroupTriggerType"); }
    void set_SubgroupTriggerType(std::int16_t value) override { put("SubgroupTriggerType", value); }
    Variant SubgroupTriggerValue() override { return answer<Variant>("SubgroupTriggerValue"); }
    void set_SubgroupTriggerValue(const Variant& value) override { put("SubgroupTriggerValue", value); }
    std::int16_t PieceTriggerType() override { return answer<std::int16_t>("PieceTriggerType"); }
    void set_PieceTriggerType(std::int16_t value) override { put("PieceTriggerType", value); }
    Variant PieceTriggerValue() override { return answer<Variant>("PieceTriggerValue"); }
    void set_PieceTriggerValue(const Variant& value) override { put("PieceTriggerValue", value); }
    std::string Name() override { return answer<std::string>("Name"); }
    void set_Name(const std::string& value) override { put("Name", value); }
    bool Active() override { return answer<bool>("Active"); }
    void set_Active(bool value) override { put("Active", value); }
    float DeadBand() override { return answer<float>("DeadBand"); }
    void set_DeadBand(float value) override { put("DeadBand", value); }
    std::int32_t UpdateRate() override { return answer<std::int32_t>("UpdateRate"); }
    void set_UpdateRate(std::int32_t value) override { put("UpdateRate", value); }
};

template <> class DoubleOf<hlxOPCTests> : public hlxOPCTests, public Double {
public:
    hlxOPCTestPtr Add() override { return answer<hlxOPCTestPtr>("Add"); }
    hlxOPCTestPtr Item(const Variant& position) override { return answer<hlxOPCTestPtr>("Item", position); }
    std::int32_t Count() override { return answer<std::int32_t>("Count"); }
    void Remove(std::int32_t position) override { note("Remove", Variant(position)); }
    hlxOPCConfigurationPtr Parent() override { return answer<hlxOPCConfigurationPtr>("Parent"); }
};

template <> class DoubleOf<hlxOPCTest> : public hlxOPCTest, public Double {
public:
    std::int32_t State() override { return answer<std::int32_t>("State"); }
    void set_State(std::int32_t value) override { put("State", value); }
    hlxOPCTestsPtr Parent() override { return answer<hlxOPCTestsPtr>("Parent"); }
    std::int32_t Index() override { return answer<std::int32_t>("Index"); }
    ObjectPtr TestData() override { return answer<ObjectPtr>("TestData"); }
    std::string OPCItemID() override { return answer<std::string>("OPCItemID"); }
    void set_OPCItemID(const std::string& value) override { put("OPCItemID", value); }
    std::string ItemText() override { return answer<std::string>("ItemText"); }
    std::int32_t ClientHandle() override { return answer<std::int32_t>("ClientHandle"); }
    void set_ClientHandle(std::int32_t value) override { put("ClientHandle", value); }
    bool ItemTrigger() override { return answer<bool>("ItemTrigger"); }
    void set_ItemTrigger(bool value) override { put("ItemTrigger", value); }
    std::int16_t TriggerExpression() override { return answer<std::int16_t>("TriggerExpression"); }
    void set_TriggerExpression(std::int16_t value) override { put("TriggerExpression", value); }
    Variant TriggerValue() override { return answer<Variant>("TriggerValue"); }
    void set_TriggerValue(const Variant& value) override { put("TriggerValue", value); }
    double Constant() override { return answer<double>("Constant"); }
    void set_Constant(double value) override { put("Constant", value); }
    std::int16_t SaveAs() override { return answer<std::int16_t>("SaveAs"); }
    void set_SaveAs(std::int16_t value) override { put("SaveAs", value); }
    std::string CharacteristicName() override { return answer<std::string>("CharacteristicName"); }
};

template <> class DoubleOf<hlxOPCDescriptors> : public hlxOPCDescriptors, public Double {
public:
    std::vector<hlxOPCDescriptorPtr> elements;

    std::unique_ptr<Enumerator<hlxOPCDescriptor>> NewEnum() override {
        note("NewEnum");
        return std::make_unique<Each>(*this);
    }
    hlxOPCDescriptorPtr Add(std::int32_t type) override { return answer<hlxOPCDescriptorPtr>("Add", type); }
    hlxOPCDescriptorPtr Item(const Variant& position) override {
        return answer<hlxOPCDescriptorPtr>("Item", position);
    }
    std::int32_t Count() override { return answer<std::int32_t>("Count"); }
    void Remove(std::int32_t position) override { note("Remove", Variant(position)); }

private:
    class Each final : public Enumerator<hlxOPCDescriptor> {
    public:
        explicit Each(DoubleOf& collection) : collection_(collection) {}
        hlxOPCDescriptorPtr Next() override {
            collection_.note("Next");
            return next_ < collection_.elements.size() ? collection_.elements[next_++] : nullptr;
        }

    private:
        DoubleOf& collection_;
        std::size_t next_ = 0;
    };
};

template <> class DoubleOf<hlxOPCDescriptor> : public hlxOPCDescriptor, public Double {
public:
    std::int32_t Index() override { return answer<std::int32_t>("Index"); }
    std::int32_t Type() override { return answer<std::int32_t>("Type"); }
    std::string ItemName() override { return answer<std::string>("ItemName"); }
    void set_ItemName(const std::string& value) override { put("ItemName", value); }
    std::string GroupName() override { return answer<std::string>("GroupName"); }
    void set_GroupName(const std::string& value) override { put("GroupName", value); }
};

template <> class DoubleOf<hlxDatabase> : public hlxDatabase, public Double { public: };

template <> class DoubleOf<hlxTestData> : public hlxTestData, public Double {
public:
    std::int32_t ID() override { return answer<std::int32_t>("ID"); }
    void set_ID(std::int32_t value) override { put("ID", value); }
    std::int32_t GroupID() override { return answer<std::int32_t>("GroupID"); }
    std::string Name() override { return answer<std::string>("Name"); }
    void set_Flag(std::int16_t value) override { put("Flag", value); }
    void set_Mode(std::int16_t value) override { put("Mode", value); }
    bool Load(const hlxDatabasePtr& database) override { return answer<bool>("Load", ObjectPtr(database)); }
    void Save(const hlxDatabasePtr& database) override { note("Save", Variant(ObjectPtr(database))); }
};

template <> class DoubleOf<hlxRecord> : public hlxRecord, public Double {
public:
    std::int32_t ID() override { return answer<std::int32_t>("ID"); }
    void set_ID(std::int32_t value) override { put("ID", value); }
    std::string Name() override { return answer<std::string>("Name"); }
    void set_Name(const std::string& value) override { put("Name", value); }
    std::int32_t GroupID() override { return answer<std::int32_t>("GroupID"); }
    void set_GroupID(std::int32_t value) override { put("GroupID", value); }
    void set_SearchFlag(std::int16_t value) override { put("SearchFlag", value); }
    bool Load(const hlxDatabasePtr& database) override { return answer<bool>("Load", ObjectPtr(database)); }
};

template <> class DoubleOf<hlxSelection> : public hlxSelection, public Double {
public:
    bool Show(const hlxDatabasePtr& database, std::int32_t id, std::int32_t group_id) override {
        return answer<bool>("Show", ObjectPtr(database), id, group_id);
    }
    ObjectPtr Record() override { return answer<ObjectPtr>("Record"); }
};

template <> class DoubleOf<hlxMessage> : public hlxMessage, public Double {
public:
    std::int32_t Show(const std::string& text, std::int32_t style, const std::string& title,
                      const Variant& default_button) override {
        return answer<std::int32_t>("Show", text, style, title, default_button);
    }
};

template <> class DoubleOf<hlxHelp> : public hlxHelp, public Double {
public:
    std::string HelpFile() override { return answer<std::string>("HelpFile"); }
};

} // namespace brx::checks
