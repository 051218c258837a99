#include "adapters/opc_arguments.h"

#include "com/failure.h"
#include "com/owned_variant.h"

namespace brx {

namespace {

[[noreturn]] void refuse() { throw error_of(E_INVALIDARG); }

SAFEARRAY* required(SAFEARRAY* const* array, VARTYPE element_type) {
    if (!array || !is_vector_of(*array, element_type)) refuse();
    return *array;
}

template <class T> Array<T> first_of(const Array<T>& array, LONG count) {
    if (count < 1 || array.lower_bound > 1 || array.upper_bound() < count) refuse();
    const auto first = array.elements.begin() + (1 - array.lower_bound);
    return {{first, first + count}, 1};
}

bool is_omitted(const VARIANT& argument) {
    return V_VT(&argument) == VT_EMPTY ||
           (V_VT(&argument) == VT_ERROR && V_ERROR(&argument) == DISP_E_PARAMNOTFOUND);
}

/// The array in a variant, which keeps it.
SAFEARRAY* const* array_in(const OwnedVariant& variant) {
    return V_ISARRAY(&variant.get()) ? &V_ARRAY(&variant.get()) : nullptr;
}

} // namespace

StringArray first_strings(SAFEARRAY* const* array, LONG count) {
    return first_of(string_array(required(array, VT_BSTR)), count);
}

LongArray first_longs(SAFEARRAY* const* array, LONG count) {
    return first_of(long_array(required(array, VT_I4)), count);
}

std::optional<ShortArray> optional_shorts(const VARIANT& array, LONG count) {
    const OwnedVariant given = OwnedVariant::copy(array);
    if (is_omitted(given.get())) return std::nullopt;
    return first_of(short_array(required(array_in(given), VT_I2)), count);
}

std::optional<StringArray> optional_strings(const VARIANT& array, LONG count) {
    const OwnedVariant given = OwnedVariant::copy(array);
    if (is_omitted(given.get())) return std::nullopt;
    return first_strings(array_in(given), count);
}

StringArray whole_path(SAFEARRAY* const* array) { return string_array(required(array, VT_BSTR)); }

std::optional<std::string> optional_text(const VARIANT& text) {
    const Variant given = value_of(text);
    if (std::holds_alternative<Empty>(given) || std::holds_alternative<Missing>(given)) return std::nullopt;
    if (const auto* const found = std::get_if<std::string>(&given)) return *found;
    refuse();
}

bool optional_flag(const VARIANT& flag) {
    const Variant given = value_of(flag);
    if (std::holds_alternative<Empty>(given) || std::holds_alternative<Missing>(given)) return false;
    if (const auto* const found = std::get_if<bool>(&given)) return *found;
    refuse();
}

std::int32_t position_in(const VARIANT& item_specifier) {
    const Variant given = value_of(item_specifier);
    if (const auto* const wide = std::get_if<std::int32_t>(&given)) return *wide;
    if (const auto* const narrow = std::get_if<std::int16_t>(&given)) return *narrow;
    refuse();
}

} // namespace brx
