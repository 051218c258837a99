#include "com/bstr.h"
#include "server/debugger_output.h"
#include "server/dll.h"
#include "server/error_library.h"
#include "server/opened_windows.h"
#include "server/script_object.h"

#include <brxOpcAuto6.h>
#include <brxOpcDlgs6.h>
#include <gtest/gtest.h>

#include <optional>

namespace brx::checks {

namespace {

/// An argument as callers pass them.
VARIANT of_kind(VARTYPE kind) {
    VARIANT argument;
    VariantInit(&argument);
    V_VT(&argument) = kind;
    return argument;
}

VARIANT plain(IDispatch* object) {
    VARIANT argument = of_kind(VT_DISPATCH);
    V_DISPATCH(&argument) = object;
    return argument;
}

VARIANT reference_to(VARIANT& variable) {
    VARIANT argument = of_kind(VT_BYREF | VT_VARIANT);
    V_VARIANTREF(&argument) = &variable;
    return argument;
}

VARIANT reference_to(IDispatch*& variable) {
    VARIANT argument = of_kind(VT_BYREF | VT_DISPATCH);
    V_DISPATCHREF(&argument) = &variable;
    return argument;
}

/// How one late-bound call went.
struct Outcome {
    HRESULT code = S_OK;
    UINT argument_at_fault = 99;
    std::optional<bool> result;
};

/// What a person's script is to see of a call that got to Show.
bool is_false(const Outcome& outcome) { return outcome.code == S_OK && outcome.result == false; }

class CallTest : public testing::Test {
protected:
    DISPID id_of(IDispatch* object, std::vector<const wchar_t*> names) {
        std::vector<DISPID> ids(names.size(), DISPID_UNKNOWN);
        object->GetIDsOfNames(IID_NULL, const_cast<LPOLESTR*>(names.data()), static_cast<UINT>(names.size()),
                              LOCALE_USER_DEFAULT, ids.data());
        return ids.back();
    }

    Outcome show(IDispatch* object, std::vector<VARIANT> arguments, bool named = false,
                 WORD flags = DISPATCH_METHOD) {
        DISPID name = named ? id_of(object, {L"Show", parameter_name}) : DISPID_UNKNOWN;
        DISPPARAMS parameters{arguments.data(), &name, static_cast<UINT>(arguments.size()), named ? 1u : 0u};
        Outcome outcome;
        VARIANT result = of_kind(VT_EMPTY);
        outcome.code = object->Invoke(id_of(object, {L"Show"}), IID_NULL, LOCALE_USER_DEFAULT, flags,
                                      &parameters, &result, nullptr, &outcome.argument_at_fault);
        if (V_VT(&result) == VT_BOOL) outcome.result = V_BOOL(&result) != VARIANT_FALSE;
        VariantClear(&result);
        return outcome;
    }

    Apartment apartment;
    Dll dll;
    ErrorLibrary6 errors;
    OpenedWindows windows;
    /// Not a collection of servers: Show asks it, which tells that it arrived, and then reports the mismatch.
    ScriptObject other;
    const wchar_t* parameter_name = L"hlxOPCServers";
    com_ptr<IDispatch> select = dll.create<IDispatch>(CLSID_ServerSelect);
    com_ptr<IDispatch> add = dll.create<IDispatch>(CLSID_ServerAdd);

    bool arrived_once() const { return other.refusals_of(IID__hlxOPCServers) == 1; }
};

} // namespace

TEST_F(CallTest, APropertyIsReadAndWrittenByName) {
    VARIANT value = of_kind(VT_BSTR);
    V_BSTR(&value) = SysAllocString(L"12");
    DISPID put = DISPID_PROPERTYPUT;
    DISPPARAMS to_write{&value, &put, 1, 1};
    const DISPID id = id_of(select.get(), {L"serverindex"});
    EXPECT_EQ(select->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT, &to_write, nullptr,
                             nullptr, nullptr),
              S_OK);
    SysFreeString(V_BSTR(&value));

    DISPPARAMS none{};
    VARIANT result = of_kind(VT_EMPTY);
    EXPECT_EQ(select->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, &result, nullptr,
                             nullptr),
              S_OK);
    EXPECT_EQ(V_VT(&result), VT_I2);
    EXPECT_EQ(V_I2(&result), 12);
}

TEST_F(CallTest, AnAccessorSaysWhenItIsGivenNowhereToWrite) {
    EXPECT_EQ(dll.create<_ServerSelect>(CLSID_ServerSelect)->get_ServerIndex(nullptr), E_POINTER);
    EXPECT_EQ(dll.create<_ServerAdd>(CLSID_ServerAdd)->get_ServerIndex(nullptr), E_POINTER);
}

TEST_F(CallTest, AnItemIdentifierIsKeptAsItIsGiven) {
    const auto leaf = dll.create<_LeafSelect>(CLSID_LeafSelect);
    Bstr item;
    EXPECT_EQ(leaf->get_ItemID(item.out()), S_OK);
    EXPECT_EQ(item.text(), "");
    // With a NUL, half a surrogate pair and a letter beyond the first plane.
    const std::wstring odd = std::wstring(L"a") + L'\0' + L"b\xD800 \xD83C\xDFED";
    const BSTR given = SysAllocStringLen(odd.data(), static_cast<UINT>(odd.size()));
    EXPECT_EQ(leaf->put_ItemID(given), S_OK);
    SysFreeString(given);
    EXPECT_EQ(leaf->get_ItemID(item.out()), S_OK);
    EXPECT_EQ(std::wstring(item.get(), SysStringLen(item.get())), odd);
    EXPECT_EQ(leaf->put_ItemID(nullptr), S_OK);
    EXPECT_EQ(leaf->get_ItemID(item.out()), S_OK);
    EXPECT_EQ(item.text(), "");
    EXPECT_EQ(leaf->get_ItemID(nullptr), E_POINTER);
}

TEST_F(CallTest, AVariableOfAScriptIsTakenByReference) {
    VARIANT variable = plain(&other);
    EXPECT_TRUE(is_false(show(select.get(), {reference_to(variable)})));
    EXPECT_TRUE(arrived_once());
    EXPECT_EQ(V_DISPATCH(&variable), &other);
}

TEST_F(CallTest, ATypedVariableIsTakenByReference) {
    IDispatch* variable = &other;
    EXPECT_TRUE(is_false(show(select.get(), {reference_to(variable)})));
    EXPECT_TRUE(arrived_once());
    EXPECT_EQ(variable, &other);
}

TEST_F(CallTest, AnExpressionIsTakenWhereAReferenceIsWanted) {
    EXPECT_TRUE(is_false(show(select.get(), {plain(&other)})));
    EXPECT_TRUE(arrived_once());
}

TEST_F(CallTest, AReferenceIsTakenWhereAnExpressionIsWanted) {
    VARIANT variable = plain(&other);
    EXPECT_TRUE(is_false(show(add.get(), {reference_to(variable)})));
    EXPECT_TRUE(arrived_once());
}

TEST_F(CallTest, AnObjectOfUndeclaredKindIsAskedForAutomation) {
    VARIANT argument = of_kind(VT_UNKNOWN);
    V_UNKNOWN(&argument) = &other;
    EXPECT_TRUE(is_false(show(select.get(), {argument})));
    EXPECT_TRUE(arrived_once());
}

TEST_F(CallTest, AnArgumentIsTakenByItsName) {
    VARIANT variable = plain(&other);
    EXPECT_TRUE(is_false(show(select.get(), {reference_to(variable)}, true)));
    EXPECT_TRUE(arrived_once());
    EXPECT_TRUE(is_false(show(add.get(), {plain(&other)}, true)));
    EXPECT_EQ(other.refusals_of(IID__hlxOPCServers), 2);
}

TEST_F(CallTest, ScriptsCallAFunctionAlsoAsAProperty) {
    EXPECT_TRUE(is_false(show(select.get(), {plain(&other)}, false, DISPATCH_METHOD | DISPATCH_PROPERTYGET)));
    EXPECT_TRUE(arrived_once());
}

TEST_F(CallTest, NothingIsAnObjectThatShowReports) {
    VARIANT variable = plain(nullptr);
    IDispatch* typed = nullptr;
    EXPECT_TRUE(is_false(show(select.get(), {plain(nullptr)})));
    EXPECT_TRUE(is_false(show(select.get(), {reference_to(variable)})));
    EXPECT_TRUE(is_false(show(select.get(), {reference_to(typed)})));
    EXPECT_TRUE(is_false(show(add.get(), {plain(nullptr)})));
    EXPECT_EQ(errors.heard.size(), 4u);
}

TEST_F(CallTest, AValueThatIsNoObjectNeverGetsToShow) {
    for (const VARTYPE kind : {VT_EMPTY, VT_NULL, VT_I4, VT_BSTR, VT_BOOL, VT_ERROR}) {
        for (IDispatch* object : {select.get(), add.get()}) {
            VARIANT value = of_kind(kind);
            const Outcome plainly = show(object, {value});
            EXPECT_EQ(plainly.code, DISP_E_TYPEMISMATCH) << kind;
            EXPECT_EQ(plainly.argument_at_fault, 0u) << kind;
            EXPECT_EQ(show(object, {reference_to(value)}).code, DISP_E_TYPEMISMATCH) << kind;
        }
    }
    EXPECT_EQ(errors.heard.size(), 0u);
}

TEST_F(CallTest, ACallWithTooManyOrTooFewArgumentsFails) {
    EXPECT_EQ(show(select.get(), {plain(&other), plain(&other)}).code, DISP_E_BADPARAMCOUNT);
    EXPECT_NE(show(select.get(), {}).code, S_OK);
    EXPECT_EQ(other.refusals_of(IID__hlxOPCServers), 0);
}

TEST_F(CallTest, AnUnknownNameIsNoMember) {
    EXPECT_EQ(id_of(select.get(), {L"ItemID"}), DISPID_UNKNOWN);
    DISPPARAMS none{};
    EXPECT_EQ(select->Invoke(4711, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &none, nullptr, nullptr,
                             nullptr),
              DISP_E_MEMBERNOTFOUND);
}

TEST_F(CallTest, EveryReferenceToAnArgumentComesBack) {
    VARIANT variable = plain(&other);
    show(select.get(), {reference_to(variable)});
    show(select.get(), {plain(&other)});
    show(add.get(), {plain(&other)});
    EXPECT_EQ(other.references(), 0u);
}

TEST_F(CallTest, AnObjectLetGoWhileItsShowRunsLivesToTheEnd) {
    // The report is shown in the middle of Show: there the host forgets the object.
    select = nullptr;
    add = nullptr;
    auto object = dll.create<_ServerAdd>(CLSID_ServerAdd);
    errors.while_shown = [&] {
        object = nullptr;
        EXPECT_FALSE(dll.can_unload());
        return S_OK;
    };
    VARIANT_BOOL result = VARIANT_TRUE;
    EXPECT_EQ(object->Show(nullptr, &result), S_OK);
    EXPECT_EQ(result, VARIANT_FALSE);
    EXPECT_TRUE(dll.can_unload());
}

} // namespace brx::checks
