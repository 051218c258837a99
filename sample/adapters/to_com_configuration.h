#pragma once

#include "adapters/enumerator_com.h"
#include "adapters/model_com.h"

namespace brx {

template <>
class ToCom<hlxOPCConfiguration> final : public ModelCom<hlxOPCConfiguration, brxModel::hlxOPCConfiguration> {
public:
    using ModelCom::ModelCom;
    STDMETHODIMP get_Server(_hlxOPCServerHolder** result) override { return give(result, &Model::Server); }
    STDMETHODIMP get_OPCGroup(IDispatch** result) override { return give(result, &Model::OPCGroup); }
    STDMETHODIMP get_Descriptors(_hlxOPCDescriptors** result) override {
        return give(result, &Model::Descriptors);
    }
    STDMETHODIMP get_Tests(_hlxOPCTests** result) override { return give(result, &Model::Tests); }
    STDMETHODIMP get_SubgroupSize(LONG* result) override { return give(result, &Model::SubgroupSize); }
    STDMETHODIMP put_SubgroupSize(LONG value) override { return take(&Model::set_SubgroupSize, value); }
    STDMETHODIMP get_SubgroupTriggerItem(BSTR* result) override {
        return give(result, &Model::SubgroupTriggerItem);
    }
    STDMETHODIMP put_SubgroupTriggerItem(BSTR value) override {
        return take(&Model::set_SubgroupTriggerItem, value);
    }
    STDMETHODIMP get_SubgroupInterval(LONG* result) override {
        return give(result, &Model::SubgroupInterval);
    }
    STDMETHODIMP put_SubgroupInterval(LONG value) override {
        return take(&Model::set_SubgroupInterval, value);
    }
    STDMETHODIMP get_SubgroupTimeUnit(SHORT* result) override {
        return give(result, &Model::SubgroupTimeUnit);
    }
    STDMETHODIMP put_SubgroupTimeUnit(SHORT value) override {
        return take(&Model::set_SubgroupTimeUnit, value);
    }
    STDMETHODIMP get_PieceTriggerItem(BSTR* result) override {
        return give(result, &Model::PieceTriggerItem);
    }
    STDMETHODIMP put_PieceTriggerItem(BSTR value) override {
        return take(&Model::set_PieceTriggerItem, value);
    }
    STDMETHODIMP get_PieceInterval(LONG* result) override { return give(result, &Model::PieceInterval); }
    STDMETHODIMP put_PieceInterval(LONG value) override { return take(&Model::set_PieceInterval, value); }
    STDMETHODIMP get_PieceTimeUnit(SHORT* result) override { return give(result, &Model::PieceTimeUnit); }
    STDMETHODIMP put_PieceTimeUnit(SHORT value) override { return take(&Model::set_PieceTimeUnit, value); }
    STDMETHODIMP get_SyncDateTime(DATE* result) override { return give(result, &Model::SyncDateTime); }
    STDMETHODIMP put_SyncDateTime(DATE value) override { return take(&Model::set_SyncDateTime, value); }
    STDMETHODIMP get_SubgroupTriggerType(SHORT* result) override {
        return give(result, &Model::SubgroupTriggerType);
    }
    STDMETHODIMP put_SubgroupTriggerType(SHORT value) override {
        return take(&Model::set_SubgroupTriggerType, value);
    }
    STDMETHODIMP get_SubgroupTriggerValue(VARIANT* result) override {
        return give(result, &Model::SubgroupTriggerValue);
    }
    STDMETHODIMP put_SubgroupTriggerValue(VARIANT value) override {
        return take(&Model::set_SubgroupTriggerValue, value);
    }
    STDMETHODIMP get_PieceTriggerType(SHORT* result) override {
        return give(result, &Model::PieceTriggerType);
    }
    STDMETHODIMP put_PieceTriggerType(SHORT value) override {
        return take(&Model::set_PieceTriggerType, value);
    }
    STDMETHODIMP get_PieceTriggerValue(VARIANT* result) override {
        return give(result, &Model::PieceTriggerValue);
    }
    STDMETHODIMP put_PieceTriggerValue(VARIANT value) override {
        return take(&Model::set_PieceTriggerValue, value);
    }
    STDMETHODIMP get_Name(BSTR* result) override { return give(result, &Model::Name); }
    STDMETHODIMP put_Name(BSTR value) override { return take(&Model::set_Name, value); }
    STDMETHODIMP get_Active(VARIANT_BOOL* result) override { return give(result, &Model::Active); }
    STDMETHODIMP put_Active(VARIANT_BOOL value) override { return take(&Model::set_Active, value); }
    STDMETHODIMP get_DeadBand(FLOAT* result) override { return give(result, &Model::DeadBand); }
    STDMETHODIMP put_DeadBand(FLOAT value) override { return take(&Model::set_DeadBand, value); }
    STDMETHODIMP get_UpdateRate(LONG* result) override { return give(result, &Model::UpdateRate); }
    STDMETHODIMP put_UpdateRate(LONG value) override { return take(&Model::set_UpdateRate, value); }
};

template <> class ToCom<hlxOPCTests> final : public ModelCom<hlxOPCTests, brxModel::hlxOPCTests> {
public:
    using ModelCom::ModelCom;
    STDMETHODIMP Add(_hlxOPCTest** result) override { return give(result, &Model::Add); }
    STDMETHODIMP get_Item(VARIANT position, _hlxOPCTest** result) override {
        return give(result, &Model::Item, position);
    }
    STDMETHODIMP get_Count(LONG* result) override { return give(result, &Model::Count); }
    STDMETHODIMP Remove(LONG position) override { return take(&Model::Remove, position); }
    STDMETHODIMP get_Parent(_hlxOPCConfiguration** result) override { return give(result, &Model::Parent); }
};

template <> class ToCom<hlxOPCTest> final : public ModelCom<hlxOPCTest, brxModel::hlxOPCTest> {
public:
    using ModelCom::ModelCom;
    STDMETHODIMP get_State(LONG* result) override { return give(result, &Model::State); }
    STDMETHODIMP put_State(LONG value) override { return take(&Model::set_State, value); }
    STDMETHODIMP get_Parent(_hlxOPCTests** result) override { return give(result, &Model::Parent); }
    STDMETHODIMP get_Index(LONG* result) override { return give(result, &Model::Index); }
    STDMETHODIMP get_TestData(IDispatch** result) override { return give(result, &Model::TestData); }
    STDMETHODIMP get_OPCItemID(BSTR* result) override { return give(result, &Model::OPCItemID); }
    STDMETHODIMP get_ItemText(BSTR* result) override { return give(result, &Model::ItemText); }
    STDMETHODIMP put_OPCItemID(BSTR value) override { return take(&Model::set_OPCItemID, value); }
    STDMETHODIMP get_ClientHandle(LONG* result) override { return give(result, &Model::ClientHandle); }
    STDMETHODIMP put_ClientHandle(LONG value) override { return take(&Model::set_ClientHandle, value); }
    STDMETHODIMP put_ItemTrigger(VARIANT_BOOL value) override { return take(&Model::set_ItemTrigger, value); }
    STDMETHODIMP get_ItemTrigger(VARIANT_BOOL* result) override { return give(result, &Model::ItemTrigger); }
    STDMETHODIMP get_TriggerExpression(SHORT* result) override {
        return give(result, &Model::TriggerExpression);
    }
    STDMETHODIMP put_TriggerExpression(SHORT value) override {
        return take(&Model::set_TriggerExpression, value);
    }
    STDMETHODIMP get_TriggerValue(VARIANT* result) override { return give(result, &Model::TriggerValue); }
    STDMETHODIMP put_TriggerValue(VARIANT value) override { return take(&Model::set_TriggerValue, value); }
    STDMETHODIMP get_Constant(DOUBLE* result) override { return give(result, &Model::Constant); }
    STDMETHODIMP put_Constant(DOUBLE value) override { return take(&Model::set_Constant, value); }
    STDMETHODIMP get_SaveAs(SHORT* result) override { return give(result, &Model::SaveAs); }
    STDMETHODIMP put_SaveAs(SHORT value) override { return take(&Model::set_SaveAs, value); }
    STDMETHODIMP get_CharacteristicName(BSTR* result) override {
        return give(result, &Model::CharacteristicName);
    }
};

template <>
class ToCom<hlxOPCDescriptors> final : public ModelCom<hlxOPCDescriptors, brxModel::hlxOPCDescriptors> {
public:
    using ModelCom::ModelCom;
    STDMETHODIMP get__NewEnum(IUnknown** result) override {
        if (!result) return E_POINTER;
        *result = nullptr;
        return run([&] {
            com_ptr<IEnumVARIANT> elements = make_com<EnumeratorCom<hlxOPCDescriptor>>(model().NewEnum());
            *result = elements.detach();
        });
    }
    STDMETHODIMP Add(LONG type, _hlxOPCDescriptor** result) override {
        return give(result, &Model::Add, type);
    }
    STDMETHODIMP get_Item(VARIANT position, _hlxOPCDescriptor** result) override {
        return give(result, &Model::Item, position);
    }
    STDMETHODIMP get_Count(LONG* result) override { return give(result, &Model::Count); }
    STDMETHODIMP Remove(LONG position) override { return take(&Model::Remove, position); }
};

template <>
class ToCom<hlxOPCDescriptor> final : public ModelCom<hlxOPCDescriptor, brxModel::hlxOPCDescriptor> {
public:
    using ModelCom::ModelCom;
    STDMETHODIMP get_Index(LONG* result) override { return give(result, &Model::Index); }
    STDMETHODIMP get_Type(LONG* result) override { return give(result, &Model::Type); }
    STDMETHODIMP get_ItemName(BSTR* result) override { return give(result, &Model::ItemName); }
    STDMETHODIMP put_ItemName(BSTR value) override { return take(&Model::set_ItemName, value); }
    STDMETHODIMP get_GroupName(BSTR* result) override { return give(result, &Model::GroupName); }
    STDMETHODIMP put_GroupName(BSTR value) override { return take(&Model::set_GroupName, value); }
};

} // namespace brx
