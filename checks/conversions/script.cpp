#include "conversions/script.h"

#include "com/bstr.h"
#include "common/error.h"
#include "conversions/reference.h"
#include "win32/com_ptr.h"

#include <initguid.h>

#include <activscp.h>

#include <cstdio>

namespace brx::conversions {
namespace {

void check(HRESULT result, const char* step) {
    if (FAILED(result))
        throw Error(error::cannot_create_object, std::string("script engine: ") + step + " failed");
}

/// The least that an engine wants of its host.
class Site final : public IActiveScriptSite {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        if (iid == IID_IUnknown || iid == IID_IActiveScriptSite) {
            *object = static_cast<IActiveScriptSite*>(this);
            return S_OK;
        }
        *object = nullptr;
        return E_NOINTERFACE;
    }
    // Lives as long as the engine that it belongs to.
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE GetLCID(LCID* locale) override {
        *locale = GetUserDefaultLCID();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetItemInfo(LPCOLESTR, DWORD, IUnknown**, ITypeInfo**) override {
        return TYPE_E_ELEMENTNOTFOUND;
    }
    HRESULT STDMETHODCALLTYPE GetDocVersionString(BSTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnScriptTerminate(const VARIANT*, const EXCEPINFO*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnStateChange(SCRIPTSTATE) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnScriptError(IActiveScriptError*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnEnterScript() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnLeaveScript() override { return S_OK; }
};

/// A function for each conversion, which answers failures with "error" and the number.
std::string program() {
    const auto function = [](const std::string& name, const std::string& expression) {
        return "Function Ask" + name + "(x)\r\nOn Error Resume Next\r\nAsk" + name + " = " + expression +
               "\r\nIf Err.Number <> 0 Then Ask" + name + " = \"error \" & Err.Number\r\nEnd Function\r\n";
    };
    std::string text;
    for (const char* name :
         {"IsNumeric", "CDbl", "CSng", "CInt", "CLng", "CBool", "CDate", "CStr", "UCase", "Trim"}) {
        text += function(name, name + std::string("(x)"));
    }
    return text + function("ShortDate", "FormatDateTime(x, 2)") +
           function("LongTime", "FormatDateTime(x, 3)");
}

std::string shown(const VARIANT& answer) {
    switch (V_VT(&answer)) {
    case VT_EMPTY:
        return "nothing";
    case VT_BSTR:
        return text_of(V_BSTR(&answer));
    case VT_BOOL:
        return V_BOOL(&answer) ? "-1" : "0";
    case VT_I2:
        return conversions::shown(static_cast<double>(V_I2(&answer)));
    case VT_I4:
        return conversions::shown(static_cast<double>(V_I4(&answer)));
    case VT_R4:
        return conversions::shown(static_cast<double>(V_R4(&answer)));
    case VT_R8:
        return conversions::shown(V_R8(&answer));
    case VT_DATE:
        return conversions::shown(V_DATE(&answer));
    default:
        return "type " + std::to_string(V_VT(&answer));
    }
}

} // namespace

class Script::Engine {
public:
    Engine() {
        check(CoInitialize(nullptr), "CoInitialize");
        CLSID id;
        check(CLSIDFromProgID(L"VBScript", &id), "finding the class");
        void* engine = nullptr;
        check(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IActiveScript, &engine), "creating");
        engine_ = com_ptr<IActiveScript>::adopt(static_cast<IActiveScript*>(engine));
        void* parser = nullptr;
        check(engine_->QueryInterface(IID_IActiveScriptParse, &parser), "finding the parser");
        parser_ = com_ptr<IActiveScriptParse>::adopt(static_cast<IActiveScriptParse*>(parser));
        check(parser_->InitNew(), "InitNew");
        check(engine_->SetScriptSite(&site_), "SetScriptSite");
        check(engine_->SetScriptState(SCRIPTSTATE_CONNECTED), "SetScriptState");
        EXCEPINFO failure{};
        check(parser_->ParseScriptText(wide(program()).c_str(), nullptr, nullptr, nullptr, 0, 0, 0, nullptr,
                                       &failure),
              "ParseScriptText");
        check(engine_->GetScriptDispatch(nullptr, functions_.out()), "GetScriptDispatch");
    }
    ~Engine() { engine_->Close(); }
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    std::string call(const std::string& function, const VARIANT& argument) const {
        std::wstring name = wide("Ask" + function);
        LPOLESTR names = name.data();
        DISPID id = 0;
        check(functions_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id), "GetIDsOfNames");
        VARIANT copy = argument;
        DISPPARAMS parameters{&copy, nullptr, 1, 0};
        VARIANT answer;
        VariantInit(&answer);
        check(functions_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, &answer,
                                 nullptr, nullptr),
              "Invoke");
        std::string text = shown(answer);
        VariantClear(&answer);
        return text;
    }

private:
    Site site_;
    com_ptr<IActiveScript> engine_;
    com_ptr<IActiveScriptParse> parser_;
    com_ptr<IDispatch> functions_;
};

Script::Script() : engine_(std::make_unique<Engine>()) {}
Script::~Script() = default;

std::string Script::call(const std::string& function, const VARIANT& argument) const {
    return engine_->call(function, argument);
}

std::string Script::call(const std::string& function, const std::string& text) const {
    Bstr argument(text);
    VARIANT variant;
    VariantInit(&variant);
    V_VT(&variant) = VT_BSTR;
    V_BSTR(&variant) = argument.get();
    return call(function, variant);
}

std::string Script::call(const std::string& function, double number) const {
    VARIANT variant;
    VariantInit(&variant);
    V_VT(&variant) = VT_R8;
    V_R8(&variant) = number;
    return call(function, variant);
}

} // namespace brx::conversions
