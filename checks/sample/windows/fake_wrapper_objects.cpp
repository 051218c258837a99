#include "sample/windows/fake_wrapper_objects.h"

#include "adapters/opc_arguments.h"
#include "com/bstr.h"
#include "com/failure.h"
#include "com/owned_variant.h"
#include "com/shy.h"
#include "sample/windows/fake_wrapper.h"
#include "win32/counted.h"

#include <brxModel.h>

#include <algorithm>

namespace brx::checks {

namespace {

constexpr DATE no_time = -109205; ///< 1 January 1601
constexpr SHORT from_device = 2;
constexpr HRESULT unknown_item = static_cast<HRESULT>(0xC0040007);
constexpr HRESULT unavailable = static_cast<HRESULT>(0x800706BA);

/// Gives a counted reference.
template <class Interface> HRESULT give(Interface** result, const com_ptr<Interface>& object) {
    *result = com_ptr(object).detach();
    return S_OK;
}

HRESULT give_text(BSTR* result, const std::string& text) {
    *result = Bstr(text).detach();
    return S_OK;
}

struct GroupState {
    bool active = true;
    bool subscribed = false;
    LONG update_rate = 1000;
    FLOAT dead_band = 0;
};

class FakeItem final : public Shy<brxModel::OPCItem, ::OPCItem> {
public:
    FakeItem(const GroupState& group, std::string id) : group_(group), id_(std::move(id)) {}

    const std::string& id() const { return id_; }
    STDMETHODIMP get_ItemID(BSTR* result) override { return give_text(result, id_); }
    STDMETHODIMP get_IsActive(VARIANT_BOOL* result) override { return *result = VARIANT_TRUE, S_OK; }
    STDMETHODIMP put_IsActive(VARIANT_BOOL) override { return S_OK; }
    STDMETHODIMP get_CanonicalDataType(SHORT* result) override { return *result = VT_R8, S_OK; }
    STDMETHODIMP get_Value(VARIANT* result) override {
        hear();
        *result = OwnedVariant(kept_.value).detach();
        return S_OK;
    }
    STDMETHODIMP get_Quality(LONG* result) override {
        hear();
        return *result = kept_.quality, S_OK;
    }
    STDMETHODIMP get_TimeStamp(DATE* result) override { return *result = no_time, S_OK; }
    STDMETHODIMP Read(SHORT source, VARIANT* value, VARIANT* quality, VARIANT* time) override {
        if (!value || !quality || !time) return E_POINTER;
        if (!FakeWrapper::answers) return unavailable;
        if (source == from_device) kept_ = FakeWrapper::items[id_];
        *value = OwnedVariant(kept_.value).detach();
        *quality = OwnedVariant(Variant(static_cast<std::int16_t>(kept_.quality))).detach();
        *time = OwnedVariant(Variant(Date{no_time})).detach();
        return S_OK;
    }

private:
    /// A change that was told meanwhile.
    void hear() {
        if (group_.active && group_.subscribed && FakeWrapper::tells_changes) kept_ = FakeWrapper::items[id_];
    }

    const GroupState& group_;
    std::string id_;
    FakeWrapper::Item kept_{Empty{}, 0};
};

class FakeItems final : public Shy<brxModel::OPCItems, ::OPCItems> {
public:
    explicit FakeItems(std::shared_ptr<GroupState> group) : group_(std::move(group)) {}

    STDMETHODIMP get_Count(LONG* result) override { return *result = static_cast<LONG>(items_.size()), S_OK; }
    STDMETHODIMP Item(VARIANT specifier, ::OPCItem** result) override {
        const auto found = V_VT(&specifier) == VT_BSTR
                               ? std::ranges::find(items_, text_of(V_BSTR(&specifier)), id_of)
                           : V_VT(&specifier) == VT_I4 && V_I4(&specifier) >= 1 &&
                                   V_I4(&specifier) <= static_cast<LONG>(items_.size())
                               ? items_.begin() + (V_I4(&specifier) - 1)
                               : items_.end();
        if (found == items_.end()) return *result = nullptr, E_INVALIDARG;
        return give(result, com_ptr<::OPCItem>(*found));
    }
    STDMETHODIMP AddItems(LONG count, SAFEARRAY** ids, SAFEARRAY** client_handles, SAFEARRAY** handles,
                          SAFEARRAY** errors, VARIANT, VARIANT) override {
        return guard(__uuidof(::OPCItems), [&] {
            static_cast<void>(first_longs(client_handles, count));
            LongArray given;
            const LongArray failures = objections(first_strings(ids, count));
            for (std::size_t i = 0; i < failures.elements.size(); ++i) {
                if (failures.elements[i] == 0)
                    items_.push_back(make_com<FakeItem>(*group_, first_strings(ids, count).elements[i]));
                given.elements.push_back(failures.elements[i] == 0 ? static_cast<LONG>(items_.size()) : 0);
            }
            *handles = OwnedSafeArray(given).detach();
            *errors = OwnedSafeArray(failures).detach();
        });
    }
    STDMETHODIMP Validate(LONG count, SAFEARRAY** ids, SAFEARRAY** errors, VARIANT, VARIANT) override {
        return guard(__uuidof(::OPCItems), [&] {
            const StringArray asked = first_strings(ids, count);
            for (const std::string& id : asked.elements) FakeWrapper::diary.push_back("validate " + id);
            *errors = OwnedSafeArray(objections(asked)).detach();
        });
    }

private:
    static std::string id_of(const com_ptr<FakeItem>& item) { return item->id(); }
    static LongArray objections(const StringArray& ids) {
        LongArray errors;
        for (const std::string& id : ids.elements)
            errors.elements.push_back(FakeWrapper::items.contains(id) ? 0 : unknown_item);
        return errors;
    }

    std::shared_ptr<GroupState> group_;
    std::vector<com_ptr<FakeItem>> items_;
};

class FakeGroup final : public Shy<brxModel::IOPCGroup, ::IOPCGroup> {
public:
    FakeGroup(::IOPCAutoServer& server, std::string name) : server_(&server), name_(std::move(name)) {}

    const std::string& name() const { return name_; }
    void leave() { server_ = nullptr; }
    STDMETHODIMP get_Parent(::IOPCAutoServer** result) override {
        if (!server_) return *result = nullptr, E_FAIL;
        return give(result, com_ptr(server_));
    }
    STDMETHODIMP get_Name(BSTR* result) override { return give_text(result, name_); }
    STDMETHODIMP put_IsActive(VARIANT_BOOL value) override {
        return state_->active = value != VARIANT_FALSE, S_OK;
    }
    STDMETHODIMP put_UpdateRate(LONG value) override { return state_->update_rate = value, S_OK; }
    STDMETHODIMP put_DeadBand(FLOAT value) override { return state_->dead_band = value, S_OK; }
    STDMETHODIMP get_IsSubscribed(VARIANT_BOOL* result) override {
        return *result = state_->subscribed ? VARIANT_TRUE : VARIANT_FALSE, S_OK;
    }
    STDMETHODIMP put_IsSubscribed(VARIANT_BOOL value) override {
        if (!FakeWrapper::takes_subscriptions) return E_NOTIMPL;
        state_->subscribed = value != VARIANT_FALSE;
        FakeWrapper::diary.push_back("subscribe " + name_ + " every " + std::to_string(state_->update_rate) +
                                     " ms");
        return S_OK;
    }
    STDMETHODIMP get_OPCItems(::OPCItems** result) override {
        return give(result, com_ptr<::OPCItems>(items_));
    }

private:
    ::IOPCAutoServer* server_; ///< null once removed
    std::string name_;
    std::shared_ptr<GroupState> state_ = std::make_shared<GroupState>();
    com_ptr<FakeItems> items_ = make_com<FakeItems>(state_);
};

class FakeGroups final : public Shy<brxModel::IOPCGroups, ::IOPCGroups> {
public:
    explicit FakeGroups(::IOPCAutoServer& server) : server_(server) {}

    STDMETHODIMP get_Count(LONG* result) override {
        return *result = static_cast<LONG>(groups_.size()), S_OK;
    }
    STDMETHODIMP Add(VARIANT name, ::IOPCGroup** result) override {
        const std::string wanted =
            V_VT(&name) == VT_BSTR ? text_of(V_BSTR(&name)) : "Group" + std::to_string(++made_up_);
        groups_.push_back(make_com<FakeGroup>(server_, wanted));
        return give(result, com_ptr<::IOPCGroup>(groups_.back()));
    }
    STDMETHODIMP RemoveAll() override {
        for (const auto& each : groups_) each->leave();
        groups_.clear();
        return S_OK;
    }
    STDMETHODIMP Remove(VARIANT name) override {
        if (V_VT(&name) != VT_BSTR) return E_INVALIDARG;
        const auto found = std::ranges::find_if(
            groups_, [&](const auto& each) { return each->name() == text_of(V_BSTR(&name)); });
        if (found == groups_.end()) return E_INVALIDARG;
        (*found)->leave();
        groups_.erase(found);
        return S_OK;
    }

private:
    ::IOPCAutoServer& server_;
    std::vector<com_ptr<FakeGroup>> groups_;
    int made_up_ = 0;
};

class FakeBrowser final : public Shy<brxModel::OPCBrowser, ::OPCBrowser> {
public:
    STDMETHODIMP get_Organization(LONG* result) override { return *result = 2, S_OK; } // flat
    STDMETHODIMP get_Count(LONG* result) override { return *result = static_cast<LONG>(names_.size()), S_OK; }
    STDMETHODIMP Item(VARIANT index, BSTR* result) override {
        if (V_VT(&index) != VT_I4 || V_I4(&index) < 1 || V_I4(&index) > static_cast<LONG>(names_.size()))
            return E_INVALIDARG;
        return give_text(result, names_[static_cast<std::size_t>(V_I4(&index)) - 1]);
    }
    STDMETHODIMP ShowBranches() override { return names_ = {FakeWrapper::garbage}, S_OK; }
    STDMETHODIMP ShowLeafs(VARIANT) override {
        names_ = {FakeWrapper::garbage};
        for (const auto& [id, item] : FakeWrapper::items) names_.push_back(id);
        return S_OK;
    }
    STDMETHODIMP MoveToRoot() override { return names_.clear(), S_OK; }
    STDMETHODIMP MoveTo(SAFEARRAY**) override { return E_INVALIDARG; }
    STDMETHODIMP GetItemID(BSTR leaf, BSTR* result) override {
        if (!FakeWrapper::items.contains(text_of(leaf))) return *result = nullptr, unknown_item;
        return give_text(result, text_of(leaf));
    }

private:
    std::vector<std::string> names_;
};

} // namespace

com_ptr<::IOPCGroups> make_fake_groups(::IOPCAutoServer& server) { return make_com<FakeGroups>(server); }

com_ptr<::OPCBrowser> make_fake_browser() { return make_com<FakeBrowser>(); }

} // namespace brx::checks
