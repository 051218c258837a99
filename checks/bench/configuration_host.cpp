#include "bench/configuration_host.h"

#include "bench/address_space.h"

#include "win32/counted.h"

#include <brxModel.h>

#include <algorithm>
#include <string_view>
#include <vector>

namespace brx::bench {

namespace {

HRESULT give(BSTR* result, std::wstring_view text) {
    *result = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    return *result ? S_OK : E_OUTOFMEMORY;
}

template <class Number, class Value> HRESULT give_number(Number* result, Value value) {
    *result = static_cast<Number>(value);
    return S_OK;
}

template <class Interface, class Object> HRESULT give_object(Interface** result, Object* object) {
    object->AddRef();
    *result = object;
    return S_OK;
}

/// The element that a position from 1 means.
template <class Interface, class Object>
HRESULT give_element(Interface** result, const std::vector<com_ptr<Object>>& elements,
                     const VARIANT& position) {
    if (V_VT(&position) != VT_I4 || V_I4(&position) < 1 ||
        V_I4(&position) > static_cast<LONG>(elements.size()))
        return E_INVALIDARG;
    return give_object(result, elements[static_cast<std::size_t>(V_I4(&position)) - 1].get());
}

template <class Object, class... Arguments>
std::vector<com_ptr<Object>> make_elements(int count, const Arguments&... arguments) {
    std::vector<com_ptr<Object>> elements;
    for (int number = 1; number <= count; ++number)
        elements.push_back(make_com<Object>(number, arguments...));
    return elements;
}

class StatusGroup final : public brxModel::IOPCGroup {
public:
    explicit StatusGroup(int number) : name_(Names(L"Line07.Station12.Group").of(number)) {}

    STDMETHODIMP get_Name(BSTR* result) override { return give(result, name_); }

private:
    std::wstring name_;
};

class StatusGroups final : public brxModel::IOPCGroups {
public:
    StatusGroups(int count, bool fresh) : groups_(make_elements<StatusGroup>(count)), fresh_(fresh) {}

    STDMETHODIMP get_Count(LONG* result) override { return give_number(result, groups_.size()); }
    STDMETHODIMP Item(VARIANT position, IOPCGroup** result) override {
        if (!fresh_) return give_element(result, groups_, position);
        *result = make_com<StatusGroup>(static_cast<int>(V_I4(&position))).detach();
        return S_OK;
    }

private:
    std::vector<com_ptr<StatusGroup>> groups_;
    bool fresh_;
};

int groups_asked_for = 0;

class StatusServer final : public brxModel::IOPCAutoServer {
public:
    explicit StatusServer(const Holdings& holdings)
        : groups_(make_com<StatusGroups>(holdings.groups, holdings.fresh_groups)) {}

    STDMETHODIMP get_StartTime(DATE* result) override { return give_number(result, 46000.25); }
    STDMETHODIMP get_CurrentTime(DATE* result) override { return give_number(result, 46001.5); }
    STDMETHODIMP get_LastUpdateTime(DATE* result) override { return give_number(result, 46001.25); }
    STDMETHODIMP get_MajorVersion(SHORT* result) override { return give_number(result, 3); }
    STDMETHODIMP get_MinorVersion(SHORT* result) override { return give_number(result, 0); }
    STDMETHODIMP get_BuildNumber(SHORT* result) override { return give_number(result, 17); }
    STDMETHODIMP get_VendorInfo(BSTR* result) override { return give(result, L"Bench"); }
    STDMETHODIMP get_ServerState(LONG* result) override { return give_number(result, 1); }
    STDMETHODIMP get_ServerName(BSTR* result) override { return give(result, L"Bench.Server"); }
    STDMETHODIMP get_ServerNode(BSTR* result) override { return give(result, L"PC7"); }
    STDMETHODIMP get_ClientName(BSTR* result) override { return give(result, L""); }
    STDMETHODIMP get_Bandwidth(LONG* result) override { return give_number(result, 4); }
    STDMETHODIMP get_OPCGroups(IOPCGroups** result) override {
        ++groups_asked_for;
        return give_object(result, groups_.get());
    }

private:
    com_ptr<StatusGroups> groups_;
};

class Entry final : public brxModel::hlxOPCServer {
public:
    explicit Entry(const Holdings& holdings) : connection_(make_com<StatusServer>(holdings)) {}

    STDMETHODIMP get_ServerName(BSTR* result) override { return give(result, L"Bench.Server"); }
    STDMETHODIMP get_Node(BSTR* result) override { return give(result, L"PC7"); }
    STDMETHODIMP get_OPCServer(IDispatch** result) override { return give_object(result, connection_.get()); }

private:
    com_ptr<StatusServer> connection_;
};

class Holder final : public brxModel::hlxOPCServerHolder {
public:
    explicit Holder(const Holdings& holdings) : entry_(make_com<Entry>(holdings)) {}

    STDMETHODIMP get_ServerEntry(_hlxOPCServer** result) override {
        return give_object(result, entry_.get());
    }

private:
    com_ptr<Entry> entry_;
};

class Test final : public brxModel::hlxOPCTest {
public:
    Test(int number, _hlxOPCTests* owner)
        : name_(Names(L"Diameter ").of(number)), item_(Names::of_leaves().of(number)), owner_(owner) {}

    STDMETHODIMP get_State(LONG* result) override { return give_number(result, 1); }
    STDMETHODIMP get_Parent(_hlxOPCTests** result) override { return give_object(result, owner_); }
    STDMETHODIMP get_OPCItemID(BSTR* result) override { return give(result, item_); }
    STDMETHODIMP get_CharacteristicName(BSTR* result) override { return give(result, name_); }

private:
    std::wstring name_;
    std::wstring item_;
    _hlxOPCTests* owner_;
};

class Tests final : public brxModel::hlxOPCTests {
public:
    Tests(int count, _hlxOPCConfiguration* owner) : tests_(make_elements<Test>(count, this)), owner_(owner) {}

    STDMETHODIMP get_Item(VARIANT position, _hlxOPCTest** result) override {
        return give_element(result, tests_, position);
    }
    STDMETHODIMP get_Count(LONG* result) override { return give_number(result, tests_.size()); }
    STDMETHODIMP get_Parent(_hlxOPCConfiguration** result) override { return give_object(result, owner_); }

private:
    std::vector<com_ptr<Test>> tests_;
    _hlxOPCConfiguration* owner_;
};

class Descriptor final : public brxModel::hlxOPCDescriptor {
public:
    explicit Descriptor(int number)
        : item_(Names(L"Order ").of(number)), group_(Names(L"Orders of line ").of(number)) {}

    STDMETHODIMP get_Type(LONG* result) override { return give_number(result, 5); }
    STDMETHODIMP get_ItemName(BSTR* result) override { return give(result, item_); }
    STDMETHODIMP get_GroupName(BSTR* result) override { return give(result, group_); }

private:
    std::wstring item_;
    std::wstring group_;
};

using DescriptorList = std::vector<com_ptr<Descriptor>>;

class DescriptorEnumerator final : public brxModel::Enumeration {
public:
    explicit DescriptorEnumerator(const DescriptorList& elements) : elements_(elements) {}

private:
    HRESULT next(VARIANT* element) override {
        if (next_ == elements_.size()) return S_FALSE;
        V_VT(element) = VT_DISPATCH;
        return give_object(&V_DISPATCH(element), elements_[next_++].get());
    }

    const DescriptorList& elements_;
    std::size_t next_ = 0;
};

class Descriptors final : public brxModel::hlxOPCDescriptors {
public:
    explicit Descriptors(int count) : elements_(make_elements<Descriptor>(count)) {}

    STDMETHODIMP get__NewEnum(IUnknown** result) override {
        *result = static_cast<IEnumVARIANT*>(make_com<DescriptorEnumerator>(elements_).detach());
        return S_OK;
    }

private:
    DescriptorList elements_;
};

class Configuration final : public brxModel::hlxOPCConfiguration {
public:
    explicit Configuration(const Holdings& holdings)
        : server_(make_com<Holder>(holdings)),
          tests_(make_com<Tests>(holdings.tests, this)),
          descriptors_(make_com<Descriptors>(holdings.descriptors)) {}

    STDMETHODIMP get_Server(_hlxOPCServerHolder** result) override {
        return give_object(result, server_.get());
    }
    STDMETHODIMP get_Descriptors(_hlxOPCDescriptors** result) override {
        return give_object(result, descriptors_.get());
    }
    STDMETHODIMP get_Tests(_hlxOPCTests** result) override { return give_object(result, tests_.get()); }
    STDMETHODIMP get_SubgroupSize(LONG* result) override { return give_number(result, 5); }
    STDMETHODIMP get_SubgroupTriggerItem(BSTR* result) override { return give(result, L""); }
    STDMETHODIMP get_SubgroupInterval(LONG* result) override { return give_number(result, 10); }
    STDMETHODIMP get_SubgroupTimeUnit(SHORT* result) override { return give_number(result, 1); }
    STDMETHODIMP get_PieceTriggerItem(BSTR* result) override { return give(result, L""); }
    STDMETHODIMP get_PieceInterval(LONG* result) override { return give_number(result, 2); }
    STDMETHODIMP get_PieceTimeUnit(SHORT* result) override { return give_number(result, 1); }
    STDMETHODIMP get_SyncDateTime(DATE* result) override { return give_number(result, 46001.5); }
    STDMETHODIMP get_SubgroupTriggerType(SHORT* result) override { return give_number(result, 0); }
    STDMETHODIMP get_PieceTriggerType(SHORT* result) override { return give_number(result, 0); }
    STDMETHODIMP get_Name(BSTR* result) override { return give(result, L"Bench"); }
    STDMETHODIMP get_Active(VARIANT_BOOL* result) override { return give_number(result, VARIANT_TRUE); }
    STDMETHODIMP get_DeadBand(FLOAT* result) override { return give_number(result, 1); }
    STDMETHODIMP get_UpdateRate(LONG* result) override { return give_number(result, 1000); }

private:
    com_ptr<Holder> server_;
    com_ptr<Tests> tests_;
    com_ptr<Descriptors> descriptors_;
};

} // namespace

com_ptr<_hlxOPCConfiguration> make_configuration(const Holdings& holdings) {
    return make_com<Configuration>(holdings);
}

int status_reads() { return groups_asked_for; }

} // namespace brx::bench
