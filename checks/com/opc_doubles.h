#pragma once

#include "com/doubles.h"

namespace brx::checks {

template <> class DoubleOf<OPCServer> : public OPCServer, public Double {
public:
    Date StartTime() override { return answer<Date>("StartTime"); }
    Date CurrentTime() override { return answer<Date>("CurrentTime"); }
    Date LastUpdateTime() override { return answer<Date>("LastUpdateTime"); }
    std::int16_t MajorVersion() override { return answer<std::int16_t>("MajorVersion"); }
    std::int16_t MinorVersion() override { return answer<std::int16_t>("MinorVersion"); }
    std::int16_t BuildNumber() override { return answer<std::int16_t>("BuildNumber"); }
    std::string VendorInfo() override { return answer<std::string>("VendorInfo"); }
    std::int32_t ServerState() override { return answer<std::int32_t>("ServerState"); }
    std::string ServerName() override { return answer<std::string>("ServerName"); }
    std::string ServerNode() override { return answer<std::string>("ServerNode"); }
    std::string ClientName() override { return answer<std::string>("ClientName"); }
    std::int32_t Bandwidth() override { return answer<std::int32_t>("Bandwidth"); }
    OPCGroupsPtr OPCGroups() override { return answer<OPCGroupsPtr>("OPCGroups"); }
    Variant GetOPCServers(const std::optional<std::string>& node) override {
        return answer<Variant>("GetOPCServers", optional_text_value(node));
    }
    OPCBrowserPtr CreateBrowser() override { return answer<OPCBrowserPtr>("CreateBrowser"); }
    std::string GetErrorString(std::int32_t error_code) override {
        return answer<std::string>("GetErrorString", error_code);
    }
};

template <> class DoubleOf<OPCGroups> : public OPCGroups, public Double {
public:
    std::int32_t Count() override { return answer<std::int32_t>("Count"); }
    OPCGroupPtr Item(const Variant& item_specifier) override {
        return answer<OPCGroupPtr>("Item", item_specifier);
    }
    OPCGroupPtr Add(const std::optional<std::string>& name) override {
        return answer<OPCGroupPtr>("Add", optional_text_value(name));
    }
    void RemoveAll() override { note("RemoveAll"); }
    void Remove(const Variant& item_specifier) override { note("Remove", item_specifier); }
};

template <> class DoubleOf<OPCGroup> : public OPCGroup, public Double {
public:
    OPCServerPtr Parent() override { return answer<OPCServerPtr>("Parent"); }
    std::string Name() override { return answer<std::string>("Name"); }
    OPCItemsPtr OPCItems() override { return answer<OPCItemsPtr>("OPCItems"); }
};

template <> class DoubleOf<OPCItems> : public OPCItems, public Double {
public:
    AddedItems added;
    LongArray errors;

    std::int32_t Count() override { return answer<std::int32_t>("Count"); }
    OPCItemPtr Item(const Variant& item_specifier) override {
        return answer<OPCItemPtr>("Item", item_specifier);
    }
    AddedItems AddItems(const StringArray& item_ids, const LongArray& client_handles,
                        const std::optional<ShortArray>& requested_data_types,
                        const std::optional<StringArray>& access_paths) override {
        note("AddItems", Variant(item_ids), client_handles,
             Variant(optional_array_text(requested_data_types)), Variant(optional_array_text(access_paths)));
        return added;
    }
    LongArray Remove(const LongArray& server_handles) override {
        note("Remove", server_handles);
        return errors;
    }
    LongArray Validate(const StringArray& item_ids, const std::optional<ShortArray>& requested_data_types,
                       const std::optional<StringArray>& access_paths) override {
        note("Validate", Variant(item_ids), Variant(optional_array_text(requested_data_types)),
             Variant(optional_array_text(access_paths)));
        return errors;
    }
};

template <> class DoubleOf<OPCItem> : public OPCItem, public Double {
public:
    std::string ItemID() override { return answer<std::string>("ItemID"); }
    bool IsActive() override { return answer<bool>("IsActive"); }
    void set_IsActive(bool value) override { put("IsActive", value); }
    std::int16_t CanonicalDataType() override { return answer<std::int16_t>("CanonicalDataType"); }
};

template <> class DoubleOf<OPCBrowser> : public OPCBrowser, public Double {
public:
    std::int32_t Organization() override { return answer<std::int32_t>("Organization"); }
    std::int32_t Count() override { return answer<std::int32_t>("Count"); }
    std::string Item(std::int32_t index) override { return answer<std::string>("Item", index); }
    void ShowBranches() override { note("ShowBranches"); }
    void ShowLeafs(bool flat) override { note("ShowLeafs", Variant(flat)); }
    void MoveToRoot() override { note("MoveToRoot"); }
    void MoveTo(const StringArray& branches) override { note("MoveTo", Variant(branches)); }
    std::string GetItemID(const std::string& leaf) override { return answer<std::string>("GetItemID", leaf); }
};

} // namespace brx::checks
