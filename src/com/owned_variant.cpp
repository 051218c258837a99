#include "com/owned_variant.h"

#include "com/bstr.h"
#include "com/com_object.h"
#include "com/failure.h"

namespace brx {

namespace {

/// Sets a variant that is still Empty.
struct Fill {
    VARIANT& to;

    void operator()(Empty) const {}
    void operator()(Null) const { V_VT(&to) = VT_NULL; }
    void operator()(Missing) const {
        V_VT(&to) = VT_ERROR;
        V_ERROR(&to) = DISP_E_PARAMNOTFOUND;
    }
    void operator()(std::int16_t value) const {
        V_VT(&to) = VT_I2;
        V_I2(&to) = value;
    }
    void operator()(std::int32_t value) const {
        V_VT(&to) = VT_I4;
        V_I4(&to) = value;
    }
    void operator()(float value) const {
        V_VT(&to) = VT_R4;
        V_R4(&to) = value;
    }
    void operator()(double value) const {
        V_VT(&to) = VT_R8;
        V_R8(&to) = value;
    }
    void operator()(Currency value) const {
        V_VT(&to) = VT_CY;
        V_CY(&to).int64 = value.ten_thousandths;
    }
    void operator()(Date value) const {
        V_VT(&to) = VT_DATE;
        V_DATE(&to) = value.days;
    }
    void operator()(bool value) const {
        V_VT(&to) = VT_BOOL;
        V_BOOL(&to) = value ? VARIANT_TRUE : VARIANT_FALSE;
    }
    void operator()(const std::string& value) const {
        V_BSTR(&to) = Bstr(value).detach();
        V_VT(&to) = VT_BSTR;
    }
    void operator()(const ObjectPtr& value) const {
        V_DISPATCH(&to) = to_dispatch(value).detach();
        V_VT(&to) = VT_DISPATCH;
    }
    void operator()(const StringArray& value) const {
        V_ARRAY(&to) = OwnedSafeArray(value).detach();
        V_VT(&to) = VT_ARRAY | VT_BSTR;
    }
    void operator()(const Opaque& value) const {
        if (!value.held) throw Error(error::type_mismatch);
        const auto& original = static_cast<const OwnedVariant*>(value.held.get())->get();
        check(VariantCopy(&to, const_cast<VARIANT*>(&original)));
    }
};

/// In the user's locale, with its words for the truth values as in all texts of ours.
std::optional<std::string> platform_text(const VARIANT& variant) {
    OwnedVariant text;
    if (FAILED(VariantChangeType(text.out(), const_cast<VARIANT*>(&variant), VARIANT_LOCALBOOL, VT_BSTR)))
        return std::nullopt;
    return text_of(V_BSTR(&text.get()));
}

Variant opaque(const VARIANT& variant) {
    return Opaque{V_VT(&variant), std::make_shared<const OwnedVariant>(OwnedVariant::copy(variant)),
                  platform_text(variant)};
}

} // namespace

OwnedVariant::OwnedVariant(const Variant& value) : OwnedVariant() { std::visit(Fill{variant_}, value); }

OwnedVariant::OwnedVariant(OwnedSafeArray array) : OwnedVariant() {
    VARTYPE type = VT_EMPTY;
    check(SafeArrayGetVartype(array.get(), &type));
    V_ARRAY(&variant_) = array.detach();
    V_VT(&variant_) = static_cast<VARTYPE>(VT_ARRAY | type);
}

OwnedVariant& OwnedVariant::operator=(OwnedVariant&& other) noexcept {
    std::swap(variant_, other.variant_);
    return *this;
}

OwnedVariant OwnedVariant::copy(const VARIANT& variant) {
    OwnedVariant result;
    check(VariantCopyInd(&result.variant_, const_cast<VARIANT*>(&variant)));
    return result;
}

VARIANT* OwnedVariant::out() noexcept {
    *this = OwnedVariant();
    return &variant_;
}

VARIANT OwnedVariant::detach() noexcept {
    const VARIANT result = variant_;
    VariantInit(&variant_);
    return result;
}

Variant value_of(const VARIANT& variant) {
    if (V_ISBYREF(&variant)) return value_of(OwnedVariant::copy(variant).get());
    switch (V_VT(&variant)) {
    case VT_EMPTY:
        return Empty{};
    case VT_NULL:
        return Null{};
    case VT_I2:
        return std::int16_t{V_I2(&variant)};
    case VT_I4:
        return static_cast<std::int32_t>(V_I4(&variant));
    case VT_R4:
        return V_R4(&variant);
    case VT_R8:
        return V_R8(&variant);
    case VT_CY:
        return Currency{V_CY(&variant).int64};
    case VT_DATE:
        return Date{V_DATE(&variant)};
    case VT_BOOL:
        return V_BOOL(&variant) != VARIANT_FALSE;
    case VT_BSTR:
        return text_of(V_BSTR(&variant));
    case VT_DISPATCH:
        return from_dispatch(com_ptr<IDispatch>(V_DISPATCH(&variant)));
    case VT_ERROR:
        if (V_ERROR(&variant) == DISP_E_PARAMNOTFOUND) return Missing{};
        break;
    case VT_ARRAY | VT_BSTR:
        if (is_vector_of(V_ARRAY(&variant), VT_BSTR)) return string_array(V_ARRAY(&variant));
        break;
    default:
        break;
    }
    return opaque(variant);
}

std::optional<StringArray> texts_in(const VARIANT& variant) {
    const OwnedVariant own = OwnedVariant::copy(variant);
    SAFEARRAY* const array = V_ISARRAY(&own.get()) ? V_ARRAY(&own.get()) : nullptr;
    if (!is_vector_of(array, VT_VARIANT)) return std::nullopt;
    StringArray texts;
    texts.lower_bound = array->rgsabound[0].lLbound;
    for (ULONG n = 0; n < array->rgsabound[0].cElements; ++n) {
        LONG index = texts.lower_bound + static_cast<LONG>(n);
        OwnedVariant element;
        check(SafeArrayGetElement(array, &index, element.out()));
        const Variant value = value_of(element.get());
        const auto* const text = std::get_if<std::string>(&value);
        if (!text) return std::nullopt;
        texts.elements.push_back(*text);
    }
    return texts;
}

} // namespace brx
