#pragma once

#include <array>
#include <string>

namespace brx {

/// The order of the numbers of a date.
enum class DateOrder { month_day_year, day_month_year, year_month_day };

/// What a user's regional settings say about numbers, dates and truth, as a plain value that every conversion
/// is given. A default one is US English, the settings where no system tells otherwise.
struct Locale {
    std::string decimal_separator = ".";
    std::string grouping_separator = ",";
    std::string money_decimal_separator = "."; ///< instead of the first one behind a currency sign
    std::string money_grouping_separator = ",";
    std::string currency_symbol = "$";
    std::string positive_sign = "+";
    std::string negative_sign = "-"; ///< of a number that is read; a written one has a plain minus

    DateOrder date_order = DateOrder::month_day_year;
    std::string date_separator = "/";
    std::string time_separator = ":";
    /// Pictures of d, M, y, h, H, m, s, t and literals; literal letters stand in single quotes.
    std::string short_date = "M/d/yyyy";
    std::string long_time = "h:mm:ss tt";
    std::string am = "AM"; ///< may be empty
    std::string pm = "PM";
    /// The last year that two digits can mean: 2049 makes 50 mean 1950.
    int two_digit_year_max = 2049;

    std::array<std::string, 12> months = {"January",   "February", "March",    "April",
                                          "May",       "June",     "July",     "August",
                                          "September", "October",  "November", "December"};
    std::array<std::string, 12> short_months = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    /// Monday first.
    std::array<std::string, 7> days = {"Monday", "Tuesday",  "Wednesday", "Thursday",
                                       "Friday", "Saturday", "Sunday"};
    std::array<std::string, 7> short_days = {"Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"};

    std::string true_text = "True";
    std::string false_text = "False";

    bool operator==(const Locale&) const = default;
};

} // namespace brx
