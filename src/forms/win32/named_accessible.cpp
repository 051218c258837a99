#include "forms/win32/named_accessible.h"

#include "win32/com_ptr.h"
#include "win32/counted.h"
#include "win32/system_function.h"

#include <oleacc.h>

#include <utility>

namespace brx {

namespace {

/// Hands every question on to the system's object, but the one for its name.
class NamedAccessible final : public Counted<IAccessible> {
public:
    NamedAccessible(com_ptr<IAccessible> system, std::wstring name)
        : system_(std::move(system)), name_(std::move(name)) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        if (!object) return E_POINTER;
        if (iid == IID_IUnknown || iid == IID_IDispatch || iid == __uuidof(IAccessible)) {
            *object = static_cast<IAccessible*>(this);
            AddRef();
            return S_OK;
        }
        // Its window, and whatever else it lets be asked.
        return system_->QueryInterface(iid, object);
    }

    HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override {
        if (!name) return E_POINTER;
        if (child.vt != VT_I4 || child.lVal != CHILDID_SELF) return system_->get_accName(child, name);
        *name = SysAllocString(name_.c_str());
        return *name ? S_OK : E_OUTOFMEMORY;
    }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        return system_->GetTypeInfoCount(count);
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override {
        return system_->GetTypeInfo(index, locale, info);
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale,
                                            DISPID* ids) override {
        return system_->GetIDsOfNames(iid, names, count, locale, ids);
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* arguments,
                                     VARIANT* result, EXCEPINFO* exception, UINT* wrong) override {
        return system_->Invoke(id, iid, locale, flags, arguments, result, exception, wrong);
    }
    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override {
        return system_->get_accParent(parent);
    }
    HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) override {
        return system_->get_accChildCount(count);
    }
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) override {
        return system_->get_accChild(child, object);
    }
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) override {
        return system_->get_accValue(child, value);
    }
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* text) override {
        return system_->get_accDescription(child, text);
    }
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override {
        return system_->get_accRole(child, role);
    }
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override {
        return system_->get_accState(child, state);
    }
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT child, BSTR* text) override {
        return system_->get_accHelp(child, text);
    }
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) override {
        return system_->get_accHelpTopic(file, child, topic);
    }
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* keys) override {
        return system_->get_accKeyboardShortcut(child, keys);
    }
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) override { return system_->get_accFocus(child); }
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* children) override {
        return system_->get_accSelection(children);
    }
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* text) override {
        return system_->get_accDefaultAction(child, text);
    }
    HRESULT STDMETHODCALLTYPE accSelect(LONG flags, VARIANT child) override {
        return system_->accSelect(flags, child);
    }
    HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height,
                                          VARIANT child) override {
        return system_->accLocation(left, top, width, height, child);
    }
    HRESULT STDMETHODCALLTYPE accNavigate(LONG direction, VARIANT start, VARIANT* end) override {
        return system_->accNavigate(direction, start, end);
    }
    HRESULT STDMETHODCALLTYPE accHitTest(LONG left, LONG top, VARIANT* child) override {
        return system_->accHitTest(left, top, child);
    }
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override {
        return system_->accDoDefaultAction(child);
    }
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT child, BSTR name) override {
        return system_->put_accName(child, name);
    }
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT child, BSTR value) override {
        return system_->put_accValue(child, value);
    }

private:
    com_ptr<IAccessible> system_;
    std::wstring name_;
};

} // namespace

LRESULT named_accessible(HWND window, WPARAM flags, const std::wstring& name) {
    // Loaded with the first question of a screen reader: most programs are never asked.
    static const HMODULE library = load_of_system(L"oleacc.dll");
    static const auto create =
        function_of<decltype(&CreateStdAccessibleObject)>(library, "CreateStdAccessibleObject");
    static const auto answer = function_of<decltype(&LresultFromObject)>(library, "LresultFromObject");
    void* system = nullptr;
    if (!create || !answer || FAILED(create(window, OBJID_CLIENT, __uuidof(IAccessible), &system))) return 0;
    const auto named =
        make_com<NamedAccessible>(com_ptr<IAccessible>::adopt(static_cast<IAccessible*>(system)), name);
    return answer(__uuidof(IAccessible), flags, named.get());
}

} // namespace brx
