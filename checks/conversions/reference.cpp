#include "conversions/reference.h"

#include "com/bstr.h"

#include <array>
#include <charconv>

namespace brx::conversions {
namespace {

int error_number(HRESULT failure) {
    switch (failure) {
    case DISP_E_TYPEMISMATCH:
        return 13;
    case DISP_E_OVERFLOW:
        return 6;
    case E_INVALIDARG:
        return 5;
    case E_OUTOFMEMORY:
        return 7;
    default:
        return static_cast<int>(failure);
    }
}

/// Runs one of the platform's functions on a text.
template <class Value, class Function>
std::string from_text(Function function, const std::string& text, LCID locale, ULONG flags = 0) {
    // Wine reads a character behind the end of some texts: let that be a terminator too.
    std::wstring characters = wide(text);
    characters.append(2, L'\0');
    Value value{};
    const HRESULT result = function(characters.data(), locale, flags, &value);
    return FAILED(result) ? shown(result) : shown(static_cast<double>(value));
}

template <class Function, class Value>
std::string to_text(Function function, Value value, LCID locale, ULONG flags = 0) {
    Bstr text;
    const HRESULT result = function(value, locale, flags, text.out());
    return FAILED(result) ? shown(result) : text.text();
}

template <class Value, class Function> std::string from_double(Function function, double number) {
    Value value{};
    const HRESULT result = function(number, &value);
    return FAILED(result) ? shown(result) : shown(static_cast<double>(value));
}

} // namespace

std::string shown(double value) {
    std::array<char, 40> buffer{};
    const double plain = value == 0 ? 0 : value;
    return {buffer.data(), std::to_chars(buffer.data(), buffer.data() + buffer.size(), plain).ptr};
}

std::string shown(HRESULT failure) { return "error " + std::to_string(error_number(failure)); }

std::string platform_double(const std::string& text, LCID locale) {
    return from_text<double>(VarR8FromStr, text, locale);
}
std::string platform_single(const std::string& text, LCID locale) {
    return from_text<float>(VarR4FromStr, text, locale);
}
std::string platform_int16(const std::string& text, LCID locale) {
    return from_text<SHORT>(VarI2FromStr, text, locale);
}
std::string platform_int32(const std::string& text, LCID locale) {
    return from_text<LONG>(VarI4FromStr, text, locale);
}
std::string platform_boolean(const std::string& text, LCID locale) {
    return from_text<VARIANT_BOOL>(VarBoolFromStr, text, locale, VAR_LOCALBOOL);
}
std::string platform_date(const std::string& text, LCID locale) {
    return from_text<DATE>(VarDateFromStr, text, locale);
}

std::string platform_single(double number) { return from_double<float>(VarR4FromR8, number); }
std::string platform_int16(double number) { return from_double<SHORT>(VarI2FromR8, number); }
std::string platform_int32(double number) { return from_double<LONG>(VarI4FromR8, number); }

std::string platform_text(double number, LCID locale) { return to_text(VarBstrFromR8, number, locale); }
std::string platform_text(float number, LCID locale) { return to_text(VarBstrFromR4, number, locale); }
std::string platform_text(Date date, LCID locale) { return to_text(VarBstrFromDate, date.days, locale); }
std::string platform_text(Currency amount, LCID locale) {
    CY currency;
    currency.int64 = amount.ten_thousandths;
    return to_text(VarBstrFromCy, currency, locale);
}
std::string platform_text(std::int32_t number, LCID locale) {
    return to_text(VarBstrFromI4, LONG{number}, locale);
}
std::string platform_text(bool truth, LCID locale) {
    return to_text(VarBstrFromBool, truth ? VARIANT_TRUE : VARIANT_FALSE, locale, VAR_LOCALBOOL);
}

} // namespace brx::conversions
