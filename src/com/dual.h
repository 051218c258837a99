#pragma once

#include "com/failure.h"
#include "com/type_info.h"
#include "win32/counted.h"

namespace brx {

/// What every COM object of ours consists of besides its own members: counted references, its dual interface
/// early and late bound, and the promise that a failing member leaves its error information.
template <class Interface> class Dual : public Counted<Interface, ISupportErrorInfo> {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        if (!object) return E_POINTER;
        *object = nullptr;
        if (iid == __uuidof(IUnknown) || iid == __uuidof(IDispatch) || iid == __uuidof(Interface))
            *object = static_cast<Interface*>(this);
        else if (iid == __uuidof(ISupportErrorInfo))
            *object = static_cast<ISupportErrorInfo*>(this);
        else
            return E_NOINTERFACE;
        this->AddRef();
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        if (!count) return E_POINTER;
        *count = 1;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID, ITypeInfo** info) override {
        if (!info) return E_POINTER;
        *info = nullptr;
        if (index != 0) return DISP_E_BADINDEX;
        return guard(__uuidof(Interface), [&] { *info = com_ptr<ITypeInfo>(type_info()).detach(); });
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
        return described([&](ITypeInfo& info) { return info.GetIDsOfNames(names, count, ids); });
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD flags, DISPPARAMS* parameters,
                                     VARIANT* result, EXCEPINFO* exception, UINT* argument) override {
        return described([&](ITypeInfo& info) {
            return info.Invoke(static_cast<Interface*>(this), member, flags, parameters, result, exception,
                               argument);
        });
    }

    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) override {
        return iid == __uuidof(Interface) || iid == __uuidof(IDispatch) ? S_OK : S_FALSE;
    }

private:
    const com_ptr<ITypeInfo>& type_info() {
        if (!type_info_) {
            libraries_ = TypeLibraries::open();
            type_info_ = libraries_->type_info(__uuidof(Interface));
        }
        return type_info_;
    }

    template <class Call> HRESULT described(Call&& call) noexcept {
        HRESULT result = S_OK;
        const HRESULT found = guard(__uuidof(Interface), [&] { result = call(*type_info().get()); });
        return FAILED(found) ? found : result;
    }

    std::shared_ptr<const TypeLibraries> libraries_;
    com_ptr<ITypeInfo> type_info_;
};

} // namespace brx
