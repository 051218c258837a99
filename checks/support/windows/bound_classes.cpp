#include "windows/bound_classes.h"

#include "com/bstr.h"
#include "com/owned_variant.h"

namespace brx::checks {

namespace {

DISPID member_of(IDispatch& object, const char* name) {
    std::wstring characters = wide(name);
    LPOLESTR names = characters.data();
    DISPID member = DISPID_UNKNOWN;
    brx::check(object.GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &member));
    return member;
}

/// Calls a member with one argument or none and takes what it gives, which must be of this type.
OwnedVariant invoke(IDispatch& object, const char* name, WORD how, VARIANT* argument, VARTYPE expected) {
    DISPID put = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{argument, nullptr, argument ? 1U : 0U, 0};
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
    const OwnedVariant index = invoke(*object_.get(), "ServerIndex", DISPATCH_PROPERTYGET, nullptr, VT_I2);
    return V_I2(&index.get());
}

void LateBound::set_ServerIndex(std::int16_t index) {
    VARIANT value{};
    V_VT(&value) = VT_I2;
    V_I2(&value) = index;
    invoke(*object_.get(), "ServerIndex", DISPATCH_PROPERTYPUT, &value, VT_EMPTY);
}

bool LateBound::Show(const ObjectPtr& object) {
    const com_ptr<IDispatch> held = to_dispatch(object);
    VARIANT variable{};
    V_VT(&variable) = VT_DISPATCH;
    V_DISPATCH(&variable) = held.get();
    VARIANT reference{};
    V_VT(&reference) = VT_BYREF | VT_VARIANT;
    V_VARIANTREF(&reference) = &variable;
    const OwnedVariant result =
        invoke(*object_.get(), "Show", DISPATCH_METHOD, by_reference_ ? &reference : &variable, VT_BOOL);
    brx::check(V_VT(&variable) == VT_DISPATCH && V_DISPATCH(&variable) == held.get() ? S_OK : E_UNEXPECTED);
    return V_BOOL(&result.get()) != VARIANT_FALSE;
}

} // namespace brx::checks
