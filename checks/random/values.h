#pragma once

#include "common/error.h"
#include "common/values/variant.h"
#include "random/chance.h"

#include <set>
#include <string>

namespace brx::checks {

// What hosts fail with and answer, and what persons enter. Any position will do.

/// An error of a host's, whose description tells it from all others.
Error error_at(int position, int call = 0);
/// The numbers of all of them.
const std::set<std::int32_t>& numbers_of_errors();

Variant value_at(int position);
int count_of_values();
int count_of_errors();
std::string told_value(int position);

/// A text of any kind: a number, a date, an identifier, nothing, something long, letters of all the world.
std::string any_text(Chance& chance);
/// The same, of what a keyboard has.
std::string typed_text(Chance& chance);
/// "2026-11-21" or "13:04:05".
std::string any_day(Chance& chance);
std::string any_time(Chance& chance);
/// The name of something that hosts often have.
std::string known_name(Chance& chance);

} // namespace brx::checks
