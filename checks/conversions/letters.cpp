#include "common/values/convert.h"
#include "common/values/text.h"
#include "conversions/conversions.h"
#include "conversions/reasons.h"
#include "conversions/reference.h"

#include <array>
#include <cstdio>

namespace brx::conversions {
namespace {

std::string code(unsigned unit) {
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "U+%04X", unit);
    return text.data();
}

std::string mapped(wchar_t unit, DWORD how) {
    wchar_t capital = 0;
    LCMapStringW(LOCALE_USER_DEFAULT, how, &unit, 1, &capital, 1);
    return code(capital);
}

std::string capital_of(char16_t unit) {
    return code(to_utf16(to_upper(to_utf8(std::u16string(1, unit)))).at(0));
}

/// True when the capital has another small letter, so that the way back would lose the letter.
bool shares_capital(wchar_t unit) {
    return mapped(unit, LCMAP_UPPERCASE) == code(unit) &&
           mapped(unit, LCMAP_UPPERCASE | LCMAP_LINGUISTIC_CASING) != code(unit);
}

void compare_capitals(Comparison& comparison, char16_t unit) {
    const auto theirs = static_cast<wchar_t>(unit);
    const std::string ours = capital_of(unit);
    comparison.compare("LCMapString linguistic", "all", code(unit), ours,
                       mapped(theirs, LCMAP_UPPERCASE | LCMAP_LINGUISTIC_CASING),
                       [] { return std::nullopt; });
    const auto reason = [&]() -> Comparison::Reason {
        if (shares_capital(theirs)) return "capital of two letters";
        return std::nullopt;
    };
    comparison.compare("LCMapString", "all", code(unit), ours, mapped(theirs, LCMAP_UPPERCASE), reason);
    std::array<wchar_t, 2> text = {theirs, L'\0'};
    CharUpperBuffW(text.data(), 1);
    comparison.compare("CharUpper", "all", code(unit), ours, code(text[0]), reason);
}

} // namespace

void compare_letters(Comparison& comparison) {
    const ComparedLocale& where = compared_locales().front();
    const Conversion<std::string> before_a_number = {
        "VarR8FromStr", Kind::number, where,
        [&](const std::string& text) {
            return outcome([&] { return shown(to_double(text, where.locale)); });
        },
        [&](const std::string& text) { return platform_double(text, where.identifier); }};
    for (unsigned unit = 1; unit <= 0xFFFF; ++unit) {
        compare_capitals(comparison, static_cast<char16_t>(unit));
        const std::string letter = to_utf8(std::u16string(1, static_cast<char16_t>(unit)));
        compare(comparison, before_a_number, letter + "1");
        compare(comparison, before_a_number, "1" + letter);
    }
}

} // namespace brx::conversions
