#include "common/values/calendar.h"
#include "common/values/convert.h"
#include "common/values/unicode.h"

#include <algorithm>
#include <array>
#include <span>
#include <vector>

namespace brx {
namespace {

enum class Half { none, am, pm };

/// A number or a month's name, with what stands behind it.
struct Field {
    int value = 0;
    bool is_month = false;
    bool joined = false; ///< by a time separator to the next field
    Half half = Half::none;
};

/// Takes a text apart into fields: numbers, names of months and days, designators, separators, blanks,
/// commas.
class DateScanner {
public:
    DateScanner(std::string_view text, const Locale& locale)
        : text_(capitals(text)),
          date_separator_(capitals(locale.date_separator)),
          time_separator_(capitals(locale.time_separator)) {
        for (std::size_t i = 0; i < 12; ++i) {
            names_.push_back({capitals(locale.months[i]), Name::month, static_cast<int>(i) + 1});
            names_.push_back({capitals(locale.short_months[i]), Name::month, static_cast<int>(i) + 1});
        }
        for (const auto* days : {&locale.days, &locale.short_days}) {
            for (const std::string& day : *days) names_.push_back({capitals(day), Name::day});
        }
        names_.push_back({capitals(locale.am), Name::am});
        names_.push_back({capitals(locale.pm), Name::pm});
        names_.push_back({U"A", Name::am});
        names_.push_back({U"P", Name::pm});
        std::stable_sort(names_.begin(), names_.end(),
                         [](const Name& a, const Name& b) { return a.text.size() > b.text.size(); });
    }

    /// Empty when there is something that is no part of a date.
    std::optional<std::vector<Field>> scan() {
        while (position_ < text_.size()) {
            if (!(take_blank() || take_number() || take_name() || take_separator())) return std::nullopt;
        }
        return fields_;
    }

private:
    struct Name {
        std::u32string text;
        enum Kind { month, day, am, pm } kind;
        int month_number = 0;
    };

    static std::u32string capitals(std::string_view text) {
        std::u32string result = to_code_points(text);
        for (char32_t& c : result) c = to_upper(c);
        return result;
    }

    static bool is_digit(char32_t c) { return c >= U'0' && c <= U'9'; }

    bool take_blank() {
        const bool comma = text_[position_] == U',' && position_ + 1 < text_.size();
        if (!comma && !is_white_space(text_[position_])) return false;
        ++position_;
        return true;
    }

    bool take_number() {
        if (!is_digit(text_[position_])) return false;
        Field field;
        for (; is_digit(text_[position_]); ++position_) {
            field.value = std::min(field.value * 10 + static_cast<int>(text_[position_] - U'0'), 1'000'000);
        }
        fields_.push_back(field);
        return true;
    }

    static bool is_letter(char32_t capital) {
        return (capital >= U'A' && capital <= U'Z') || capital >= U'\u00C0';
    }

    /// One letter alone is a designator only where no other letter follows.
    bool is_next(const std::u32string& name) const {
        if (name.empty() || text_.compare(position_, name.size(), name) != 0) return false;
        return name.size() > 1 || !is_letter(text_[position_ + 1]);
    }

    bool take_name() {
        const auto name =
            std::find_if(names_.begin(), names_.end(), [&](const Name& n) { return is_next(n.text); });
        if (name == names_.end()) return false;
        const bool designator = name->kind == Name::am || name->kind == Name::pm;
        if (designator && (fields_.empty() || has_half_)) return false;
        position_ += name->text.size();
        if (name->kind == Name::month) {
            fields_.push_back({.value = name->month_number, .is_month = true});
        } else if (designator) {
            has_half_ = true;
            fields_.back().half = name->kind == Name::am ? Half::am : Half::pm;
        }
        return true;
    }

    /// A separator stands between two fields. The full stop is one of times unless the locale says that it is
    /// one of dates.
    bool take_separator() {
        const char32_t c = text_[position_];
        const bool of_dates = c == U'-' || c == U'/' || date_separator_ == std::u32string(1, c);
        const bool of_times =
            !of_dates && (c == U':' || c == U'.' || time_separator_ == std::u32string(1, c));
        if ((!of_dates && !of_times) || fields_.empty() || position_ + 1 == text_.size()) return false;
        if (of_dates && ++date_separators_ > 2) return false;
        if (of_times) fields_.back().joined = true;
        ++position_;
        return true;
    }

    std::u32string text_;
    std::u32string date_separator_;
    std::u32string time_separator_;
    std::vector<Name> names_;
    std::size_t position_ = 0;
    std::vector<Field> fields_;
    int date_separators_ = 0;
    bool has_half_ = false;
};

/// The roles that a date's fields can have, by position.
enum class Role { year, month, day };
using Roles = std::array<Role, 3>;
constexpr Roles mdy = {Role::month, Role::day, Role::year};
constexpr Roles dmy = {Role::day, Role::month, Role::year};
constexpr Roles ymd = {Role::year, Role::month, Role::day};
constexpr Roles ydm = {Role::year, Role::day, Role::month};
constexpr Roles myd = {Role::month, Role::year, Role::day};

/// The user's order first, then what else it can be.
std::array<Roles, 4> orders(DateOrder order) {
    switch (order) {
    case DateOrder::month_day_year:
        return {mdy, ymd, ydm, dmy};
    case DateOrder::day_month_year:
        return {dmy, ymd, mdy, ydm};
    case DateOrder::year_month_day:
        break;
    }
    return {ymd, mdy, ydm, dmy};
}

class DateReader {
public:
    DateReader(std::vector<Field> fields, const Locale& locale, int this_year)
        : fields_(std::move(fields)), locale_(locale), this_year_(this_year) {}

    std::optional<Date> read() {
        const auto date = take_time();
        if (!date) return std::nullopt;
        const auto second = second_of_day();
        const auto day = date->empty() ? std::optional<int>(0) : find_day(*date);
        if (!second || !day) return std::nullopt;
        return to_date(Moment{*day, *second});
    }

private:
    /// Fields joined by time separators, or a lone one with a designator, are the time: the first fields or
    /// the last. Gives the others, which must make a date; empty when the fields cannot be shared out like
    /// that.
    std::optional<std::span<const Field>> take_time() {
        const std::span<const Field> all = fields_;
        const auto in_time = [](const Field& f) { return f.joined || f.half != Half::none; };
        const auto first = std::find_if(all.begin(), all.end(), in_time);
        if (first == all.end()) return all.size() == 2 || all.size() == 3 ? std::optional(all) : std::nullopt;

        const auto start = static_cast<std::size_t>(first - all.begin());
        std::size_t end = start;
        while (end < all.size() && all[end].joined) ++end;
        if (end == all.size()) return std::nullopt;
        time_ = all.subspan(start, ++end - start);
        const std::span<const Field> rest = start == 0 ? all.subspan(end) : all.first(start);
        const bool whole = start + time_.size() + (start == 0 ? rest.size() : 0) == all.size();
        const bool only_time = std::none_of(rest.begin(), rest.end(), in_time);
        if (!whole || !only_time || time_.size() > 3 || rest.size() == 1 || rest.size() > 3)
            return std::nullopt;
        return rest;
    }

    std::optional<int> second_of_day() const {
        std::array<int, 3> clock{};
        Half half = Half::none;
        for (std::size_t i = 0; i < time_.size(); ++i) {
            clock[i] = time_[i].value;
            if (time_[i].half != Half::none) half = time_[i].half;
        }
        auto [hour, minute, second] = clock;
        if (hour > 23 || minute > 59 || second > 59) return std::nullopt;
        if (half == Half::pm && hour < 12) hour += 12;
        if (half == Half::am && hour == 12) hour = 0;
        return (hour * 60 + minute) * 60 + second;
    }

    std::optional<int> find_day(std::span<const Field> date) const {
        // As a month or a day this year makes no date.
        std::array values = {date[0].value, date[1].value, this_year_};
        if (date.size() == 3) values[2] = date[2].value;
        for (const Roles& roles : orders(locale_.date_order)) {
            if (!names_fit(date, roles)) continue;
            if (const auto day = place(values, roles)) return day;
        }
        if (date.size() == 2) {
            // No day of this year: a month and its year then.
            values[2] = 1;
            for (const Roles& roles : {ymd, myd}) {
                if (const auto day = place(values, roles)) return day;
            }
        }
        return std::nullopt;
    }

    /// The first month that is a name must be in the month's place; a second one counts as its number.
    static bool names_fit(std::span<const Field> date, const Roles& roles) {
        const auto name = std::find_if(date.begin(), date.end(), [](const Field& f) { return f.is_month; });
        return name == date.end() || roles[static_cast<std::size_t>(name - date.begin())] == Role::month;
    }

    std::optional<int> place(const std::array<int, 3>& values, const Roles& roles) const {
        std::array<int, 3> by_role{};
        for (std::size_t i = 0; i < 3; ++i) by_role[static_cast<std::size_t>(roles[i])] = values[i];
        const auto [year, month, day] = by_role;
        return day_number(full_year(year), static_cast<unsigned>(month), static_cast<unsigned>(day));
    }

    int full_year(int year) const {
        if (year > 99) return year;
        const int last = locale_.two_digit_year_max;
        return last - (last - year) % 100;
    }

    std::vector<Field> fields_;
    const Locale& locale_;
    int this_year_;
    std::span<const Field> time_;
};

} // namespace

std::optional<Date> read_date(std::string_view text, const Locale& locale, int this_year) {
    auto fields = DateScanner(text, locale).scan();
    if (!fields) return std::nullopt;
    return DateReader(std::move(*fields), locale, this_year).read();
}

} // namespace brx
