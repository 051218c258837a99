#pragma once

#include "collect/settings.h"

#include <optional>

namespace brx::collect {

/// A value as a number, False being 0 and True -1; none for what is none, or no finite one.
std::optional<double> number_in(const Variant& value);

/// Also of what is no number, which equals nothing.
bool is_the_same(const Variant& one, const Variant& other);

/// Whether a value fulfils a condition. Both sides are compared as numbers where both are numbers, otherwise
/// as texts. What has neither number nor text fulfils nothing but "always"; an infinity is a number here.
bool holds(const Condition& condition, const Variant& value);

} // namespace brx::collect
