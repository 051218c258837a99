#include "com/type_text.h"

#include "com/bstr.h"
#include "com/failure.h"
#include "win32/com_ptr.h"
#include "win32/module.h"

#include <oleauto.h>

#include <cctype>
#include <cstdio>

namespace brx::checks {

namespace {

constexpr int libraries_in_this_program = 6;

com_ptr<ITypeLib> library(int number) {
    com_ptr<ITypeLib> result;
    check(
        LoadTypeLibEx((module_path() + L"\\" + std::to_wstring(number)).c_str(), REGKIND_NONE, result.out()));
    return result;
}

std::string text_of_guid(REFGUID guid) {
    wchar_t text[39];
    StringFromGUID2(guid, text, 39);
    return text_of(text + 1, 36);
}

std::string name_of(ITypeInfo& info, MEMBERID member = MEMBERID_NIL) {
    Bstr name;
    check(info.GetDocumentation(member, name.out(), nullptr, nullptr, nullptr));
    return name.text();
}

class Attributes {
public:
    explicit Attributes(ITypeInfo& info) : info_(info) { check(info.GetTypeAttr(&attributes_)); }
    Attributes(const Attributes&) = delete;
    Attributes& operator=(const Attributes&) = delete;
    ~Attributes() { info_.ReleaseTypeAttr(attributes_); }
    const TYPEATTR* operator->() const { return attributes_; }

private:
    ITypeInfo& info_;
    TYPEATTR* attributes_ = nullptr;
};

class Function {
public:
    Function(ITypeInfo& info, UINT index) : info_(info) { check(info.GetFuncDesc(index, &function_)); }
    Function(const Function&) = delete;
    Function& operator=(const Function&) = delete;
    ~Function() { info_.ReleaseFuncDesc(function_); }
    const FUNCDESC* operator->() const { return function_; }

private:
    ITypeInfo& info_;
    FUNCDESC* function_ = nullptr;
};

std::string type_text(ITypeInfo& info, const TYPEDESC& type) {
    switch (type.vt) {
    case VT_I2:
        return "short";
    case VT_I4:
        return "long";
    case VT_R4:
        return "float";
    case VT_R8:
        return "double";
    case VT_DATE:
        return "DATE";
    case VT_BSTR:
        return "BSTR";
    case VT_BOOL:
        return "VARIANT_BOOL";
    case VT_VARIANT:
        return "VARIANT";
    case VT_DISPATCH:
        return "IDispatch*";
    case VT_UNKNOWN:
        return "IUnknown*";
    case VT_VOID:
        return "void";
    case VT_HRESULT:
        return "HRESULT";
    case VT_PTR:
        return type_text(info, *type.lptdesc) + "*";
    case VT_SAFEARRAY:
        return "SAFEARRAY(" + type_text(info, *type.lptdesc) + ")";
    case VT_USERDEFINED: {
        com_ptr<ITypeInfo> user;
        check(info.GetRefTypeInfo(type.hreftype, user.out()));
        return name_of(*user.get());
    }
    default:
        return "type " + std::to_string(type.vt);
    }
}

std::string parameter_text(ITypeInfo& info, const ELEMDESC& parameter, const std::string& name) {
    const USHORT flags = parameter.paramdesc.wParamFlags;
    std::string text;
    if ((flags & PARAMFLAG_FOUT) != 0) text += (flags & PARAMFLAG_FIN) != 0 ? "inout " : "out ";
    if ((flags & PARAMFLAG_FHASDEFAULT) != 0) {
        const VARIANT& value = parameter.paramdesc.pparamdescex->varDefaultValue;
        text += "default " + std::to_string(V_VT(&value) == VT_BOOL ? V_BOOL(&value) : V_I4(&value)) + " ";
    } else if ((flags & PARAMFLAG_FOPT) != 0) {
        text += "optional ";
    }
    return text + type_text(info, parameter.tdesc) + name;
}

std::string function_text(ITypeInfo& info, const Function& function) {
    BSTR raw_names[16] = {};
    UINT count = 0;
    check(info.GetNames(function->memid, raw_names, 16, &count));
    std::vector<std::string> names;
    for (UINT i = 0; i < count; ++i) {
        names.push_back(text_of(raw_names[i]));
        SysFreeString(raw_names[i]);
    }

    std::string parameters;
    std::string result;
    for (SHORT i = 0; i < function->cParams; ++i) {
        const ELEMDESC& parameter = function->lprgelemdescParam[i];
        if ((parameter.paramdesc.wParamFlags & PARAMFLAG_FRETVAL) != 0) {
            result = " -> " + type_text(info, *parameter.tdesc.lptdesc);
            continue;
        }
        // A writer's value has no name in a type library.
        const auto position = static_cast<std::size_t>(i) + 1;
        const bool named = function->invkind != INVOKE_PROPERTYPUT && position < names.size();
        parameters += (parameters.empty() ? "" : ", ") +
                      parameter_text(info, parameter, named ? " " + names[position] : "");
    }

    const std::string kind = function->invkind == INVOKE_PROPERTYGET   ? "get "
                             : function->invkind == INVOKE_PROPERTYPUT ? "put "
                                                                       : "";
    char id[16];
    std::snprintf(id, sizeof(id), function->memid > 0xFFFF ? "%lX" : "%ld", function->memid);
    return kind + names[0] + "(" + parameters + ")" + result + " #" + id + "\n";
}

/// The same with its place in the virtual table, counted from the first own member.
std::string member_text(ITypeInfo& info, const Function& function) {
    constexpr int members_of_dispatch = 7;
    constexpr int unused = FUNCFLAG_FHIDDEN | FUNCFLAG_FRESTRICTED;
    const int slot = function->oVft / static_cast<int>(sizeof(void*));
    const std::string position = std::to_string(slot - members_of_dispatch + 1) + " ";
    if ((function->wFuncFlags & unused) == unused) return position + "kept free\n";
    return position + function_text(info, function);
}

// The identifiers of the members that every dual interface has from IUnknown and IDispatch.
constexpr MEMBERID first_of_dispatch = 0x60000000;
constexpr MEMBERID last_of_dispatch = 0x6001FFFF;

/// The interface that a host bound early to it calls through.
com_ptr<ITypeInfo> early_bound(ITypeInfo& info) {
    HREFTYPE reference = 0;
    com_ptr<ITypeInfo> result;
    check(info.GetRefTypeOfImplType(static_cast<UINT>(-1), &reference));
    check(info.GetRefTypeInfo(reference, result.out()));
    return result;
}

template <class Visit> void each_type(Visit&& visit) {
    for (int number = 1; number <= libraries_in_this_program; ++number) {
        const auto types = library(number);
        for (UINT i = 0; i < types->GetTypeInfoCount(); ++i) {
            com_ptr<ITypeInfo> info;
            check(types->GetTypeInfo(i, info.out()));
            visit(*types.get(), *info.get(), *Attributes(*info.get()).operator->());
        }
    }
}

std::string library_name(ITypeLib& types) {
    Bstr name;
    check(types.GetDocumentation(-1, name.out(), nullptr, nullptr, nullptr));
    return name.text();
}

} // namespace

std::vector<Identifier> described_identifiers() {
    std::vector<Identifier> found;
    for (int number = 1; number <= libraries_in_this_program; ++number) {
        const auto types = library(number);
        TLIBATTR* attributes = nullptr;
        check(types->GetLibAttr(&attributes));
        const std::string name = library_name(*types.get());
        found.push_back({"library", name, name, text_of_guid(attributes->guid)});
        types->ReleaseTLibAttr(attributes);
    }
    each_type([&](ITypeLib& types, ITypeInfo& info, const TYPEATTR& attributes) {
        if (attributes.typekind == TKIND_ENUM) return;
        const char* kind = attributes.typekind == TKIND_COCLASS ? "class" : "interface";
        found.push_back({kind, library_name(types), name_of(info), text_of_guid(attributes.guid)});
    });
    return found;
}

std::string members_of(const std::string& interface_name) {
    std::string members;
    each_type([&](ITypeLib&, ITypeInfo& info, const TYPEATTR& attributes) {
        if (attributes.typekind != TKIND_DISPATCH || name_of(info) != interface_name) return;
        if ((attributes.wTypeFlags & TYPEFLAG_FDUAL) == 0) return;
        const auto early = early_bound(info);
        const Attributes details(*early.get());
        if ((details->wTypeFlags & TYPEFLAG_FOLEAUTOMATION) == 0) members += "not for automation\n";
        const UINT count = details->cFuncs;
        for (UINT i = 0; i < count; ++i) members += member_text(*early.get(), Function(*early.get(), i));
    });
    return members;
}

std::string events_of(const std::string& dispinterface_name) {
    std::string events;
    each_type([&](ITypeLib&, ITypeInfo& info, const TYPEATTR& attributes) {
        if (attributes.typekind != TKIND_DISPATCH || name_of(info) != dispinterface_name) return;
        for (UINT i = 0; i < attributes.cFuncs; ++i) {
            const Function function(info, i);
            if (function->memid < first_of_dispatch) events += function_text(info, function);
        }
    });
    return events;
}

std::vector<std::string> members_without_help() {
    std::vector<std::string> found;
    each_type([&](ITypeLib&, ITypeInfo& info, const TYPEATTR& attributes) {
        if (attributes.typekind == TKIND_ENUM) return;
        const auto look = [&](MEMBERID member, const std::string& name) {
            Bstr help;
            check(info.GetDocumentation(member, nullptr, help.out(), nullptr, nullptr));
            if (help.text().empty()) found.push_back(name);
        };
        look(MEMBERID_NIL, name_of(info));
        if (attributes.typekind == TKIND_COCLASS) return;
        for (UINT i = 0; i < attributes.cFuncs; ++i) {
            const Function function(info, i);
            if (function->memid >= first_of_dispatch && function->memid <= last_of_dispatch) continue;
            look(function->memid, name_of(info) + "." + name_of(info, function->memid));
        }
    });
    return found;
}

} // namespace brx::checks
