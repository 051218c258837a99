// What a C++ host implements its objects with: a class for each interface of brxOpcAuto6, brxDatabase6 and
// OPCAutomation, of the same name without its underscore, in which every member answers E_NOTIMPL. Derive
// from them and override what your objects have; docs/calls.html says what is called.
//
//     class Servers : public brxModel::hlxOPCServers {
//         HRESULT STDMETHODCALLTYPE get_Count(LONG* count) override {
//             *count = 2;
//             return S_OK;
//         }
//         ...
//     };
//     IDispatch* servers = new Servers; // has one reference; Release takes it back
//
// Dialogs call them on the thread that shows the dialog. A member that fails leaves its reason behind for the
// person: return brxModel::failed(L"The line is being cleaned."). No exception may leave a member.
//
// Scripts and other late callers are served as well where the type libraries are resources of your program or
// DLL, numbered from 1 on:
//
//     1 TYPELIB "brxOpcAuto6.tlb"
//     2 TYPELIB "brxDatabase6.tlb"

#if !defined(BRX_MODEL_H) && defined(__cplusplus)
#define BRX_MODEL_H

#include <windows.h>

#include <oleauto.h>

#include <OPCAutomation.h>
#include <brxDatabase6.h>
#include <brxOpcAuto6.h>

namespace brxModel {

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

/// What a member answers that nobody has overridden.
inline HRESULT missing(const wchar_t* description) { return failed(description, E_NOTIMPL, L"brxModel"); }

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
inline HRESULT give(BSTR* result, wchar_t* text) { return give(result, static_cast<const wchar_t*>(text)); }

/// The description of an interface in the type libraries of the module that this was compiled into.
inline HRESULT description_of(REFIID iid, ITypeInfo** description) {
    static const wchar_t here = L' '; // lies in that module
    const DWORD longest = 0x7FFF;
    *description = nullptr;
    BSTR file = SysAllocStringLen(nullptr, longest + 16);
    if (!file) return E_OUTOFMEMORY;
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       &here, &module);
    const DWORD length = GetModuleFileNameW(module, file, longest);
    for (int number = 1; !*description; ++number) {
        wsprintfW(file + length, L"\\%d", number);
        ITypeLib* library = nullptr;
        if (FAILED(LoadTypeLibEx(file, REGKIND_NONE, &library))) break;
        library->GetTypeInfoOfGuid(iid, description);
        library->Release();
    }
    SysFreeString(file);
    return *description ? S_OK : TYPE_E_ELEMENTNOTFOUND;
}

/// References, from any thread, an interface, and the promise to leave error information.
template <class Interface> class Referenced : public Interface, public ISupportErrorInfo {
public:
    Referenced() = default;
    Referenced(const Referenced&) = delete;
    Referenced& operator=(const Referenced&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        if (!object) return E_POINTER;
        if (iid == IID_IUnknown || iid == __uuidof(Interface))
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

    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) override {
        return iid == __uuidof(Interface) ? S_OK : S_FALSE;
    }

protected:
    virtual ~Referenced() = default;

private:
    LONG references_ = 1;
};

/// An object with an automation interface, early and, by its type library, late bound.
template <class Interface> class Object : public Referenced<Interface> {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        return Referenced<Interface>::QueryInterface(iid == IID_IDispatch ? __uuidof(Interface) : iid,
                                                     object);
    }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        if (!count) return E_POINTER;
        *count = description() ? 1 : 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID, ITypeInfo** info) override {
        if (!info) return E_POINTER;
        *info = nullptr;
        return index == 0 && description() ? give(info, description()) : DISP_E_BADINDEX;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
        return description() ? description()->GetIDsOfNames(names, count, ids) : E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD flags, DISPPARAMS* arguments,
                                     VARIANT* result, EXCEPINFO* exception, UINT* wrong) override {
        return description() ? description()->Invoke(static_cast<Interface*>(this), member, flags, arguments,
                                                     result, exception, wrong)
                             : E_NOTIMPL;
    }

    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) override {
        return iid == __uuidof(Interface) || iid == IID_IDispatch ? S_OK : S_FALSE;
    }

protected:
    ~Object() override {
        if (description_) description_->Release();
    }

private:
    /// Null when the module has no such type library.
    ITypeInfo* description() {
        ITypeInfo* found = nullptr;
        if (!description_ && SUCCEEDED(description_of(__uuidof(Interface), &found)) &&
            InterlockedCompareExchangePointer(reinterpret_cast<void* volatile*>(&description_), found,
                                              nullptr))
            found->Release(); // another thread was first
        return description_;
    }

    ITypeInfo* description_ = nullptr;
};

/// An error class, brxError6.Error or hlxER01.Error: its Show is called by name.
class ErrorReports : public Referenced<IDispatch> {
public:
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        if (!count) return E_POINTER;
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
        if (!names || !ids) return E_POINTER;
        if (count != 1 || lstrcmpiW(names[0], L"Show") != 0) return DISP_E_UNKNOWNNAME;
        ids[0] = 1;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT*,
                                     EXCEPINFO*, UINT*) override {
        if (member != 1) return DISP_E_MEMBERNOTFOUND;
        if (!arguments || arguments->cArgs != 5) return DISP_E_BADPARAMCOUNT;
        const VARIANT* last = arguments->rgvarg; // they come from the last to the first
        if (last[4].vt != VT_I4) return DISP_E_TYPEMISMATCH;
        for (int i = 0; i < 4; ++i)
            if (last[i].vt != VT_BSTR) return DISP_E_TYPEMISMATCH;
        Show(last[4].lVal, text(last[3]), text(last[2]), text(last[1]), text(last[0]));
        return S_OK;
    }

protected:
    /// One error: its number, text and source, the place in the dialogs, and which version reports it.
    virtual void Show(LONG number, const wchar_t* description, const wchar_t* source, const wchar_t* location,
                      const wchar_t* application) = 0;

private:
    static const wchar_t* text(const VARIANT& argument) { return argument.bstrVal ? argument.bstrVal : L""; }
};

/// Makes objects of a class of yours, for `offer`.
template <class Class> class Factory : public Referenced<IClassFactory> {
public:
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) override {
        if (!object) return E_POINTER;
        *object = nullptr;
        if (outer) return CLASS_E_NOAGGREGATION;
        Class* made = new Class;
        const HRESULT result = made->QueryInterface(iid, object);
        made->Release();
        return result;
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }
};

/// Offers a class, to this process alone, that the component creates itself: CLSID_hlxMessage for instance.
/// Until CoRevokeClassObject gets the cookie.
template <class Class> HRESULT offer(REFCLSID clsid, DWORD* cookie) {
    auto* factory = new Factory<Class>;
    const HRESULT result = CoRegisterClassObject(clsid, static_cast<IClassFactory*>(factory),
                                                 CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, cookie);
    factory->Release();
    return result;
}

/// What _NewEnum gives, once through the elements: *result = static_cast<IEnumVARIANT*>(new Elements).
class Enumeration : public Referenced<IEnumVARIANT> {
public:
    HRESULT STDMETHODCALLTYPE Next(ULONG count, VARIANT* elements, ULONG* fetched) override {
        if (!elements) return E_POINTER;
        ULONG done = 0;
        HRESULT result = S_OK;
        while (done < count && result == S_OK) {
            VariantInit(&elements[done]);
            result = next(&elements[done]);
            if (result == S_OK) ++done;
        }
        if (FAILED(result))
            while (done > 0) VariantClear(&elements[--done]);
        if (fetched) *fetched = done;
        return result;
    }
    HRESULT STDMETHODCALLTYPE Skip(ULONG count) override {
        HRESULT result = S_OK;
        while (count > 0 && result == S_OK) {
            VARIANT element;
            VariantInit(&element);
            result = next(&element);
            VariantClear(&element);
            --count;
        }
        return result;
    }
    HRESULT STDMETHODCALLTYPE Reset() override { return missing(L"IEnumVARIANT::Reset is not implemented."); }
    HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** copy) override {
        if (!copy) return E_POINTER;
        *copy = nullptr;
        return missing(L"IEnumVARIANT::Clone is not implemented.");
    }

protected:
    /// Puts the next element into an empty variant: S_OK, or S_FALSE when there is none.
    virtual HRESULT next(VARIANT* element) = 0;
};
// @CLASSES@

} // namespace brxModel

#endif
