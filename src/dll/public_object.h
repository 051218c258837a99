#pragma once

#include "com/bstr.h"
#include "com/dual.h"
#include "com/failure.h"
#include "dll/object_arguments.h"

#include <ocidl.h>

namespace brx {

/// What the COM object of every public class consists of besides its own members.
template <class Interface, class Coclass>
class PublicObject : public Dual<Interface>, public IProvideClassInfo {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        if (!object || iid != __uuidof(IProvideClassInfo))
            return Dual<Interface>::QueryInterface(iid, object);
        *object = static_cast<IProvideClassInfo*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return Dual<Interface>::AddRef(); }
    ULONG STDMETHODCALLTYPE Release() override { return Dual<Interface>::Release(); }

    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID iid, LCID lcid, WORD flags, DISPPARAMS* parameters,
                                     VARIANT* result, EXCEPINFO* exception, UINT* argument) override {
        com_ptr<ITypeInfo> info;
        const HRESULT described = this->GetTypeInfo(0, lcid, info.out());
        if (FAILED(described)) return described;
        return with_fitting_objects(*info.get(), member, flags, parameters, argument,
                                    [&](DISPPARAMS* fitting) {
                                        return Dual<Interface>::Invoke(member, iid, lcid, flags, fitting,
                                                                       result, exception, argument);
                                    });
    }

    HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** info) override {
        if (!info) return E_POINTER;
        *info = nullptr;
        return guard(__uuidof(Interface), [&] { *info = type_info_of(__uuidof(Coclass)).detach(); });
    }

protected:
    /// This object, whichever of its bases is asked.
    IUnknown& self() { return *static_cast<Interface*>(this); }

    /// A property as the host reads it.
    template <class Value> HRESULT read(const Value& value, Value* result) const {
        return guard(__uuidof(Interface), [&] {
            if (!result) throw error_of(E_POINTER);
            *result = value;
        });
    }
    HRESULT read(const std::string& text, BSTR* result) const {
        return guard(__uuidof(Interface), [&] {
            if (!result) throw error_of(E_POINTER);
            *result = Bstr(text).detach();
        });
    }
};

} // namespace brx
