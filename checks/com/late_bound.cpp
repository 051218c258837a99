#include "com/late_bound.h"

#include "com/bstr.h"
#include "com/failure.h"
#include "com/owned_variant.h"

#include <algorithm>

namespace brx::checks {

namespace {

std::string taken(BSTR& text) {
    const std::string result = text_of(text);
    SysFreeString(text);
    return result;
}

} // namespace

Variant invoke_raw(IDispatch* object, const std::string& name, WORD kind, std::vector<VARIANT> arguments) {
    std::wstring wanted = wide(name);
    LPOLESTR names = wanted.data();
    DISPID member = DISPID_UNKNOWN;
    check(object->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &member));

    std::ranges::reverse(arguments);
    DISPID value_of_a_writer = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
    if (kind == DISPATCH_PROPERTYPUT) {
        parameters.rgdispidNamedArgs = &value_of_a_writer;
        parameters.cNamedArgs = 1;
    }
    OwnedVariant result;
    EXCEPINFO exception{};
    UINT wrong_argument = 0;
    const HRESULT code = object->Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters,
                                        result.out(), &exception, &wrong_argument);
    if (code == DISP_E_EXCEPTION) {
        const std::string description = taken(exception.bstrDescription);
        const std::string source = taken(exception.bstrSource);
        SysFreeString(exception.bstrHelpFile);
        throw error_of(exception.scode, description, source);
    }
    check(code);
    return value_of(result.get());
}

Variant invoke(IDispatch* object, const std::string& name, WORD kind, const std::vector<Variant>& arguments) {
    std::vector<OwnedVariant> owners;
    std::vector<VARIANT> raw;
    for (const Variant& argument : arguments) owners.emplace_back(argument);
    for (const OwnedVariant& owner : owners) raw.push_back(owner.get());
    return invoke_raw(object, name, kind, std::move(raw));
}

} // namespace brx::checks
