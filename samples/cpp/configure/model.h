// The host's own objects: servers, a configuration with its tests and descriptors. Whoever is held holds
// nobody back: parents are plain pointers, and this sample keeps all of them to its end.
#pragma once

#include "plant.h"
#include "records.h"

#include <brxOpcAuto6.h>

// A value that is read and written.
#define PROPERTY(type, Name, member)                                                                         \
    STDMETHODIMP get_##Name(type* value) override { return *value = member, S_OK; }                          \
    STDMETHODIMP put_##Name(type value) override { return member = value, S_OK; }
#define TEXT_PROPERTY(Name, member)                                                                          \
    STDMETHODIMP get_##Name(BSTR* text) override { return brxModel::give(text, member.c_str()); }            \
    STDMETHODIMP put_##Name(BSTR text) override { return member = text_of(text), S_OK; }
#define VARIANT_PROPERTY(Name, member)                                                                       \
    STDMETHODIMP get_##Name(VARIANT* value) override {                                                       \
        return VariantInit(value), VariantCopy(value, &member);                                              \
    }                                                                                                        \
    STDMETHODIMP put_##Name(VARIANT value) override { return VariantCopy(&member, &value); }

class Application : public brxModel::hlxApplication {
public:
    STDMETHODIMP get_Database(IDispatch** database) override {
        return brxModel::give(database, database_.get());
    }

private:
    Ref<Database> database_ = make<Database>();
};

/// A fresh one, which the component makes, has no name and belongs to nobody.
class ServerEntry : public brxModel::hlxOPCServer {
public:
    ServerEntry() = default;
    ServerEntry(IDispatch* parent, std::wstring name, std::wstring node)
        : parent_(parent), name_(std::move(name)), node_(std::move(node)) {}
    PlantServer& server() { return *server_.get(); }

    STDMETHODIMP get_ServerName(BSTR* name) override { return brxModel::give(name, name_.c_str()); }
    STDMETHODIMP get_Node(BSTR* node) override { return brxModel::give(node, node_.c_str()); }
    STDMETHODIMP get_Parent(IDispatch** parent) override { return brxModel::give(parent, parent_); }
    STDMETHODIMP get_OPCServer(IDispatch** server) override { return brxModel::give(server, server_.get()); }

private:
    IDispatch* parent_ = nullptr;
    std::wstring name_;
    std::wstring node_;
    Ref<PlantServer> server_ = make<PlantServer>(name_, node_);
};

class Servers : public brxModel::hlxOPCServers {
public:
    ServerEntry& add(const std::wstring& name, const std::wstring& node) {
        entries_.push_back(make<ServerEntry>(this, name, node));
        return *entries_.back().get();
    }

    STDMETHODIMP get_Parent(IDispatch** application) override {
        return brxModel::give(application, application_.get());
    }
    STDMETHODIMP get_Count(LONG* count) override { return give_count(count, entries_); }
    STDMETHODIMP get_Item(VARIANT position, _hlxOPCServer** entry) override {
        return give_element(entry, entries_, position);
    }
    STDMETHODIMP Add(BSTR name, BSTR node, VARIANT_BOOL, _hlxOPCServer** entry) override {
        return brxModel::give(entry, &add(text_of(name), text_of(node)));
    }
    STDMETHODIMP get_LastError(BSTR* text) override { return brxModel::give(text, L""); }

private:
    Ref<Application> application_ = make<Application>();
    std::vector<Ref<ServerEntry>> entries_;
};

class Holder : public brxModel::hlxOPCServerHolder {
public:
    explicit Holder(ServerEntry& entry) : entry_(entry) {}
    STDMETHODIMP get_ServerEntry(_hlxOPCServer** entry) override { return brxModel::give(entry, &entry_); }

private:
    ServerEntry& entry_;
};

class Tests;

class Test : public brxModel::hlxOPCTest {
public:
    Test(Tests& parent) : parent_(parent) {}
    ~Test() override { VariantClear(&value_); }
    TestData& data() { return *data_.get(); }
    const std::wstring& item() const { return item_; }

    STDMETHODIMP get_Parent(_hlxOPCTests** parent) override;
    STDMETHODIMP get_Index(LONG* index) override;
    STDMETHODIMP get_TestData(IDispatch** data) override { return brxModel::give(data, data_.get()); }
    STDMETHODIMP get_CharacteristicName(BSTR* name) override {
        return brxModel::give(name, data_->name().c_str());
    }
    STDMETHODIMP get_ItemText(BSTR* text) override { return brxModel::give(text, item_.c_str()); }
    TEXT_PROPERTY(OPCItemID, item_)
    PROPERTY(LONG, State, state_)
    PROPERTY(LONG, ClientHandle, handle_)
    PROPERTY(VARIANT_BOOL, ItemTrigger, triggered_)
    PROPERTY(short, TriggerExpression, expression_)
    VARIANT_PROPERTY(TriggerValue, value_)
    PROPERTY(double, Constant, constant_)
    PROPERTY(short, SaveAs, save_as_)

private:
    Tests& parent_;
    Ref<TestData> data_ = make<TestData>();
    std::wstring item_;
    LONG state_ = 1;
    LONG handle_ = 0;
    VARIANT_BOOL triggered_ = VARIANT_FALSE;
    short expression_ = 0;
    VARIANT value_{};
    double constant_ = 0;
    short save_as_ = 0;
};

class Tests : public brxModel::hlxOPCTests {
public:
    explicit Tests(_hlxOPCConfiguration* parent) : parent_(parent) {}
    const std::vector<Ref<Test>>& all() const { return tests_; }

    STDMETHODIMP get_Parent(_hlxOPCConfiguration** parent) override {
        return brxModel::give(parent, parent_);
    }
    STDMETHODIMP get_Count(LONG* count) override { return give_count(count, tests_); }
    STDMETHODIMP get_Item(VARIANT position, _hlxOPCTest** test) override {
        return give_element(test, tests_, position);
    }
    STDMETHODIMP Add(_hlxOPCTest** test) override {
        tests_.push_back(make<Test>(*this));
        return brxModel::give(test, tests_.back().get());
    }
    STDMETHODIMP Remove(LONG position) override {
        if (position < 1 || position > static_cast<LONG>(tests_.size())) return no_such_element();
        tests_.erase(tests_.begin() + (position - 1));
        return S_OK;
    }

private:
    _hlxOPCConfiguration* parent_;
    std::vector<Ref<Test>> tests_;
};

inline HRESULT Test::get_Parent(_hlxOPCTests** parent) { return brxModel::give(parent, &parent_); }
inline HRESULT Test::get_Index(LONG* index) {
    *index = 0;
    for (const auto& each : parent_.all()) {
        ++*index;
        if (each.get() == this) return S_OK;
    }
    return no_such_element();
}

class Descriptors;

class Descriptor : public brxModel::hlxOPCDescriptor {
public:
    Descriptor(Descriptors& parent, LONG type) : parent_(parent), type_(type) {}
    const std::wstring& item() const { return item_; }

    STDMETHODIMP get_Index(LONG* index) override;
    STDMETHODIMP get_Type(LONG* type) override { return *type = type_, S_OK; }
    TEXT_PROPERTY(ItemName, item_)
    TEXT_PROPERTY(GroupName, group_)

private:
    Descriptors& parent_;
    LONG type_;
    std::wstring item_;
    std::wstring group_;
};

class Descriptors : public brxModel::hlxOPCDescriptors {
public:
    const std::vector<Ref<Descriptor>>& all() const { return descriptors_; }

    STDMETHODIMP get_Count(LONG* count) override { return give_count(count, descriptors_); }
    STDMETHODIMP get_Item(VARIANT position, _hlxOPCDescriptor** descriptor) override {
        return give_element(descriptor, descriptors_, position);
    }
    STDMETHODIMP get__NewEnum(IUnknown** enumeration) override {
        *enumeration = static_cast<IEnumVARIANT*>(new Walk(*this));
        return S_OK;
    }
    STDMETHODIMP Add(LONG type, _hlxOPCDescriptor** descriptor) override {
        descriptors_.push_back(make<Descriptor>(*this, type));
        return brxModel::give(descriptor, descriptors_.back().get());
    }
    STDMETHODIMP Remove(LONG position) override {
        if (position < 1 || position > static_cast<LONG>(descriptors_.size())) return no_such_element();
        descriptors_.erase(descriptors_.begin() + (position - 1));
        return S_OK;
    }

private:
    class Walk : public brxModel::Enumeration {
    public:
        explicit Walk(Descriptors& walked) : walked_(walked) {}

    private:
        HRESULT next(VARIANT* element) override {
            if (at_ == walked_.descriptors_.size()) return S_FALSE;
            element->vt = VT_DISPATCH;
            return brxModel::give(&element->pdispVal, walked_.descriptors_[at_++].get());
        }
        Descriptors& walked_;
        std::size_t at_ = 0;
    };

    std::vector<Ref<Descriptor>> descriptors_;
};

inline HRESULT Descriptor::get_Index(LONG* index) {
    *index = 0;
    for (const auto& each : parent_.all()) {
        ++*index;
        if (each.get() == this) return S_OK;
    }
    return no_such_element();
}

class Configuration : public brxModel::hlxOPCConfiguration {
public:
    explicit Configuration(ServerEntry& entry) : entry_(entry) {}
    ~Configuration() override {
        VariantClear(&subgroup_value_);
        VariantClear(&piece_value_);
    }
    const std::wstring& name() const { return name_; }
    Tests& tests() { return *tests_.get(); }
    Descriptors& descriptors() { return *descriptors_.get(); }

    STDMETHODIMP get_Server(_hlxOPCServerHolder** holder) override {
        return brxModel::give(holder, holder_.get());
    }
    STDMETHODIMP get_OPCGroup(IDispatch** group) override {
        return brxModel::give(group, &entry_.server().group());
    }
    STDMETHODIMP get_Tests(_hlxOPCTests** tests) override { return brxModel::give(tests, tests_.get()); }
    STDMETHODIMP get_Descriptors(_hlxOPCDescriptors** descriptors) override {
        return brxModel::give(descriptors, descriptors_.get());
    }
    TEXT_PROPERTY(Name, name_)
    PROPERTY(VARIANT_BOOL, Active, active_)
    PROPERTY(LONG, UpdateRate, update_rate_)
    PROPERTY(float, DeadBand, dead_band_)
    PROPERTY(DATE, SyncDateTime, sync_)
    PROPERTY(LONG, SubgroupSize, subgroup_size_)
    PROPERTY(LONG, SubgroupInterval, subgroup_interval_)
    PROPERTY(short, SubgroupTimeUnit, subgroup_unit_)
    TEXT_PROPERTY(SubgroupTriggerItem, subgroup_item_)
    PROPERTY(short, SubgroupTriggerType, subgroup_type_)
    VARIANT_PROPERTY(SubgroupTriggerValue, subgroup_value_)
    PROPERTY(LONG, PieceInterval, piece_interval_)
    PROPERTY(short, PieceTimeUnit, piece_unit_)
    TEXT_PROPERTY(PieceTriggerItem, piece_item_)
    PROPERTY(short, PieceTriggerType, piece_type_)
    VARIANT_PROPERTY(PieceTriggerValue, piece_value_)

private:
    ServerEntry& entry_;
    Ref<Holder> holder_ = make<Holder>(entry_);
    Ref<Tests> tests_ = make<Tests>(this);
    Ref<Descriptors> descriptors_ = make<Descriptors>();
    std::wstring name_ = L"Line 1";
    VARIANT_BOOL active_ = VARIANT_TRUE;
    LONG update_rate_ = 1000;
    float dead_band_ = 0;
    DATE sync_ = 46023; // January 1, 2026
    LONG subgroup_size_ = 5;
    LONG subgroup_interval_ = 10;
    short subgroup_unit_ = 1; // minutes
    std::wstring subgroup_item_;
    short subgroup_type_ = 0;
    VARIANT subgroup_value_{};
    LONG piece_interval_ = 2;
    short piece_unit_ = 0; // seconds
    std::wstring piece_item_;
    short piece_type_ = 0;
    VARIANT piece_value_{};
};
