#pragma once

#include "com/adapters/com_model.h"

namespace brx {

/// A position as an argument. It owns nothing.
inline VARIANT position_argument(std::int32_t position) {
    VARIANT argument{};
    V_VT(&argument) = VT_I4;
    V_I4(&argument) = position;
    return argument;
}

template <> class FromCom<OPCServer> final : public ComModel<OPCServer> {
public:
    using ComModel::ComModel;
    Date StartTime() override { return call<Date>(&Interface::get_StartTime)(); }
    Date CurrentTime() override { return call<Date>(&Interface::get_CurrentTime)(); }
    Date LastUpdateTime() override { return call<Date>(&Interface::get_LastUpdateTime)(); }
    std::int16_t MajorVersion() override { return call<std::int16_t>(&Interface::get_MajorVersion)(); }
    std::int16_t MinorVersion() override { return call<std::int16_t>(&Interface::get_MinorVersion)(); }
    std::int16_t BuildNumber() override { return call<std::int16_t>(&Interface::get_BuildNumber)(); }
    std::string VendorInfo() override { return call<std::string>(&Interface::get_VendorInfo)(); }
    std::int32_t ServerState() override { return call<std::int32_t>(&Interface::get_ServerState)(); }
    std::string ServerName() override { return call<std::string>(&Interface::get_ServerName)(); }
    std::string ServerNode() override { return call<std::string>(&Interface::get_ServerNode)(); }
    std::string ClientName() override { return call<std::string>(&Interface::get_ClientName)(); }
    std::int32_t Bandwidth() override { return call<std::int32_t>(&Interface::get_Bandwidth)(); }
    OPCGroupsPtr OPCGroups() override { return call<OPCGroupsPtr>(&Interface::get_OPCGroups)(); }
    Variant GetOPCServers(const std::optional<std::string>& node) override {
        const OwnedVariant asked(node ? Variant(*node) : Variant(Missing{}));
        OwnedVariant found;
        require(called().GetOPCServers(asked.get(), found.out()));
        if (std::optional<StringArray> texts = texts_in(found.get())) return *std::move(texts);
        return value_of(found.get());
    }
    OPCBrowserPtr CreateBrowser() override { return call<OPCBrowserPtr>(&Interface::CreateBrowser)(); }
    std::string GetErrorString(std::int32_t error_code) override {
        return call<std::string>(&Interface::GetErrorString)(error_code);
    }
};

template <> class FromCom<OPCGroups> final : public ComModel<OPCGroups> {
public:
    using ComModel::ComModel;
    std::int32_t Count() override { return call<std::int32_t>(&Interface::get_Count)(); }
    OPCGroupPtr Item(const Variant& item_specifier) override {
        return call<OPCGroupPtr>(&Interface::Item)(item_specifier);
    }
    OPCGroupPtr Add(const std::optional<std::string>& name) override {
        return call<OPCGroupPtr>(&Interface::Add)(name ? Variant(*name) : Variant(Missing{}));
    }
    void RemoveAll() override { call<void> (&Interface::RemoveAll)(); }
    void Remove(const Variant& item_specifier) override { call<void> (&Interface::Remove)(item_specifier); }
};

template <> class FromCom<OPCGroup> final : public ComModel<OPCGroup> {
public:
    using ComModel::ComModel;
    OPCServerPtr Parent() override { return call<OPCServerPtr>(&Interface::get_Parent)(); }
    std::string Name() override { return call<std::string>(&Interface::get_Name)(); }
    OPCItemsPtr OPCItems() override { return call<OPCItemsPtr>(&Interface::get_OPCItems)(); }
};

template <> class FromCom<OPCItems> final : public ComModel<OPCItems> {
public:
    using ComModel::ComModel;
    std::int32_t Count() override { return call<std::int32_t>(&Interface::get_Count)(); }
    OPCItemPtr Item(const Variant& item_specifier) override {
        return call<OPCItemPtr>(&Interface::Item)(item_specifier);
    }
    AddedItems AddItems(const StringArray& item_ids, const LongArray& client_handles,
                        const std::optional<ShortArray>& requested_data_types,
                        const std::optional<StringArray>& access_paths) override {
        OwnedSafeArray ids(item_ids);
        OwnedSafeArray clients(client_handles);
        OwnedSafeArray handles;
        OwnedSafeArray errors;
        require(called().AddItems(size_of(item_ids), ids.in(), clients.in(), handles.out(), errors.out(),
                                  argument(requested_data_types).get(), argument(access_paths).get()));
        return {long_array(handles.get()), long_array(errors.get())};
    }
    LongArray Remove(const LongArray& server_handles) override {
        OwnedSafeArray handles(server_handles);
        OwnedSafeArray errors;
        require(called().Remove(size_of(server_handles), handles.in(), errors.out()));
        return long_array(errors.get());
    }
    LongArray Validate(const StringArray& item_ids, const std::optional<ShortArray>& requested_data_types,
                       const std::optional<StringArray>& access_paths) override {
        OwnedSafeArray ids(item_ids);
        OwnedSafeArray errors;
        require(called().Validate(size_of(item_ids), ids.in(), errors.out(),
                                  argument(requested_data_types).get(), argument(access_paths).get()));
        return long_array(errors.get());
    }

private:
    /// An optional argument as the automation interface takes it.
    template <class T> static OwnedVariant argument(const std::optional<Array<T>>& array) {
        return array ? OwnedVariant(OwnedSafeArray(*array)) : OwnedVariant(Missing{});
    }
    template <class T> static LONG size_of(const Array<T>& array) {
        return static_cast<LONG>(array.elements.size());
    }
};

template <> class FromCom<OPCItem> final : public ComModel<OPCItem> {
public:
    using ComModel::ComModel;
    std::string ItemID() override { return call<std::string>(&Interface::get_ItemID)(); }
    bool IsActive() override { return call<bool>(&Interface::get_IsActive)(); }
    void set_IsActive(bool value) override { call<void> (&Interface::put_IsActive)(value); }
    std::int16_t CanonicalDataType() override {
        return call<std::int16_t>(&Interface::get_CanonicalDataType)();
    }
};

template <> class FromCom<OPCBrowser> final : public ComModel<OPCBrowser> {
public:
    using ComModel::ComModel;
    std::int32_t Organization() override { return call<std::int32_t>(&Interface::get_Organization)(); }
    std::int32_t Count() override { return call<std::int32_t>(&Interface::get_Count)(); }
    std::string Item(std::int32_t index) override {
        std::string name;
        read_item(index, name);
        return name;
    }
    void read_item(std::int32_t index, std::string& name) override {
        Bstr item;
        require(called().Item(position_argument(index), item.out()), "Item");
        item.read(name);
    }
    void ShowBranches() override { call<void> (&Interface::ShowBranches)(); }
    void ShowLeafs(bool flat) override { call<void> (&Interface::ShowLeafs)(Variant(flat)); }
    void MoveToRoot() override { call<void> (&Interface::MoveToRoot)(); }
    void MoveTo(const StringArray& branches) override {
        OwnedSafeArray path(branches);
        require(called().MoveTo(path.in()));
    }
    std::string GetItemID(const std::string& leaf) override {
        return call<std::string>(&Interface::GetItemID)(leaf);
    }
};

} // namespace brx
