#pragma once

#include "adapters/model_com.h"
#include "adapters/opc_arguments.h"

namespace brx {

template <> class ToCom<OPCServer> : public ModelCom<OPCServer, brxModel::IOPCAutoServer> {
public:
    using ModelCom::ModelCom;
    STDMETHODIMP get_StartTime(DATE* result) override { return give(result, &Model::StartTime); }
    STDMETHODIMP get_CurrentTime(DATE* result) override { return give(result, &Model::CurrentTime); }
    STDMETHODIMP get_LastUpdateTime(DATE* result) override { return give(result, &Model::LastUpdateTime); }
    STDMETHODIMP get_MajorVersion(SHORT* result) override { return give(result, &Model::MajorVersion); }
    STDMETHODIMP get_MinorVersion(SHORT* result) override { return give(result, &Model::MinorVersion); }
    STDMETHODIMP get_BuildNumber(SHORT* result) override { return give(result, &Model::BuildNumber); }
    STDMETHODIMP get_VendorInfo(BSTR* result) override { return give(result, &Model::VendorInfo); }
    STDMETHODIMP get_ServerState(LONG* result) override { return give(result, &Model::ServerState); }
    STDMETHODIMP get_ServerName(BSTR* result) override { return give(result, &Model::ServerName); }
    STDMETHODIMP get_ServerNode(BSTR* result) override { return give(result, &Model::ServerNode); }
    STDMETHODIMP get_ClientName(BSTR* result) override { return give(result, &Model::ClientName); }
    STDMETHODIMP get_Bandwidth(LONG* result) override { return give(result, &Model::Bandwidth); }
    STDMETHODIMP get_OPCGroups(IOPCGroups** result) override { return give(result, &Model::OPCGroups); }
    STDMETHODIMP GetOPCServers(VARIANT node, VARIANT* result) override {
        return give(result, [&] { return model().GetOPCServers(optional_text(node)); });
    }
    STDMETHODIMP CreateBrowser(::OPCBrowser** result) override { return give(result, &Model::CreateBrowser); }
    STDMETHODIMP GetErrorString(LONG error_code, BSTR* result) override {
        return give(result, &Model::GetErrorString, error_code);
    }
};

template <> class ToCom<OPCGroups> final : public ModelCom<OPCGroups, brxModel::IOPCGroups> {
public:
    using ModelCom::ModelCom;
    STDMETHODIMP get_Count(LONG* result) override { return give(result, &Model::Count); }
    STDMETHODIMP Item(VARIANT item_specifier, IOPCGroup** result) override {
        return give(result, &Model::Item, item_specifier);
    }
    STDMETHODIMP Add(VARIANT name, IOPCGroup** result) override {
        return give(result, [&] { return model().Add(optional_text(name)); });
    }
    STDMETHODIMP RemoveAll() override { return take(&Model::RemoveAll); }
    STDMETHODIMP Remove(VARIANT item_specifier) override { return take(&Model::Remove, item_specifier); }
};

template <> class ToCom<OPCGroup> : public ModelCom<OPCGroup, brxModel::IOPCGroup> {
public:
    using ModelCom::ModelCom;
    STDMETHODIMP get_Parent(IOPCAutoServer** result) override { return give(result, &Model::Parent); }
    STDMETHODIMP get_Name(BSTR* result) override { return give(result, &Model::Name); }
    STDMETHODIMP get_OPCItems(::OPCItems** result) override { return give(result, &Model::OPCItems); }
};

template <> class ToCom<OPCItems> final : public ModelCom<OPCItems, brxModel::OPCItems> {
public:
    using ModelCom::ModelCom;
    STDMETHODIMP get_Count(LONG* result) override { return give(result, &Model::Count); }
    STDMETHODIMP Item(VARIANT item_specifier, ::OPCItem** result) override {
        return give(result, &Model::Item, item_specifier);
    }
    STDMETHODIMP AddItems(LONG count, SAFEARRAY** item_ids, SAFEARRAY** client_handles,
                          SAFEARRAY** server_handles, SAFEARRAY** errors, VARIANT requested_data_types,
                          VARIANT access_paths) override {
        if (!server_handles || !errors) return E_POINTER;
        *server_handles = *errors = nullptr;
        return run([&] {
            const AddedItems added = model().AddItems(
                first_strings(item_ids, count), first_longs(client_handles, count),
                optional_shorts(requested_data_types, count), optional_strings(access_paths, count));
            OwnedSafeArray handles(added.ServerHandles);
            *errors = OwnedSafeArray(added.Errors).detach();
            *server_handles = handles.detach();
        });
    }
    STDMETHODIMP Remove(LONG count, SAFEARRAY** server_handles, SAFEARRAY** errors) override {
        if (!errors) return E_POINTER;
        *errors = nullptr;
        return run(
            [&] { *errors = OwnedSafeArray(model().Remove(first_longs(server_handles, count))).detach(); });
    }
    STDMETHODIMP Validate(LONG count, SAFEARRAY** item_ids, SAFEARRAY** errors, VARIANT requested_data_types,
                          VARIANT access_paths) override {
        if (!errors) return E_POINTER;
        *errors = nullptr;
        return run([&] {
            const LongArray found =
                model().Validate(first_strings(item_ids, count), optional_shorts(requested_data_types, count),
                                 optional_strings(access_paths, count));
            *errors = OwnedSafeArray(found).detach();
        });
    }
};

template <> class ToCom<OPCItem> : public ModelCom<OPCItem, brxModel::OPCItem> {
public:
    using ModelCom::ModelCom;
    STDMETHODIMP get_ItemID(BSTR* result) override { return give(result, &Model::ItemID); }
    STDMETHODIMP get_IsActive(VARIANT_BOOL* result) override { return give(result, &Model::IsActive); }
    STDMETHODIMP put_IsActive(VARIANT_BOOL value) override { return take(&Model::set_IsActive, value); }
    STDMETHODIMP get_CanonicalDataType(SHORT* result) override {
        return give(result, &Model::CanonicalDataType);
    }
};

template <> class ToCom<OPCBrowser> final : public ModelCom<OPCBrowser, brxModel::OPCBrowser> {
public:
    using ModelCom::ModelCom;
    STDMETHODIMP get_Organization(LONG* result) override { return give(result, &Model::Organization); }
    STDMETHODIMP get_Count(LONG* result) override { return give(result, &Model::Count); }
    STDMETHODIMP Item(VARIANT item_specifier, BSTR* result) override {
        return give(result, [&] { return model().Item(position_in(item_specifier)); });
    }
    STDMETHODIMP ShowBranches() override { return take(&Model::ShowBranches); }
    STDMETHODIMP ShowLeafs(VARIANT flat) override {
        return run([&] { model().ShowLeafs(optional_flag(flat)); });
    }
    STDMETHODIMP MoveToRoot() override { return take(&Model::MoveToRoot); }
    STDMETHODIMP MoveTo(SAFEARRAY** branches) override {
        return run([&] { model().MoveTo(whole_path(branches)); });
    }
    STDMETHODIMP GetItemID(BSTR leaf, BSTR* result) override { return give(result, &Model::GetItemID, leaf); }
};

} // namespace brx
