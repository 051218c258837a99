#include "com/system_locale.h"

#include "com/bstr.h"

#include <array>

namespace brx {
namespace {

/// Reads one locale's settings.
class Settings {
public:
    explicit Settings(LCID identifier) : identifier_(identifier) {}

    /// Leaves the value alone where the system has none.
    void read(LCTYPE kind, std::string& value) const {
        std::array<wchar_t, 256> buffer{};
        const int length = GetLocaleInfoW(identifier_, kind, buffer.data(), static_cast<int>(buffer.size()));
        if (length > 0) value = text_of(buffer.data(), static_cast<std::size_t>(length) - 1);
    }

    /// For settings where the system's empty text means the usual one.
    void read_unless_empty(LCTYPE kind, std::string& value) const {
        std::string found;
        read(kind, found);
        if (!found.empty()) value = found;
    }

    template <std::size_t Count> void read(LCTYPE first, std::array<std::string, Count>& values) const {
        for (std::size_t i = 0; i < Count; ++i) read(first + static_cast<LCTYPE>(i), values[i]);
    }

    void read_truth(bool truth, std::string& value) const {
        Bstr text;
        const VARIANT_BOOL automation = truth ? VARIANT_TRUE : VARIANT_FALSE;
        if (SUCCEEDED(VarBstrFromBool(automation, identifier_, VAR_LOCALBOOL, text.out())))
            value = text.text();
    }

    void read_two_digit_year_max(int& value) const {
        DWORD year = 0;
        constexpr CALTYPE kind = CAL_ITWODIGITYEARMAX | CAL_RETURN_NUMBER;
        if (GetCalendarInfoW(identifier_, CAL_GREGORIAN, kind, nullptr, 0, &year) && year >= 99 &&
            year <= 9999) {
            value = static_cast<int>(year);
        }
    }

private:
    LCID identifier_;
};

} // namespace

Locale system_locale() { return system_locale(LOCALE_USER_DEFAULT); }

Locale system_locale(std::uint32_t identifier) {
    const Settings settings(identifier);
    Locale locale;
    settings.read_unless_empty(LOCALE_SDECIMAL, locale.decimal_separator);
    settings.read(LOCALE_STHOUSAND, locale.grouping_separator);
    settings.read_unless_empty(LOCALE_SMONDECIMALSEP, locale.money_decimal_separator);
    settings.read(LOCALE_SMONTHOUSANDSEP, locale.money_grouping_separator);
    settings.read(LOCALE_SCURRENCY, locale.currency_symbol);
    settings.read_unless_empty(LOCALE_SPOSITIVESIGN, locale.positive_sign);
    settings.read_unless_empty(LOCALE_SNEGATIVESIGN, locale.negative_sign);

    std::string order;
    settings.read(LOCALE_IDATE, order);
    if (order == "1") locale.date_order = DateOrder::day_month_year;
    if (order == "2") locale.date_order = DateOrder::year_month_day;
    settings.read(LOCALE_SDATE, locale.date_separator);
    settings.read(LOCALE_STIME, locale.time_separator);
    settings.read_unless_empty(LOCALE_SSHORTDATE, locale.short_date);
    settings.read_unless_empty(LOCALE_STIMEFORMAT, locale.long_time);
    settings.read(LOCALE_S1159, locale.am);
    settings.read(LOCALE_S2359, locale.pm);
    settings.read_two_digit_year_max(locale.two_digit_year_max);

    settings.read(LOCALE_SMONTHNAME1, locale.months);
    settings.read(LOCALE_SABBREVMONTHNAME1, locale.short_months);
    settings.read(LOCALE_SDAYNAME1, locale.days);
    settings.read(LOCALE_SABBREVDAYNAME1, locale.short_days);
    settings.read_truth(true, locale.true_text);
    settings.read_truth(false, locale.false_text);
    return locale;
}

} // namespace brx
