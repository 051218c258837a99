#pragma once

#include <windows.h>

#include <oleauto.h>

namespace brx::checks {

/// An OPC automation object that owns up to its own interface only, as the common wrapper's items and
/// browsers do, and promises no error information. `Base` is of the model base.
template <class Base, class Interface> class Shy : public Base {
public:
    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        if (iid == __uuidof(IUnknown) || iid == __uuidof(Interface)) return Base::QueryInterface(iid, object);
        *object = nullptr;
        return E_NOINTERFACE;
    }
};

} // namespace brx::checks
