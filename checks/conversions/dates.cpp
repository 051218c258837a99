#include "conversions/samples.h"

#include <array>

namespace brx::conversions {
namespace {

using Texts = std::vector<std::string>;

std::string number(Random& random, int least, int most) {
    std::string text = std::to_string(random.between(least, most));
    if (text.size() == 1 && random.one_in(3)) text.insert(0, "0");
    return text;
}

std::string month(Random& random, const Locale& locale) {
    if (!random.one_in(4)) return number(random, 1, 12);
    if (random.one_in(12)) return number(random, 0, 40);
    const std::string& name =
        random.one_in(2) ? random.pick(locale.months) : random.pick(locale.short_months);
    if (!random.one_in(6)) return name;
    std::string other = name;
    for (char& c : other) {
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    }
    return other;
}

std::string day(Random& random) {
    // Each compiler has an order of its own for arguments: here it is the same for all.
    const int most = random.one_in(20) ? 40 : 31;
    return number(random, random.one_in(30) ? 0 : 1, most);
}

std::string year(Random& random) {
    static const Texts odd = {"0",     "00",    "29",    "30",    "49",        "50",   "99",
                              "99",    "100",   "1600",  "1900",  "2000",      "9999", "10000",
                              "20260", "65535", "67562", "99999", "4294967297"};
    if (random.one_in(8)) return random.pick(odd);
    return random.one_in(3) ? number(random, 0, 99) : number(random, 1890, 2060);
}

std::string date(Random& random, const Locale& locale) {
    static const Texts separators = {"/", "-", ".", " ", ", ", " / ", ". ", "  ", ",", "\u00A0"};
    const std::string first = random.one_in(2) ? locale.date_separator : random.pick(separators);
    const std::string second = random.one_in(8) ? random.pick(separators) : first;
    std::array<std::string, 3> parts;
    switch (random.below(4)) {
    case 0:
        parts = {day(random), month(random, locale), year(random)};
        break;
    case 1:
        parts = {month(random, locale), day(random), year(random)};
        break;
    case 2:
        parts = {year(random), month(random, locale), day(random)};
        break;
    default:
        parts = {year(random), day(random), month(random, locale)};
        break;
    }
    std::string text = parts[0] + first + parts[1];
    if (!random.one_in(5)) text += second + parts[2];
    if (random.one_in(10)) {
        const std::string& name =
            random.one_in(2) ? random.pick(locale.days) : random.pick(locale.short_days);
        text = name + (random.one_in(2) ? ", " : " ") + text;
    }
    return text;
}

std::string time(Random& random) {
    static const Texts designators = {"", "", "", " AM", " PM", " am", "pm", " a", "p", " P", " pm"};
    const std::string separator = random.one_in(12) ? "." : ":";
    std::string text = number(random, 0, random.one_in(20) ? 26 : random.one_in(2) ? 12 : 23);
    if (!random.one_in(8)) text += separator + number(random, 0, random.one_in(20) ? 70 : 59);
    if (random.one_in(2)) text += separator + number(random, 0, random.one_in(20) ? 70 : 59);
    return text + random.pick(designators);
}

// The first and the last day, the zero day, and times just before midnight.
constexpr double special_dates[] = {0.0,
                                    0.25,
                                    0.5,
                                    1.0,
                                    1.5,
                                    -0.25,
                                    -1.0,
                                    -1.25,
                                    60.0,
                                    36526.0,
                                    36526.5,
                                    -657434.0,
                                    -657434.5,
                                    -657434.75,
                                    -657434.999999,
                                    -657435.0,
                                    -657436.0,
                                    2958465.0,
                                    2958465.5,
                                    2958465.999988,
                                    2958465.999999,
                                    2958466.0,
                                    2958467.0,
                                    1e9,
                                    -1e9,
                                    0.99999,
                                    0.999999,
                                    -0.999999,
                                    -1.999999,
                                    36525.9999999,
                                    36526.99999,
                                    2958464.999999};

} // namespace

std::vector<std::string> date_texts(const Locale& locale, std::size_t count) {
    Random random(2);
    Samples<std::string> samples;
    while (samples.size() < count) {
        std::string text;
        switch (random.below(6)) {
        case 0:
            text = time(random);
            break;
        case 1:
            text = in_order({date(random, locale), " ", time(random)});
            break;
        case 2:
            text = in_order({time(random), " ", date(random, locale)});
            break;
        default:
            text = date(random, locale);
            break;
        }
        if (random.one_in(5)) text = with_mistakes(random, std::move(text));
        samples.add(text);
    }
    return std::move(samples).list();
}

std::vector<double> date_values(std::size_t count) {
    Random random(4);
    Samples<double> samples;
    for (const double value : special_dates) samples.add(value);
    while (samples.size() < count) {
        const double day = random.one_in(2) ? random.between(-657434, 2958465) : random.between(-2, 60000);
        double time = 0;
        switch (random.below(4)) {
        case 0:
            break;
        case 1:
            time = static_cast<double>(random.below(86400)) / 86400;
            break;
        case 2:
            time = static_cast<double>(random.below(1440)) / 1440;
            break;
        default:
            time = static_cast<double>(random.bits() >> 11) / 9007199254740992.0;
            break;
        }
        samples.add(day < 0 ? day - time : day + time);
    }
    return std::move(samples).list();
}

} // namespace brx::conversions
