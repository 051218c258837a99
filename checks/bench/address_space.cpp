#include "bench/address_space.h"

#include "win32/counted.h"

#include <brxModel.h>

namespace brx::bench {

namespace {

constexpr LONG hierarchical = 1;
constexpr LONG flat = 2;

class Browser final : public brxModel::OPCBrowser {
public:
    explicit Browser(const AddressSpace& space) : space_(space) {}

    STDMETHODIMP get_Organization(LONG* result) override {
        *result = space_.flat ? flat : hierarchical;
        return S_OK;
    }
    STDMETHODIMP get_Count(LONG* result) override {
        *result = count_;
        return S_OK;
    }
    STDMETHODIMP Item(VARIANT position, BSTR* result) override {
        if (V_VT(&position) != VT_I4 || V_I4(&position) < 1 || V_I4(&position) > count_) return E_INVALIDARG;
        const std::wstring& name = names_.of(V_I4(&position));
        *result = SysAllocStringLen(name.data(), static_cast<UINT>(name.size()));
        return *result ? S_OK : E_OUTOFMEMORY;
    }
    STDMETHODIMP ShowBranches() override {
        // A flat space that listed no branch would be taken for one that cannot be browsed.
        if (space_.flat)
            list(Names::of_branches(), 1);
        else if (depth_ == 0)
            list(Names::of_branches(), space_.branches);
        else
            list(Names::of_sub_branches(), depth_ == 1 ? space_.sub_branches : 0);
        return S_OK;
    }
    STDMETHODIMP ShowLeafs(VARIANT) override {
        list(Names::of_leaves(), space_.leaves);
        return S_OK;
    }
    STDMETHODIMP MoveToRoot() override {
        depth_ = 0;
        count_ = 0;
        return S_OK;
    }
    STDMETHODIMP MoveTo(SAFEARRAY** path) override {
        depth_ = (*path)->rgsabound[0].cElements;
        count_ = 0;
        return S_OK;
    }
    STDMETHODIMP GetItemID(BSTR leaf, BSTR* result) override {
        *result = SysAllocStringLen(leaf, SysStringLen(leaf));
        return *result ? S_OK : E_OUTOFMEMORY;
    }

private:
    void list(const Names& names, int count) {
        names_ = names;
        count_ = count;
    }

    AddressSpace space_;
    Names names_ = Names::of_leaves();
    int count_ = 0;
    ULONG depth_ = 0;
};

class Server final : public brxModel::IOPCAutoServer {
public:
    explicit Server(const AddressSpace& space) : space_(space) {}

    STDMETHODIMP get_ServerName(BSTR* result) override {
        *result = SysAllocString(L"Bench.Server");
        return S_OK;
    }
    STDMETHODIMP get_ServerNode(BSTR* result) override {
        *result = SysAllocString(L"");
        return S_OK;
    }
    STDMETHODIMP CreateBrowser(::OPCBrowser** result) override {
        *result = make_com<Browser>(space_).detach();
        return S_OK;
    }

private:
    AddressSpace space_;
};

class Group final : public brxModel::IOPCGroup {
public:
};

} // namespace

com_ptr<IOPCAutoServer> make_server(const AddressSpace& space) { return make_com<Server>(space); }

com_ptr<IOPCGroup> make_group() { return make_com<Group>(); }

} // namespace brx::bench
