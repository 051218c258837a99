#include "collect/telling.h"

#include "common/trap.h"
#include "common/values/convert.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace brx::collect {

namespace {

std::string text_of(const Variant& value, const Locale& locale) {
    std::string text = "?";
    attempt([&] { text = to_text(value, locale); });
    return text;
}

std::string counted(std::size_t count, const std::string& one, const std::string& many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

/// What a condition comes to for a person. Compared with no value, a value is equal to nothing when it is
/// empty, and otherwise more.
enum class Sense { every_change, comparison, empty, not_empty, never };

bool is_without_value(const Variant& value) {
    const auto* const text = std::get_if<std::string>(&value);
    return std::holds_alternative<Empty>(value) || (text && text->empty());
}

Sense sense_of(const Condition& condition) {
    static constexpr std::array without_value = {Sense::every_change, Sense::empty, Sense::not_empty,
                                                 Sense::every_change, Sense::never, Sense::empty,
                                                 Sense::not_empty};
    const auto code = static_cast<std::size_t>(condition.operation);
    if (code >= without_value.size()) return Sense::never;
    if (code == 0 || is_without_value(condition.value)) return without_value[code];
    return std::holds_alternative<Null>(condition.value) ? Sense::never : Sense::comparison;
}

std::string comparison_text(const Condition& condition, const Locale& locale) {
    static constexpr std::array operators = {"", "= ", "> ", ">= ", "< ", "<= ", "<> "};
    return operators.at(static_cast<std::size_t>(condition.operation)) + text_of(condition.value, locale);
}

std::string clock_text(const Period& period) {
    static constexpr std::array ones = {"second", "minute", "hour",    "day",
                                        "week",   "month",  "quarter", "year"};
    const std::string unit = ones.at(static_cast<std::size_t>(period.time_unit));
    if (period.interval == 1) return "every " + unit;
    return "every " + std::to_string(period.interval) + " " + unit + "s";
}

std::string trigger_text(const Period& period, const Locale& locale) {
    switch (sense_of(period.condition)) {
    case Sense::every_change:
        return "whenever " + period.item + " changes";
    case Sense::comparison:
        return "when " + period.item + " " + comparison_text(period.condition, locale);
    case Sense::empty:
        return "when " + period.item + " is empty";
    case Sense::not_empty:
        return "when " + period.item + " is not empty";
    default:
        return "never by " + period.item;
    }
}

/// `else_when` for a period with neither clock nor trigger.
std::string period_text(const Period& period, const char* else_when, const Locale& locale) {
    if (!period.has_clock() && !period.has_trigger()) return else_when;
    if (!period.has_trigger()) return clock_text(period);
    if (!period.has_clock()) return trigger_text(period, locale);
    return clock_text(period) + " or " + trigger_text(period, locale);
}

std::string own_trigger_text(const Condition& condition, const Locale& locale) {
    switch (sense_of(condition)) {
    case Sense::comparison:
        return "each new value " + comparison_text(condition, locale);
    case Sense::empty:
        return "each new value that is empty";
    case Sense::not_empty:
        return "each new value that is not empty";
    case Sense::never:
        return "never";
    default:
        return "each new value";
    }
}

} // namespace

Variant as_shown(const Variant& value) {
    const auto* const number = std::get_if<double>(&value);
    const bool fits = number && std::abs(*number) <= std::numeric_limits<float>::max();
    return fits ? Variant(static_cast<float>(*number)) : value;
}

std::string so_far(const Collector& collector, std::int64_t test, const Locale& locale) {
    const Series& series = collector.series(test);
    std::string text =
        counted(static_cast<std::size_t>(series.complete_subgroups()), "subgroup", "subgroups");
    if (series.is_open())
        text += ", " + std::to_string(series.pieces_of_the_open_one()) + " of " +
                counted(static_cast<std::size_t>(std::max(collector.settings().subgroup_size, 1)), "piece",
                        "pieces") +
                " of the next";
    const auto last = std::find_if(series.points().rbegin(), series.points().rend(),
                                   [](const Point& point) { return point.subgroup != 0; });
    if (last != series.points().rend()) text += ", last value " + text_of(as_shown(last->value), locale);
    return text;
}

std::string how_it_goes_on(const Settings& settings, const TestSettings& test, const Locale& locale) {
    std::string pieces = test.own_trigger ? own_trigger_text(test.condition, locale)
                                          : period_text(settings.piece, "each new value", locale);
    return "Subgroup: " + period_text(settings.subgroup, "after the one before", locale) +
           ".  Piece: " + pieces + ".";
}

std::string trigger_in_short(const Condition& condition, const Locale& locale) {
    switch (sense_of(condition)) {
    case Sense::every_change:
        return "Always";
    case Sense::comparison:
        return comparison_text(condition, locale);
    case Sense::empty:
        return "If empty";
    case Sense::not_empty:
        return "If not empty";
    default:
        return "Never";
    }
}

} // namespace brx::collect
