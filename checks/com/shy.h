#pragma once

#include "win32/counted.h"

#include <windows.h>

#include <oleauto.h>

namespace brx::checks {

/// An OPC automation object that owns up to its own interface only, as the common wrapper's items and
/// browsers do, and leaves no error information.
template <class Unused, class Interface> class Shy : public Counted<Unused> {
public:
    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        const bool known = iid == __uuidof(IUnknown) || iid == __uuidof(Interface);
        *object = known ? static_cast<Interface*>(this) : nullptr;
        if (known) this->AddRef();
        return known ? S_OK : E_NOINTERFACE;
    }
    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        return E_NOTIMPL;
    }
};

} // namespace brx::checks
