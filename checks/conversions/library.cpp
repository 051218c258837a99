#include "conversions/conversions.h"

#include "com/system_locale.h"
#include "common/error.h"
#include "common/locales.h"
#include "common/values/convert.h"
#include "conversions/generator.h"
#include "conversions/reasons.h"
#include "conversions/reference.h"
#include "dialogs/limit_texts.h"

#include <cmath>
#include <limits>

namespace brx::conversions {
namespace {

using OfText = Conversion<std::string>;
using OfNumber = Conversion<double>;

constexpr std::size_t number_count = 12'000;
constexpr std::size_t date_count = 8'000;

/// The answer of a conversion of ours that gives any kind of number.
template <class Body> std::string number_of(Body body) {
    return outcome([&] { return shown(static_cast<double>(body())); });
}

template <class Value>
OfText of_text(const std::string& function, Kind kind, const ComparedLocale& where,
               Value (*ours)(std::string_view, const Locale&),
               std::string (*theirs)(const std::string&, LCID)) {
    return {function, kind, where,
            [ours, &where](const std::string& text) {
                return number_of([&] { return ours(text, where.locale); });
            },
            [theirs, &where](const std::string& text) { return theirs(text, where.identifier); }};
}

/// The year that Wine adds where a text leaves it out.
int this_year() {
    SYSTEMTIME now;
    GetSystemTime(&now);
    return now.wYear;
}

double days_in(std::string_view text, const Locale& locale) {
    const auto date = read_date(text, locale, this_year());
    if (!date) throw Error(error::type_mismatch);
    return date->days;
}

double truth_in(std::string_view text, const Locale& locale) { return to_boolean(text, locale) ? -1 : 0; }

std::vector<OfText> text_conversions(const ComparedLocale& where) {
    return {of_text<double>("VarR8FromStr", Kind::number, where, to_double, platform_double),
            of_text<float>("VarR4FromStr", Kind::single, where, to_single, platform_single),
            of_text<std::int16_t>("VarI2FromStr", Kind::integer, where, to_int16, platform_int16),
            of_text<std::int32_t>("VarI4FromStr", Kind::integer, where, to_int32, platform_int32),
            of_text<double>("VarBoolFromStr", Kind::truth, where, truth_in, platform_boolean),
            of_text<double>("VarDateFromStr", Kind::date, where, days_in, platform_date)};
}

std::vector<OfNumber> number_conversions(const ComparedLocale& where) {
    const Locale& locale = where.locale;
    const LCID id = where.identifier;
    const auto text = [&locale](auto value) { return outcome([&] { return to_text(value, locale); }); };
    return {{"VarBstrFromR8", Kind::text, where, [=](double number) { return text(number); },
             [=](double number) { return platform_text(number, id); }},
            {"VarBstrFromR4", Kind::text, where,
             [=](double number) { return text(static_cast<float>(number)); },
             [=](double number) { return platform_text(static_cast<float>(number), id); }}};
}

OfNumber date_conversion(const ComparedLocale& where) {
    const Locale& locale = where.locale;
    const LCID id = where.identifier;
    return {"VarBstrFromDate", Kind::date, where,
            [&locale](double days) { return outcome([&] { return to_text(Date{days}, locale); }); },
            [id](double days) { return platform_text(Date{days}, id); }};
}

/// Amounts, 32-bit integers and truth.
void compare_amounts(Comparison& comparison, const ComparedLocale& where) {
    const auto same = [&](const char* function, const std::string& input, const Variant& value,
                          const std::string& theirs) {
        comparison.compare(function, where.name, input, outcome([&] { return to_text(value, where.locale); }),
                           theirs, [] { return std::nullopt; });
    };
    for (const bool truth : {false, true}) {
        same("VarBstrFromBool", truth ? "-1" : "0", truth, platform_text(truth, where.identifier));
    }
    for (const std::int64_t bits : integers(number_count / 4)) {
        const Currency amount{bits};
        same("VarBstrFromCy", std::to_string(bits), amount, platform_text(amount, where.identifier));
        const auto number = static_cast<std::int32_t>(bits);
        same("VarBstrFromI4", std::to_string(number), number, platform_text(number, where.identifier));
    }
}

} // namespace

const std::vector<ComparedLocale>& compared_locales() {
    static const std::vector<ComparedLocale> locales = {{"en-US", 0x0409, Locale{}},
                                                        {"de-DE", 0x0407, checks::locale_of_germany()},
                                                        {"fr-FR", 0x040C, checks::locale_of_france()}};
    return locales;
}

void compare_library(Comparison& comparison, const ComparedLocale& where) {
    const auto of_texts = text_conversions(where);
    for (const auto& texts :
         {number_texts(where.locale, number_count), date_texts(where.locale, date_count)}) {
        for (const std::string& text : texts) {
            for (const OfText& conversion : of_texts) compare(comparison, conversion, text);
        }
    }
    const auto of_numbers = number_conversions(where);
    for (const double number : doubles(number_count)) {
        compare(comparison, of_numbers[0], number);
        const auto single = static_cast<float>(number);
        if (std::isfinite(single)) compare(comparison, of_numbers[1], static_cast<double>(single));
    }
    for (const double number :
         {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        for (const OfNumber& conversion : of_numbers) {
            compare(comparison, conversion, number);
            compare(comparison, conversion, -number);
        }
    }
    const OfNumber of_date = date_conversion(where);
    for (const double days : date_values(date_count)) compare(comparison, of_date, days);
    compare_amounts(comparison, where);
}

void compare_limits(Comparison& comparison, const ComparedLocale& where) {
    const ComparedLocale at_limits = {where.name + " limits", where.identifier, where.locale};
    for (const OfText& conversion : text_conversions(at_limits))
        for (const checks::LimitText& each : checks::limit_texts(where.locale))
            compare(comparison, conversion, each.text);
}

void compare_numbers(Comparison& comparison) {
    const ComparedLocale& where = compared_locales().front();
    const std::vector<OfNumber> conversions = {
        {"VarR4FromR8", Kind::single, where, [](double n) { return number_of([&] { return to_single(n); }); },
         [](double n) { return platform_single(n); }},
        {"VarI2FromR8", Kind::integer, where, [](double n) { return number_of([&] { return to_int16(n); }); },
         [](double n) { return platform_int16(n); }},
        {"VarI4FromR8", Kind::integer, where, [](double n) { return number_of([&] { return to_int32(n); }); },
         [](double n) { return platform_int32(n); }}};
    for (const double number : doubles(number_count)) {
        for (const OfNumber& conversion : conversions) compare(comparison, conversion, number);
    }
}

void compare_settings(Comparison& comparison, const ComparedLocale& where) {
    const bool same = system_locale(where.identifier) == where.locale;
    comparison.compare("system_locale", where.name, "", same ? "as known" : "other", "as known",
                       [] { return std::nullopt; });
}

} // namespace brx::conversions
