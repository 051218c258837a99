#include "windows/error_object.h"

#include "com/bstr.h"
#include "com/failure.h"
#include "win32/module.h"

#include <array>
#include <memory>
#include <string>
#include <utility>

namespace brx::checks {

namespace {

/// A COM object with one interface.
template <class Interface> class Counted : public Interface {
public:
    Counted() = default;
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;
    virtual ~Counted() = default;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        if (!object) return E_POINTER;
        const bool known = iid == IID_IUnknown || iid == __uuidof(Interface);
        *object = known ? static_cast<Interface*>(this) : nullptr;
        if (!known) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --references_;
        if (left == 0) std::unique_ptr<Counted>(this).reset();
        return left;
    }

private:
    ULONG references_ = 0; // used on one thread only
};

class Factory final : public Counted<IClassFactory> {
public:
    explicit Factory(std::function<com_ptr<IDispatch>()> make) : make_(std::move(make)) {}

    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** object) override {
        if (!object) return E_POINTER;
        *object = nullptr;
        if (outer) return CLASS_E_NOAGGREGATION;
        HRESULT found = S_OK;
        const HRESULT made = guard(iid, [&] { found = make_()->QueryInterface(iid, object); });
        return FAILED(made) ? made : found;
    }
    STDMETHODIMP LockServer(BOOL) override { return S_OK; }

private:
    std::function<com_ptr<IDispatch>()> make_;
};

constexpr DISPID show_member = 77; // any number will do
constexpr UINT value_count = 5;

class ErrorObject final : public Counted<IDispatch> {
public:
    ErrorObject(ErrorLibraries& host, ErrorLibrary library) : host_(host), library_(library) {}

    STDMETHODIMP GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo** info) override {
        *info = nullptr;
        return E_NOTIMPL;
    }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* members) override {
        const bool known = count == 1 && lstrcmpiW(names[0], L"Show") == 0;
        members[0] = known ? show_member : DISPID_UNKNOWN;
        return known ? S_OK : DISP_E_UNKNOWNNAME;
    }
    STDMETHODIMP Invoke(DISPID member, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                        UINT*) override {
        if (member != show_member) return DISP_E_MEMBERNOTFOUND;
        return guard(IID_IDispatch, [&] {
            bool taken = true;
            host_.Show(library_, report_in(flags, *parameters), [&] { taken = false; });
            if (!taken) throw Error(error::internal);
        });
    }

private:
    static ErrorReport report_in(WORD flags, const DISPPARAMS& parameters) {
        const auto value = [&](UINT position) -> const VARIANT& {
            return parameters.rgvarg[value_count - 1 - position]; // the last one comes first
        };
        bool well_formed = (flags & DISPATCH_METHOD) != 0 && parameters.cArgs == value_count &&
                           parameters.cNamedArgs == 0 && V_VT(&value(0)) == VT_I4;
        for (UINT i = 1; well_formed && i < value_count; ++i) well_formed = V_VT(&value(i)) == VT_BSTR;
        if (!well_formed) return {-1, "Error.Show was not called with its five values", {}, {}, {}};
        const auto told = [&](UINT position) { return brx::text_of(V_BSTR(&value(position))); };
        return {V_I4(&value(0)), told(1), told(2), told(3), told(4)};
    }

    ErrorLibraries& host_;
    ErrorLibrary library_;
    ModuleLock lock_; // counts among the host's objects
};

} // namespace

com_ptr<IClassFactory> make_factory(std::function<com_ptr<IDispatch>()> make) {
    return com_ptr<IClassFactory>(std::make_unique<Factory>(std::move(make)).release());
}

com_ptr<IDispatch> make_error_object(ErrorLibraries& host, ErrorLibrary library) {
    return com_ptr<IDispatch>(std::make_unique<ErrorObject>(host, library).release());
}

} // namespace brx::checks
