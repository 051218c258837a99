#include "common/error.h"
#include "common/values/calendar.h"
#include "common/values/convert.h"
#include "common/values/format.h"

#include <cmath>

namespace brx {
namespace {

[[noreturn]] void no_number() { throw Error(error::type_mismatch); }
[[noreturn]] void null() { throw Error(error::invalid_use_of_null); }

[[noreturn]] void object(const ObjectPtr& value) {
    throw Error(value ? error::type_mismatch : error::object_not_set);
}

/// The text of a value that only the platform's side understands.
const std::string& text_of(const Opaque& value) {
    if (!value.text) no_number();
    return *value.text;
}

/// Turns a value into a `Result`: `from_number` has the numbers, `from_text` the texts, and the rest of the
/// rules are the same for every kind of number.
template <class Result, class FromNumber, class FromText>
Result converted(const Variant& value, FromNumber from_number, FromText from_text) {
    struct Visitor {
        FromNumber& number;
        FromText& text;
        Result operator()(Empty) const { return number(0); }
        Result operator()(Null) const { null(); }
        Result operator()(Missing) const { no_number(); }
        Result operator()(std::int16_t v) const { return number(v); }
        Result operator()(std::int32_t v) const { return number(v); }
        Result operator()(float v) const { return number(static_cast<double>(v)); }
        Result operator()(double v) const { return number(v); }
        Result operator()(Currency v) const { return number(static_cast<double>(v.ten_thousandths) / 10000); }
        Result operator()(Date v) const { return number(v.days); }
        Result operator()(const std::string& v) const { return text(v); }
        Result operator()(const ObjectPtr& v) const { object(v); }
        Result operator()(bool v) const { return number(v ? -1 : 0); }
        Result operator()(const StringArray&) const { no_number(); }
        Result operator()(const Opaque& v) const { return text(text_of(v)); }
    };
    return std::visit(Visitor{from_number, from_text}, value);
}

struct NumericTest {
    const Locale& locale;
    bool operator()(const std::string& text) const { return is_numeric(text, locale); }
    bool operator()(const Opaque& v) const {
        constexpr std::uint16_t decimal = 14;
        constexpr std::uint16_t first_integer = 16;
        constexpr std::uint16_t last_integer = 23;
        const bool number = v.vartype == decimal || (v.vartype >= first_integer && v.vartype <= last_integer);
        return number && v.text && is_numeric(*v.text, locale);
    }
    bool operator()(Null) const { return false; }
    bool operator()(Missing) const { return false; }
    bool operator()(Date) const { return false; }
    bool operator()(const ObjectPtr&) const { return false; }
    bool operator()(const StringArray&) const { return false; }
    template <class Number> bool operator()(const Number&) const { return true; }
};

} // namespace

bool is_numeric(VariantView value, const Locale& locale) {
    return std::visit(NumericTest{locale}, value.value);
}

std::int16_t to_int16(VariantView value, const Locale& locale) {
    return converted<std::int16_t>(
        value.value, [](double number) { return to_int16(number); },
        [&](const std::string& text) { return to_int16(text, locale); });
}

std::int32_t to_int32(VariantView value, const Locale& locale) {
    return converted<std::int32_t>(
        value.value, [](double number) { return to_int32(number); },
        [&](const std::string& text) { return to_int32(text, locale); });
}

float to_single(VariantView value, const Locale& locale) {
    return converted<float>(
        value.value, [](double number) { return to_single(number); },
        [&](const std::string& text) { return to_single(text, locale); });
}

double to_double(VariantView value, const Locale& locale) {
    return converted<double>(
        value.value, [](double number) { return number; },
        [&](const std::string& text) { return to_double(text, locale); });
}

bool to_boolean(VariantView value, const Locale& locale) {
    return converted<bool>(
        value.value, [](double number) { return number != 0; },
        [&](const std::string& text) { return to_boolean(text, locale); });
}

Date to_date(VariantView value, const Locale& locale) {
    return converted<Date>(
        value.value,
        [](double number) {
            if (!is_date(number)) throw Error(error::overflow);
            return Date{number};
        },
        [&](const std::string& text) { return to_date(text, locale); });
}

std::string to_text(const Variant& value, const Locale& locale) {
    struct Visitor {
        const Locale& l;
        std::string operator()(Empty) const { return {}; }
        std::string operator()(Null) const { null(); }
        std::string operator()(Missing) const { no_number(); }
        std::string operator()(std::int16_t v) const { return std::to_string(v); }
        std::string operator()(std::int32_t v) const { return std::to_string(v); }
        std::string operator()(float v) const { return single_text(v, l); }
        std::string operator()(double v) const { return double_text(v, l); }
        std::string operator()(Currency v) const { return currency_text(v, l); }
        std::string operator()(Date v) const { return date_text(v, l); }
        std::string operator()(const std::string& v) const { return v; }
        std::string operator()(const ObjectPtr& v) const { object(v); }
        std::string operator()(bool v) const { return v ? l.true_text : l.false_text; }
        std::string operator()(const StringArray&) const { no_number(); }
        std::string operator()(const Opaque& v) const { return text_of(v); }
    };
    return std::visit(Visitor{locale}, value);
}

} // namespace brx
