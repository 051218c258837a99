#include "random/values.h"

#include "common/trap.h"
#include "common/values/convert.h"
#include "common/values/locale.h"

#include <array>
#include <cstdio>
#include <limits>

namespace brx::checks {

namespace {

constexpr auto error_numbers =
    std::to_array<std::int32_t>({-2147220501, // 0x800403EB, a code of no other meaning
                                 -2147467259, // 0x80004005, unspecified
                                 -2147024891, // 0x80070005, access is denied
                                 -2147023174, // 0x800706BA, the server is unavailable
                                 -2147417848, // 0x80010108, the object has gone
                                 -1073479673, // 0xC0040007, the item is unknown
                                 5, 9, 13, 91, 457, 35601});

const std::vector<Variant>& values() {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    static const std::vector<Variant> all = {
        ObjectPtr(),
        Empty{},
        Null{},
        Missing{},
        std::int16_t{-1},
        std::int16_t{7},
        std::int32_t{0},
        std::int32_t{3},
        std::int32_t{400},
        std::int32_t{-70'000},
        std::int32_t{
            40'000}, // as a count more than 16 bits take; a host that claims millions is asked for each
        2.5F,
        1e300,
        -infinity,
        std::numeric_limits<double>::quiet_NaN(),
        Currency{123'456},
        Date{46347.5625},
        Date{-657'500},
        std::string(),
        std::string("Line1.Speed"),
        std::string("12"),
        std::string("1e400"),
        std::string("&A\tB\r\nC"),
        std::string("\xF0\x9F\x98\x80 \xC3\xA4"),
        std::string(3'000, 'x'),
        true,
        false,
        StringArray{{"Plant.Simulation.1", "", "Line.Server.2"}, 0},
        StringArray{{}, 5},
    };
    return all;
}

std::string number_text(int number, int digits) {
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "%0*d", digits, number);
    return text.data();
}

template <class List> const auto& at(const List& list, int position) {
    return list[static_cast<std::size_t>(position < 0 ? -(position + 1) : position) % list.size()];
}

} // namespace

Error error_at(int position, int call) {
    return Error(at(error_numbers, position), "The host fails, number " + std::to_string(call), "FakeHost");
}

const std::set<std::int32_t>& numbers_of_errors() {
    static const std::set<std::int32_t> all(error_numbers.begin(), error_numbers.end());
    return all;
}

int count_of_errors() { return static_cast<int>(error_numbers.size()); }

Variant value_at(int position) { return at(values(), position); }

int count_of_values() { return static_cast<int>(values().size()); }

std::string told_value(int position) {
    const Variant value = value_at(position);
    if (std::holds_alternative<ObjectPtr>(value)) return "Nothing";
    std::string text;
    attempt([&] { text = to_text(value, Locale{}); });
    return "\"" + text.substr(0, 40) + "\" of type " + std::to_string(vartype(value));
}

std::string known_name(Chance& chance) {
    static constexpr auto names = std::to_array<const char*>({"Line1",
                                                              "Line2",
                                                              "Speed",
                                                              "Force",
                                                              "Line1.Speed",
                                                              "Line1.Force",
                                                              "Oven",
                                                              "Line1.Oven.Door",
                                                              "Matrix",
                                                              "PC7",
                                                              "Plant.Simulation.1",
                                                              "Line.Server.2",
                                                              "Length",
                                                              "Wheel",
                                                              "Castings",
                                                              "Short",
                                                              "Flag",
                                                              "(%Line1.Speed)",
                                                              "(%",
                                                              "localhost"});
    return chance.one_of(names);
}

std::string typed_text(Chance& chance) {
    static constexpr auto texts = std::to_array<const char*>(
        {"0",  "1", "7", "12", "-5",   "2.5",  "32768",      "99999999999", "1e5",   "a",
         "x",  "L", "S", " ",  "true", "True", "21.11.2026", "11/21/2026",  "13:04", "&H1F",
         "(%", ")", "*", ".",  ",",    "-",    "\\\\PC7",    "Li",          "s"});
    return chance.happens(30) ? known_name(chance) : std::string(chance.one_of(texts));
}

std::string any_text(Chance& chance) {
    static const std::vector<std::string> odd = {
        "",
        std::string(400, '9'),
        std::string(40'000, 'w'),
        "\xC3\x84nderung",
        "\xD0\x96\xD1\x83\xD0\xBA",
        "\xF0\x9F\x98\x80\xF0\x9F\x98\x80",
        "\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D",
        "e\xCC\x81",
        "a\tb",
        "first\r\nsecond",
        "\n",
        "&&&",
        "%s%n",
        "1.7976931348623157E+308",
        "1e-400",
        "NaN",
        "29.2.2027",
        "\x01\x7F",
        "(%)(%",
    };
    return chance.happens(40) ? chance.one_of(odd) : typed_text(chance);
}

std::string any_day(Chance& chance) {
    return number_text(chance.between(1900, 2100), 4) + "-" + number_text(chance.between(1, 12), 2) + "-" +
           number_text(chance.between(1, 28), 2);
}

std::string any_time(Chance& chance) {
    return number_text(chance.below(24), 2) + ":" + number_text(chance.below(60), 2) + ":" +
           number_text(chance.below(60), 2);
}

} // namespace brx::checks
