#include "common/values/calendar.h"
#include "common/values/convert.h"
#include "common/values/format.h"
#include "common/values/unicode.h"

#include <algorithm>

namespace brx {
namespace {

std::string number(int value, std::size_t digits) {
    const std::string text = std::to_string(value);
    return std::string(digits - std::min(digits, text.size()), '0') + text;
}

std::string day_or_month(unsigned value, std::size_t count, const std::string& short_name,
                         const std::string& name) {
    if (count >= 4) return name;
    return count == 3 ? short_name : number(static_cast<int>(value), count);
}

/// One to four of a picture's letters; empty for a letter that stands for itself.
std::optional<std::string> date_field(char letter, std::size_t count, const Moment& moment,
                                      const Locale& locale) {
    const std::chrono::year_month_day date = moment.calendar_day();
    const int year = static_cast<int>(date.year());
    switch (letter) {
    case 'd': {
        const std::size_t weekday = moment.weekday().iso_encoding() - 1;
        return day_or_month(unsigned(date.day()), count, locale.short_days[weekday], locale.days[weekday]);
    }
    case 'M': {
        const std::size_t month = unsigned(date.month()) - 1;
        return day_or_month(unsigned(date.month()), count, locale.short_months[month], locale.months[month]);
    }
    case 'y':
        return count > 2 ? std::to_string(year) : number(year % 100, count);
    case 'g':
        return ""; // the era, which goes without saying
    default:
        return std::nullopt;
    }
}

std::optional<std::string> time_field(char letter, std::size_t count, const Moment& moment,
                                      const Locale& locale) {
    const int hour = moment.second / 3600;
    const std::size_t digits = std::min<std::size_t>(count, 2);
    switch (letter) {
    case 'h':
        return number(hour % 12 == 0 ? 12 : hour % 12, digits);
    case 'H':
        return number(hour, digits);
    case 'm':
        return number(moment.second / 60 % 60, digits);
    case 's':
        return number(moment.second % 60, digits);
    case 't': {
        const std::string& name = hour < 12 ? locale.am : locale.pm;
        if (count > 1 || name.empty()) return name;
        std::size_t end = 0;
        read_code_point(name, end);
        return name.substr(0, end);
    }
    default:
        return std::nullopt;
    }
}

using FieldText = std::optional<std::string> (*)(char, std::size_t, const Moment&, const Locale&);

std::string fill(const std::string& picture, FieldText field, const Moment& moment, const Locale& locale) {
    std::string text;
    bool quoted = false;
    for (std::size_t i = 0; i < picture.size();) {
        const char letter = picture[i];
        if (letter == '\'') {
            // Two quotes inside quotes are one.
            if (quoted && picture[i + 1] == '\'')
                text += picture[i++];
            else
                quoted = !quoted;
            ++i;
            continue;
        }
        const std::size_t count = std::min(picture.find_first_not_of(letter, i), picture.size()) - i;
        const auto value = quoted ? std::nullopt : field(letter, count, moment, locale);
        text += value ? *value : std::string(count, letter);
        i += count;
    }
    return text;
}

} // namespace

std::string short_date(Date date, const Locale& locale) {
    return fill(locale.short_date, date_field, to_moment(date), locale);
}

std::string long_time(Date date, const Locale& locale) {
    return fill(locale.long_time, time_field, to_moment(date), locale);
}

std::string date_text(Date date, const Locale& locale) {
    const Moment moment = to_moment(date);
    if (moment.day == 0) return long_time(date, locale);
    if (moment.second == 0) return short_date(date, locale);
    return short_date(date, locale) + ' ' + long_time(date, locale);
}

} // namespace brx
