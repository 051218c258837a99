// An OPC server with a few items, as far as the dialogs call it. Your program hands over the objects of its
// OPC automation wrapper instead.
#pragma once

#include "values.h"

#include <algorithm>

struct PlantItem {
    const wchar_t* id; ///< names joined with full stops
    VARTYPE type;
};
const PlantItem plant_items[] = {{L"Filler.Weight", VT_R8},
                                 {L"Filler.Count", VT_I4},
                                 {L"Filler.Running", VT_BOOL},
                                 {L"Capper.Torque", VT_R4},
                                 {L"Capper.Batch", VT_BSTR}};

inline const PlantItem* plant_item(const std::wstring& id) {
    for (const PlantItem& each : plant_items)
        if (id == each.id) return &each;
    return nullptr;
}

const LONG unknown_item = static_cast<LONG>(0xC0040007);

class Browser : public brxModel::OPCBrowser {
public:
    STDMETHODIMP get_Organization(LONG* organization) override {
        *organization = OPCHierarchical;
        return S_OK;
    }
    STDMETHODIMP get_Count(LONG* count) override { return give_count(count, listed_); }
    STDMETHODIMP Item(VARIANT position, BSTR* name) override {
        if (position.vt != VT_I4 || position.lVal < 1 || position.lVal > static_cast<LONG>(listed_.size()))
            return no_such_element();
        return brxModel::give(name, listed_[static_cast<std::size_t>(position.lVal - 1)].c_str());
    }
    STDMETHODIMP ShowBranches() override {
        listed_.clear();
        for (const PlantItem& each : plant_items) {
            const std::wstring id = each.id;
            if (id.compare(0, here_.size(), here_) != 0) continue;
            const auto end = id.find(L'.', here_.size());
            if (end == std::wstring::npos) continue;
            const std::wstring branch = id.substr(here_.size(), end - here_.size());
            if (std::find(listed_.begin(), listed_.end(), branch) == listed_.end()) listed_.push_back(branch);
        }
        return S_OK;
    }
    STDMETHODIMP ShowLeafs(VARIANT flat) override {
        const bool all = flat.vt == VT_BOOL && flat.boolVal != VARIANT_FALSE;
        listed_.clear();
        for (const PlantItem& each : plant_items) {
            const std::wstring id = each.id;
            if (id.compare(0, here_.size(), here_) != 0) continue;
            const std::wstring rest = id.substr(here_.size());
            if (all || rest.find(L'.') == std::wstring::npos) listed_.push_back(all ? id : rest);
        }
        return S_OK;
    }
    STDMETHODIMP MoveToRoot() override {
        here_.clear();
        return S_OK;
    }
    STDMETHODIMP MoveTo(SAFEARRAY** branches) override {
        here_.clear();
        for (const std::wstring& each : texts_in(*branches)) here_ += each + L".";
        return S_OK;
    }
    STDMETHODIMP GetItemID(BSTR leaf, BSTR* id) override {
        const std::wstring name = text_of(leaf);
        return brxModel::give(id, (plant_item(name) ? name : here_ + name).c_str());
    }

private:
    std::wstring here_; ///< with a full stop at its end, but at the root
    std::vector<std::wstring> listed_;
};

class Item : public brxModel::OPCItem {
public:
    Item(std::wstring id, LONG handle) : id_(std::move(id)), handle_(handle) {}
    const std::wstring& id() const { return id_; }
    LONG handle() const { return handle_; }

    STDMETHODIMP get_ItemID(BSTR* id) override { return brxModel::give(id, id_.c_str()); }
    STDMETHODIMP get_CanonicalDataType(SHORT* type) override {
        *type = static_cast<SHORT>(plant_item(id_)->type);
        return S_OK;
    }
    STDMETHODIMP put_IsActive(VARIANT_BOOL) override { return S_OK; }

private:
    std::wstring id_;
    LONG handle_;
};

class Items : public brxModel::OPCItems {
public:
    LONG add(const std::wstring& id) {
        items_.push_back(make<::Item>(id, ++last_handle_));
        return last_handle_;
    }

    STDMETHODIMP get_Count(LONG* count) override { return give_count(count, items_); }
    STDMETHODIMP Item(VARIANT which, ::OPCItem** item) override {
        if (which.vt != VT_BSTR) return give_element(item, items_, which);
        for (const auto& each : items_)
            if (each->id() == text_of(which.bstrVal)) return brxModel::give(item, each.get());
        *item = nullptr;
        return no_such_element();
    }
    STDMETHODIMP Validate(LONG, SAFEARRAY** ids, SAFEARRAY** errors, VARIANT, VARIANT) override {
        std::vector<LONG> codes;
        for (const std::wstring& id : texts_in(*ids)) codes.push_back(plant_item(id) ? 0 : unknown_item);
        *errors = array_of(codes);
        return S_OK;
    }
    STDMETHODIMP AddItems(LONG, SAFEARRAY** ids, SAFEARRAY**, SAFEARRAY** handles, SAFEARRAY** errors,
                          VARIANT, VARIANT) override {
        std::vector<LONG> added;
        std::vector<LONG> codes;
        for (const std::wstring& id : texts_in(*ids)) {
            added.push_back(plant_item(id) ? add(id) : 0);
            codes.push_back(added.back() != 0 ? 0 : unknown_item);
        }
        *handles = array_of(added);
        *errors = array_of(codes);
        return S_OK;
    }
    STDMETHODIMP Remove(LONG, SAFEARRAY** handles, SAFEARRAY** errors) override {
        LONG first = 1;
        LONG handle = 0;
        SafeArrayGetElement(*handles, &first, &handle);
        const auto found = std::find_if(items_.begin(), items_.end(), [handle](const Ref<::Item>& each) {
            return each->handle() == handle;
        });
        const bool there = found != items_.end();
        if (there) items_.erase(found);
        *errors = array_of(std::vector<LONG>{there ? 0 : static_cast<LONG>(0xC0040001)});
        return S_OK;
    }

private:
    std::vector<Ref<::Item>> items_;
    LONG last_handle_ = 0;
};

/// Does not hold its server, which holds its groups.
class Group : public brxModel::IOPCGroup {
public:
    explicit Group(IOPCAutoServer* server) : server_(server) {}
    Items& items() { return *items_.get(); }

    STDMETHODIMP get_Parent(IOPCAutoServer** server) override { return brxModel::give(server, server_); }
    STDMETHODIMP get_Name(BSTR* name) override { return brxModel::give(name, L"Line 1"); }
    STDMETHODIMP get_OPCItems(::OPCItems** items) override { return brxModel::give(items, items_.get()); }

private:
    IOPCAutoServer* server_;
    Ref<Items> items_ = make<Items>();
};

class Groups : public brxModel::IOPCGroups {
public:
    explicit Groups(IOPCAutoServer* server) { groups_.push_back(make<Group>(server)); }
    Group& only() { return *groups_.front().get(); }

    STDMETHODIMP get_Count(LONG* count) override { return give_count(count, groups_); }
    STDMETHODIMP Item(VARIANT position, ::IOPCGroup** group) override {
        return give_element(group, groups_, position);
    }

private:
    std::vector<Ref<Group>> groups_;
};

/// Connected when it has a name; without one it lists the servers of a node.
class PlantServer : public brxModel::IOPCAutoServer {
public:
    PlantServer(std::wstring name, std::wstring node) : name_(std::move(name)), node_(std::move(node)) {}
    Group& group() { return groups_->only(); }

    STDMETHODIMP get_ServerName(BSTR* name) override { return brxModel::give(name, name_.c_str()); }
    STDMETHODIMP get_ServerNode(BSTR* node) override { return brxModel::give(node, node_.c_str()); }
    STDMETHODIMP get_ClientName(BSTR* name) override { return brxModel::give(name, L"The sample"); }
    STDMETHODIMP get_VendorInfo(BSTR* vendor) override {
        return brxModel::give(vendor, L"The sample's plant");
    }
    STDMETHODIMP get_MajorVersion(short* number) override { return *number = 1, S_OK; }
    STDMETHODIMP get_MinorVersion(short* number) override { return *number = 0, S_OK; }
    STDMETHODIMP get_BuildNumber(short* number) override { return *number = 1, S_OK; }
    STDMETHODIMP get_Bandwidth(LONG* percent) override { return *percent = 5, S_OK; }
    STDMETHODIMP get_ServerState(LONG* state) override {
        return *state = name_.empty() ? OPCDisconnected : OPCRunning, S_OK;
    }
    STDMETHODIMP get_StartTime(DATE* time) override { return *time = started_, S_OK; }
    STDMETHODIMP get_CurrentTime(DATE* time) override { return *time = now(), S_OK; }
    STDMETHODIMP get_LastUpdateTime(DATE* time) override { return *time = now(), S_OK; }
    STDMETHODIMP get_OPCGroups(IOPCGroups** groups) override { return brxModel::give(groups, groups_.get()); }
    STDMETHODIMP CreateBrowser(::OPCBrowser** browser) override { return *browser = new Browser, S_OK; }
    STDMETHODIMP GetErrorString(LONG code, BSTR* text) override {
        return brxModel::give(text,
                              code == unknown_item ? L"The item is not known to the server." : L"It failed.");
    }
    STDMETHODIMP GetOPCServers(VARIANT node, VARIANT* servers) override {
        VariantInit(servers);
        servers->vt = VT_ARRAY | VT_BSTR;
        // The node is left out for the local computer.
        servers->parray = array_of(node.vt == VT_ERROR ? std::vector<std::wstring>{L"Plant.Server.1"}
                                                       : std::vector<std::wstring>{L"Oven.Server.1"});
        return S_OK;
    }

private:
    static DATE now() {
        SYSTEMTIME time;
        DATE date = 0;
        GetSystemTime(&time);
        SystemTimeToVariantTime(&time, &date);
        return date;
    }

    std::wstring name_;
    std::wstring node_;
    DATE started_ = now();
    Ref<Groups> groups_ = make<Groups>(this);
};
