#pragma once

#include "adapters/model_com.h"

namespace brx {

template <> class ToCom<hlxDatabase> final : public ModelCom<hlxDatabase, brxModel::hlxDatabase> {
public:
    using ModelCom::ModelCom;
};

template <> class ToCom<hlxTestData> final : public ModelCom<hlxTestData, brxModel::hlxTestData> {
public:
    using ModelCom::ModelCom;
    STDMETHODIMP get_ID(LONG* result) override { return give(result, &Model::ID); }
    STDMETHODIMP put_ID(LONG value) override { return take(&Model::set_ID, value); }
    STDMETHODIMP get_GroupID(LONG* result) override { return give(result, &Model::GroupID); }
    STDMETHODIMP get_Name(BSTR* result) override { return give(result, &Model::Name); }
    STDMETHODIMP put_Flag(SHORT value) override { return take(&Model::set_Flag, value); }
    STDMETHODIMP put_Mode(SHORT value) override { return take(&Model::set_Mode, value); }
    STDMETHODIMP Load(_hlxDatabase* database, VARIANT_BOOL* result) override {
        return give(result, &Model::Load, database);
    }
    STDMETHODIMP Save(_hlxDatabase* database) override { return take(&Model::Save, database); }
};

template <> class ToCom<hlxRecord> final : public ModelCom<hlxRecord, brxModel::hlxRecord> {
public:
    using ModelCom::ModelCom;
    STDMETHODIMP get_ID(LONG* result) override { return give(result, &Model::ID); }
    STDMETHODIMP put_ID(LONG value) override { return take(&Model::set_ID, value); }
    STDMETHODIMP get_Name(BSTR* result) override { return give(result, &Model::Name); }
    STDMETHODIMP put_Name(BSTR value) override { return take(&Model::set_Name, value); }
    STDMETHODIMP get_GroupID(LONG* result) override { return give(result, &Model::GroupID); }
    STDMETHODIMP put_GroupID(LONG value) override { return take(&Model::set_GroupID, value); }
    STDMETHODIMP put_SearchFlag(SHORT value) override { return take(&Model::set_SearchFlag, value); }
    STDMETHODIMP Load(_hlxDatabase* database, VARIANT_BOOL* result) override {
        return give(result, &Model::Load, database);
    }
};

template <> class ToCom<hlxSelection> final : public ModelCom<hlxSelection, brxModel::hlxSelection> {
public:
    using ModelCom::ModelCom;
    STDMETHODIMP Show(_hlxDatabase* database, LONG id, LONG group_id, VARIANT_BOOL* result) override {
        return give(result, &Model::Show, database, id, group_id);
    }
    STDMETHODIMP get_Record(IDispatch** result) override { return give(result, &Model::Record); }
};

} // namespace brx
