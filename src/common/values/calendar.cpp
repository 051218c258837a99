#include "common/values/calendar.h"

#include "common/error.h"

#include <cmath>
#include <cstdlib>
#include <ctime>

namespace brx {
namespace {

using namespace std::chrono;

constexpr int seconds_per_day = 24 * 60 * 60;
constexpr sys_days zero_day = 1899y / December / 30;

} // namespace

year_month_day Moment::calendar_day() const { return zero_day + days(day); }

std::chrono::weekday Moment::weekday() const { return zero_day + days(day); }

bool is_date(double days) { return days > first_day - 1 && days < last_day + 1; }

Moment to_moment(Date date) {
    if (!is_date(date.days)) throw Error(error::invalid_procedure_call);
    const double whole = std::trunc(date.days);
    const int day = static_cast<int>(whole);
    const int second = static_cast<int>(std::lround(std::fabs(date.days - whole) * seconds_per_day));
    if (second < seconds_per_day) return {day, second};
    // There is no day behind the last one to round to.
    return day == last_day ? Moment{day, second - 1} : Moment{day + 1, 0};
}

Date to_date(const Moment& moment) {
    // Summed up as the platform does, to the same last bit.
    const int hour = moment.second / 3600;
    const int minute = moment.second / 60 % 60;
    double days = std::abs(moment.day);
    days += hour / 24.0;
    days += minute / 1440.0;
    days += moment.second % 60 / 86400.0;
    return {moment.day < 0 ? -days : days};
}

std::optional<int> day_number(int year, unsigned month, unsigned day) {
    const year_month_day date = std::chrono::year(year) / std::chrono::month(month) / std::chrono::day(day);
    // The calendar's types are too small for some numbers.
    const bool held = static_cast<int>(date.year()) == year && unsigned(date.month()) == month &&
                      unsigned(date.day()) == day;
    if (!held || !date.ok()) return std::nullopt;
    const auto number = (sys_days(date) - zero_day).count();
    if (number < first_day || number > last_day) return std::nullopt;
    return static_cast<int>(number);
}

int current_year() {
    const std::time_t now = std::time(nullptr);
    return 1900 + std::localtime(&now)->tm_year;
}

} // namespace brx
