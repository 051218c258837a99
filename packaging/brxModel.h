// What a C++ host implements its objects with: a class for each interface of brxOpcAuto6 and brxDatabase6, in
// which every member answers E_NOTIMPL. Derive from them and override what your objects have; docs/calls.html
// says what is called.
//
//     class Servers : public brx::hlxOPCServers {
//         HRESULT STDMETHODCALLTYPE get_Count(LONG* count) override {
//             *count = 2;
//             return S_OK;
//         }
//         ...
//     };
//     IDispatch* servers = new Servers; // has one reference; Release takes it back
//
// Dialogs call them on the thread that shows the dialog. A member that fails leaves its reason behind for the
// person: return brx::failed(L"The line is being cleaned.").

#if !defined(BRX_MODEL_H) && defined(__cplusplus)
#define BRX_MODEL_H

#include <windows.h>

#include <oleauto.h>

#include <brxDatabase6.h>
#include <brxOpcAuto6.h>

namespace brx {

/// Leaves error information for the caller and gives the code back. `source` is who says so, your program as
/// a rule.
inline HRESULT failed(const wchar_t* description, HRESULT code = E_FAIL, const wchar_t* source = L"") {
    ICreateErrorInfo* made = nullptr;
    if (SUCCEEDED(CreateErrorInfo(&made))) {
        made->SetDescription(const_cast<LPOLESTR>(description));
        made->SetSource(const_cast<LPOLESTR>(source));
        IErrorInfo* left = nullptr;
        if (SUCCEEDED(made->QueryInterface(IID_IErrorInfo, reinterpret_cast<void**>(&left)))) {
            SetErrorInfo(0, left);
            left->Release();
        }
        made->Release();
    }
    return code;
}

/// Gives an object out of a member: with a reference of its own, Nothing for a null pointer.
template <class Given, class Interface> HRESULT give(Given** result, Interface* object) {
    if (!result) return E_POINTER;
    *result = object;
    if (object) object->AddRef();
    return S_OK;
}

/// Gives a text out of a member.
inline HRESULT give(BSTR* result, const wchar_t* text) {
    if (!result) return E_POINTER;
    *result = SysAllocString(text);
    return *result ? S_OK : E_OUTOFMEMORY;
}

/// References, the interface, and the promise to leave error information. Scripts and other late callers are
/// not served: who wants that overrides the members of IDispatch, for instance by the type library.
template <class Interface> class Object : public Interface, public ISupportErrorInfo {
public:
    Object() = default;
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        if (!object) return E_POINTER;
        if (iid == IID_IUnknown || iid == IID_IDispatch || iid == __uuidof(Interface))
            *object = static_cast<Interface*>(this);
        else if (iid == IID_ISupportErrorInfo)
            *object = static_cast<ISupportErrorInfo*>(this);
        else {
            *object = nullptr;
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override {
        return static_cast<ULONG>(InterlockedIncrement(&references_));
    }
    ULONG STDMETHODCALLTYPE Release() override {
        const LONG left = InterlockedDecrement(&references_);
        if (left == 0) delete this;
        return static_cast<ULONG>(left);
    }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        if (!count) return E_POINTER;
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                     UINT*) override {
        return E_NOTIMPL;
    }

    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) override {
        return iid == __uuidof(Interface) ? S_OK : S_FALSE;
    }

protected:
    virtual ~Object() = default;

private:
    LONG references_ = 1;
};
// @CLASSES@

} // namespace brx

#endif
