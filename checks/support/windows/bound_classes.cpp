#include "windows/bound_classes.h"

#include "com/bstr.h"
#include "com/owned_variant.h"

#include <span>
#include <vector>

namespace brx::checks {

namespace {

DISPID member_of(IDispatch& object, const char* name) {
    std::wstring characters = wide(name);
    LPOLESTR names = characters.data();
    DISPID member = DISPID_UNKNOWN;
    brx::check(object.GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &member));
    return member;
}

/// Calls a member and takes what it gives, which must be of this type. Arguments stand last one first.
OwnedVariant invoke(IDispatch& object, const char* name, WORD how, std::span<VARIANT> arguments,
                    VARTYPE expected) {
    DISPID put = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
    if (how == DISPATCH_PROPERTYPUT) {
        parameters.rgdispidNamedArgs = &put;
        parameters.cNamedArgs = 1;
    }
    OwnedVariant result;
    EXCEPINFO exception{};
    UINT wrong_argument = 0;
    brx::check(object.Invoke(member_of(object, name), IID_NULL, LOCALE_USER_DEFAULT, how, &parameters,
                             expected == VT_EMPTY ? nullptr : result.out(), &exception, &wrong_argument));
    brx::check(V_VT(&result.get()) == expected ? S_OK : DISP_E_TYPEMISMATCH);
    return result;
}

} // namespace

std::int16_t LateBound::ServerIndex() {
    const OwnedVariant index = invoke(*object_.get(), "ServerIndex", DISPATCH_PROPERTYGET, {}, VT_I2);
    return V_I2(&index.get());
}

void LateBound::set_ServerIndex(std::int16_t index) {
    VARIANT value{};
    V_VT(&value) = VT_I2;
    V_I2(&value) = index;
    invoke(*object_.get(), "ServerIndex", DISPATCH_PROPERTYPUT, {&value, 1}, VT_EMPTY);
}

std::string LateBound::ItemID() {
    const OwnedVariant item_id = invoke(*object_.get(), "ItemID", DISPATCH_PROPERTYGET, {}, VT_BSTR);
    return text_of(V_BSTR(&item_id.get()), SysStringLen(V_BSTR(&item_id.get())));
}

void LateBound::set_ItemID(const std::string& item_id) {
    const Bstr text(item_id);
    VARIANT value{};
    V_VT(&value) = VT_BSTR;
    V_BSTR(&value) = text.get();
    invoke(*object_.get(), "ItemID", DISPATCH_PROPERTYPUT, {&value, 1}, VT_EMPTY);
}

bool LateBound::Show(const std::vector<ObjectPtr>& objects) {
    std::vector<com_ptr<IDispatch>> held;
    std::vector<VARIANT> variables;
    for (auto each = objects.rbegin(); each != objects.rend(); ++each) {
        held.push_back(dispatch_of(*each));
        variables.emplace_back();
        V_VT(&variables.back()) = VT_DISPATCH;
        V_DISPATCH(&variables.back()) = held.back().get();
    }
    std::vector<VARIANT> references(variables.size());
    for (std::size_t i = 0; i < variables.size(); ++i) {
        V_VT(&references[i]) = VT_BYREF | VT_VARIANT;
        V_VARIANTREF(&references[i]) = &variables[i];
    }
    const OwnedVariant result =
        invoke(*object_.get(), "Show", DISPATCH_METHOD, by_reference_ ? references : variables, result_);
    for (std::size_t i = 0; i < variables.size(); ++i)
        brx::check(V_VT(&variables[i]) == VT_DISPATCH && V_DISPATCH(&variables[i]) == held[i].get()
                       ? S_OK
                       : E_UNEXPECTED);
    return result_ == VT_EMPTY || V_BOOL(&result.get()) != VARIANT_FALSE;
}

} // namespace brx::checks
