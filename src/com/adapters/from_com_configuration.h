#pragma once

#include "com/adapters/com_model.h"
#include "com/adapters/enumeration.h"

namespace brx {

template <> class FromCom<hlxOPCConfiguration> final : public ComModel<hlxOPCConfiguration> {
public:
    using ComModel::ComModel;
    hlxOPCServerHolderPtr Server() override { return call<hlxOPCServerHolderPtr>(&Interface::get_Server)(); }
    ObjectPtr OPCGroup() override { return call<ObjectPtr>(&Interface::get_OPCGroup)(); }
    hlxOPCDescriptorsPtr Descriptors() override {
        return call<hlxOPCDescriptorsPtr>(&Interface::get_Descriptors)();
    }
    hlxOPCTestsPtr Tests() override { return call<hlxOPCTestsPtr>(&Interface::get_Tests)(); }
    std::int32_t SubgroupSize() override { return call<std::int32_t>(&Interface::get_SubgroupSize)(); }
    void set_SubgroupSize(std::int32_t value) override { call<void> (&Interface::put_SubgroupSize)(value); }
    std::string SubgroupTriggerItem() override {
        return call<std::string>(&Interface::get_SubgroupTriggerItem)();
    }
    void set_SubgroupTriggerItem(const std::string& value) override {
        call<void> (&Interface::put_SubgroupTriggerItem)(value);
    }
    std::int32_t SubgroupInterval() override {
        return call<std::int32_t>(&Interface::get_SubgroupInterval)();
    }
    void set_SubgroupInterval(std::int32_t value) override {
        call<void> (&Interface::put_SubgroupInterval)(value);
    }
    std::int16_t SubgroupTimeUnit() override {
        return call<std::int16_t>(&Interface::get_SubgroupTimeUnit)();
    }
    void set_SubgroupTimeUnit(std::int16_t value) override {
        call<void> (&Interface::put_SubgroupTimeUnit)(value);
    }
    std::string PieceTriggerItem() override { return call<std::string>(&Interface::get_PieceTriggerItem)(); }
    void set_PieceTriggerItem(const std::string& value) override {
        call<void> (&Interface::put_PieceTriggerItem)(value);
    }
    std::int32_t PieceInterval() override { return call<std::int32_t>(&Interface::get_PieceInterval)(); }
    void set_PieceInterval(std::int32_t value) override { call<void> (&Interface::put_PieceInterval)(value); }
    std::int16_t PieceTimeUnit() override { return call<std::int16_t>(&Interface::get_PieceTimeUnit)(); }
    void set_PieceTimeUnit(std::int16_t value) override { call<void> (&Interface::put_PieceTimeUnit)(value); }
    Date SyncDateTime() override { return call<Date>(&Interface::get_SyncDateTime)(); }
    void set_SyncDateTime(Date value) override { call<void> (&Interface::put_SyncDateTime)(value); }
    std::int16_t SubgroupTriggerType() override {
        return call<std::int16_t>(&Interface::get_SubgroupTriggerType)();
    }
    void set_SubgroupTriggerType(std::int16_t value) override {
        call<void> (&Interface::put_SubgroupTriggerType)(value);
    }
    Variant SubgroupTriggerValue() override { return call<Variant>(&Interface::get_SubgroupTriggerValue)(); }
    void set_SubgroupTriggerValue(const Variant& value) override {
        call<void> (&Interface::put_SubgroupTriggerValue)(value);
    }
    std::int16_t PieceTriggerType() override {
        return call<std::int16_t>(&Interface::get_PieceTriggerType)();
    }
    void set_PieceTriggerType(std::int16_t value) override {
        call<void> (&Interface::put_PieceTriggerType)(value);
    }
    Variant PieceTriggerValue() override { return call<Variant>(&Interface::get_PieceTriggerValue)(); }
    void set_PieceTriggerValue(const Variant& value) override {
        call<void> (&Interface::put_PieceTriggerValue)(value);
    }
    std::string Name() override { return call<std::string>(&Interface::get_Name)(); }
    void set_Name(const std::string& value) override { call<void> (&Interface::put_Name)(value); }
    bool Active() override { return call<bool>(&Interface::get_Active)(); }
    void set_Active(bool value) override { call<void> (&Interface::put_Active)(value); }
    float DeadBand() override { return call<float>(&Interface::get_DeadBand)(); }
    void set_DeadBand(float value) override { call<void> (&Interface::put_DeadBand)(value); }
    std::int32_t UpdateRate() override { return call<std::int32_t>(&Interface::get_UpdateRate)(); }
    void set_UpdateRate(std::int32_t value) override { call<void> (&Interface::put_UpdateRate)(value); }
};

template <> class FromCom<hlxOPCTests> final : public ComModel<hlxOPCTests> {
public:
    using ComModel::ComModel;
    hlxOPCTestPtr Add() override { return call<hlxOPCTestPtr>(&Interface::Add)(); }
    hlxOPCTestPtr Item(const Variant& position) override {
        return call<hlxOPCTestPtr>(&Interface::get_Item)(position);
    }
    std::int32_t Count() override { return call<std::int32_t>(&Interface::get_Count)(); }
    void Remove(std::int32_t position) override { call<void> (&Interface::Remove)(position); }
    hlxOPCConfigurationPtr Parent() override {
        return call<hlxOPCConfigurationPtr>(&Interface::get_Parent)();
    }
};

template <> class FromCom<hlxOPCTest> final : public ComModel<hlxOPCTest> {
public:
    using ComModel::ComModel;
    std::int32_t State() override { return call<std::int32_t>(&Interface::get_State)(); }
    void set_State(std::int32_t value) override { call<void> (&Interface::put_State)(value); }
    hlxOPCTestsPtr Parent() override { return call<hlxOPCTestsPtr>(&Interface::get_Parent)(); }
    std::int32_t Index() override { return call<std::int32_t>(&Interface::get_Index)(); }
    ObjectPtr TestData() override { return call<ObjectPtr>(&Interface::get_TestData)(); }
    std::string OPCItemID() override { return call<std::string>(&Interface::get_OPCItemID)(); }
    void set_OPCItemID(const std::string& value) override { call<void> (&Interface::put_OPCItemID)(value); }
    std::string ItemText() override { return call<std::string>(&Interface::get_ItemText)(); }
    std::int32_t ClientHandle() override { return call<std::int32_t>(&Interface::get_ClientHandle)(); }
    void set_ClientHandle(std::int32_t value) override { call<void> (&Interface::put_ClientHandle)(value); }
    bool ItemTrigger() override { return call<bool>(&Interface::get_ItemTrigger)(); }
    void set_ItemTrigger(bool value) override { call<void> (&Interface::put_ItemTrigger)(value); }
    std::int16_t TriggerExpression() override {
        return call<std::int16_t>(&Interface::get_TriggerExpression)();
    }
    void set_TriggerExpression(std::int16_t value) override {
        call<void> (&Interface::put_TriggerExpression)(value);
    }
    Variant TriggerValue() override { return call<Variant>(&Interface::get_TriggerValue)(); }
    void set_TriggerValue(const Variant& value) override { call<void> (&Interface::put_TriggerValue)(value); }
    double Constant() override { return call<double>(&Interface::get_Constant)(); }
    void set_Constant(double value) override { call<void> (&Interface::put_Constant)(value); }
    std::int16_t SaveAs() override { return call<std::int16_t>(&Interface::get_SaveAs)(); }
    void set_SaveAs(std::int16_t value) override { call<void> (&Interface::put_SaveAs)(value); }
    std::string CharacteristicName() override {
        return call<std::string>(&Interface::get_CharacteristicName)();
    }
};

template <> class FromCom<hlxOPCDescriptors> final : public ComModel<hlxOPCDescriptors> {
public:
    using ComModel::ComModel;
    std::unique_ptr<Enumerator<hlxOPCDescriptor>> NewEnum() override {
        com_ptr<IUnknown> object;
        require(called().get__NewEnum(object.out()), "_NewEnum");
        auto enumerator = object.as<IEnumVARIANT>();
        if (!enumerator) throw Error(error::type_mismatch);
        return std::make_unique<ComEnumerator<hlxOPCDescriptor>>(std::move(enumerator));
    }
    hlxOPCDescriptorPtr Add(std::int32_t type) override {
        return call<hlxOPCDescriptorPtr>(&Interface::Add)(type);
    }
    hlxOPCDescriptorPtr Item(const Variant& position) override {
        return call<hlxOPCDescriptorPtr>(&Interface::get_Item)(position);
    }
    std::int32_t Count() override { return call<std::int32_t>(&Interface::get_Count)(); }
    void Remove(std::int32_t position) override { call<void> (&Interface::Remove)(position); }
};

template <> class FromCom<hlxOPCDescriptor> final : public ComModel<hlxOPCDescriptor> {
public:
    using ComModel::ComModel;
    std::int32_t Index() override { return call<std::int32_t>(&Interface::get_Index)(); }
    std::int32_t Type() override { return call<std::int32_t>(&Interface::get_Type)(); }
    std::string ItemName() override { return call<std::string>(&Interface::get_ItemName)(); }
    void set_ItemName(const std::string& value) override { call<void> (&Interface::put_ItemName)(value); }
    std::string GroupName() override { return call<std::string>(&Interface::get_GroupName)(); }
    void set_GroupName(const std::string& value) override { call<void> (&Interface::put_GroupName)(value); }
};

} // namespace brx
