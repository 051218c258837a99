#pragma once

#include "collect/collector.h"
#include "common/values/locale.h"

namespace brx::collect {

// What a person reads about collection, in her locale.

/// How much there is of a test: its complete subgroups, the pieces of the open one, the last value.
std::string so_far(const Collector& collector, std::int64_t test, const Locale& locale);

/// What begins subgroups and pieces of a test.
std::string how_it_goes_on(const Settings& settings, const TestSettings& test, const Locale& locale);

/// A value with as many digits as singles have: what is measured has no more.
Variant as_shown(const Variant& value);

/// When a test's own trigger fires, in a word or two.
std::string trigger_in_short(const Condition& condition, const Locale& locale);

} // namespace brx::collect
