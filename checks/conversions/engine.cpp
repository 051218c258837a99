#include "conversions/conversions.h"

#include "com/bstr.h"
#include "common/values/convert.h"
#include "common/values/text.h"
#include "conversions/generator.h"
#include "conversions/reasons.h"
#include "conversions/reference.h"

namespace brx::conversions {
namespace {

constexpr std::size_t text_count = 5'000;
constexpr std::size_t number_count = 5'000;

/// The answer that the engine shows for a value of any kind.
std::string answer(double value) { return shown(value); }
std::string answer(float value) { return shown(static_cast<double>(value)); }
std::string answer(std::int16_t value) { return shown(static_cast<double>(value)); }
std::string answer(std::int32_t value) { return shown(static_cast<double>(value)); }
std::string answer(bool value) { return value ? "-1" : "0"; }
std::string answer(Date value) { return shown(value.days); }
std::string answer(const std::string& value) { return value; }

/// What one of the engine's functions makes of a value of type `Input`; each `ours` is given that and the
/// locale.
template <class Input, class Ours>
Conversion<Input> of(const char* function, Kind kind, const ComparedLocale& where, const Script& script,
                     Ours ours) {
    return {function, kind, where,
            [ours, &where](const Input& input) {
                return outcome([&] { return answer(ours(input, where.locale)); });
            },
            [function, &script](const Input& input) { return script.call(function, input); }};
}

template <class Input> using List = std::vector<Conversion<Input>>;

List<std::string> numbers_in_texts(const ComparedLocale& w, const Script& s) {
    using T = std::string;
    return {
        of<T>("IsNumeric", Kind::truth, w, s, [](const T& t, const Locale& l) { return is_numeric(t, l); }),
        of<T>("CDbl", Kind::number, w, s, [](const T& t, const Locale& l) { return to_double(t, l); }),
        of<T>("CSng", Kind::single, w, s, [](const T& t, const Locale& l) { return to_single(t, l); }),
        of<T>("CInt", Kind::integer, w, s, [](const T& t, const Locale& l) { return to_int16(t, l); }),
        of<T>("CLng", Kind::integer, w, s, [](const T& t, const Locale& l) { return to_int32(t, l); }),
        of<T>("CBool", Kind::truth, w, s, [](const T& t, const Locale& l) { return to_boolean(t, l); }),
        of<T>("CDate", Kind::date, w, s, [](const T& t, const Locale& l) { return to_date(t, l); }),
        of<T>("Trim", Kind::text, w, s, [](const T& t, const Locale&) { return trim(t); })};
}

List<double> texts_of_numbers(const ComparedLocale& w, const Script& s) {
    return {of<double>("CStr", Kind::text, w, s, [](double n, const Locale& l) { return to_text(n, l); }),
            of<double>("CInt", Kind::integer, w, s, [](double n, const Locale&) { return to_int16(n); }),
            of<double>("CLng", Kind::integer, w, s, [](double n, const Locale&) { return to_int32(n); }),
            of<double>("CSng", Kind::single, w, s, [](double n, const Locale&) { return to_single(n); })};
}

VARIANT date_variant(double days) {
    VARIANT variant;
    VariantInit(&variant);
    V_VT(&variant) = VT_DATE;
    V_DATE(&variant) = days;
    return variant;
}

/// A function of the engine that is given a date.
template <class Ours>
Conversion<double> of_date(const char* function, const ComparedLocale& where, const Script& script,
                           Ours ours) {
    return {function, Kind::date, where,
            [ours, &where](double days) { return outcome([&] { return ours(Date{days}, where.locale); }); },
            [function, &script](double days) { return script.call(function, date_variant(days)); }};
}

List<double> texts_of_dates(const ComparedLocale& w, const Script& s) {
    return {of_date("CStr", w, s, [](Date d, const Locale& l) { return to_text(d, l); }),
            of_date("ShortDate", w, s, [](Date d, const Locale& l) { return short_date(d, l); }),
            of_date("LongTime", w, s, [](Date d, const Locale& l) { return long_time(d, l); })};
}

/// A value of every kind that is no text.
struct Sample {
    const char* name;
    Variant ours;
    VARIANT theirs;
};

std::vector<Sample> samples_of_kinds() {
    const auto make = [](VARTYPE kind, std::int64_t bits) {
        VARIANT variant;
        VariantInit(&variant);
        V_VT(&variant) = kind;
        switch (kind) {
        case VT_I2:
            V_I2(&variant) = static_cast<SHORT>(bits);
            break;
        case VT_I4:
            V_I4(&variant) = static_cast<LONG>(bits);
            break;
        case VT_BOOL:
            V_BOOL(&variant) = static_cast<VARIANT_BOOL>(bits);
            break;
        case VT_CY:
            V_CY(&variant).int64 = bits;
            break;
        default:
            break;
        }
        return variant;
    };
    VARIANT single;
    VariantInit(&single);
    V_VT(&single) = VT_R4;
    V_R4(&single) = 0.1F;
    return {{"Empty", Empty{}, make(VT_EMPTY, 0)},
            {"Null", Null{}, make(VT_NULL, 0)},
            {"True", true, make(VT_BOOL, VARIANT_TRUE)},
            {"False", false, make(VT_BOOL, VARIANT_FALSE)},
            {"Integer 0", std::int16_t{0}, make(VT_I2, 0)},
            {"Integer -32768", std::int16_t{-32768}, make(VT_I2, -32768)},
            {"Long 32767", std::int32_t{32767}, make(VT_I4, 32767)},
            {"Long 32768", std::int32_t{32768}, make(VT_I4, 32768)},
            {"Single 0.1", 0.1F, single},
            {"Currency 2.5", Currency{25000}, make(VT_CY, 25000)},
            {"Currency -3.5", Currency{-35000}, make(VT_CY, -35000)},
            {"Currency 32767.5", Currency{327675000}, make(VT_CY, 327675000)},
            {"Date 36526.25", Date{36526.25}, date_variant(36526.25)},
            {"Nothing", ObjectPtr(), make(VT_DISPATCH, 0)}};
}

/// Behind an A or P at the end Wine reads on in whatever memory follows, so its answer means nothing.
bool ends_in_a_designator_letter(const std::string& text) {
    return !text.empty() && std::string_view("aApP").find(text.back()) != std::string_view::npos;
}

void compare_kinds(Comparison& comparison, const ComparedLocale& where, const Script& script) {
    for (const Sample& sample : samples_of_kinds()) {
        const Locale& locale = where.locale;
        const Variant& value = sample.ours;
        const auto compare_with = [&](const std::string& function, const auto& ours) {
            const std::string mine = outcome([&] { return answer(ours()); });
            const std::string theirs = script.call(function, sample.theirs);
            comparison.compare(function, where.name, sample.name, mine, theirs,
                               [&] { return reason_for_kind(function, value, theirs); });
        };
        compare_with("IsNumeric", [&] { return is_numeric(value, locale); });
        compare_with("CDbl", [&] { return to_double(value, locale); });
        compare_with("CSng", [&] { return to_single(value, locale); });
        compare_with("CInt", [&] { return to_int16(value, locale); });
        compare_with("CLng", [&] { return to_int32(value, locale); });
        compare_with("CBool", [&] { return to_boolean(value, locale); });
        compare_with("CDate", [&] { return to_date(value, locale); });
        compare_with("CStr", [&] { return to_text(value, locale); });
    }
}

} // namespace

void compare_script(Comparison& comparison, const ComparedLocale& where, const Script& script) {
    const auto of_texts = numbers_in_texts(where, script);
    for (const auto& texts : {number_texts(where.locale, text_count), date_texts(where.locale, text_count)}) {
        for (const std::string& text : texts) {
            for (const auto& conversion : of_texts) {
                if (conversion.kind == Kind::date && ends_in_a_designator_letter(text)) continue;
                compare(comparison, conversion, text);
            }
        }
    }
    const auto of_numbers = texts_of_numbers(where, script);
    for (const double number : doubles(number_count)) {
        for (const auto& conversion : of_numbers) compare(comparison, conversion, number);
    }
    const auto of_dates = texts_of_dates(where, script);
    for (const double days : date_values(number_count)) {
        for (const auto& conversion : of_dates) compare(comparison, conversion, days);
    }
    compare_kinds(comparison, where, script);
}

} // namespace brx::conversions
