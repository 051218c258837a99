#pragma once

#include "common/error.h"
#include "common/model/object.h"
#include "common/values/variant.h"

#include <cstdint>
#include <string>

namespace brx::checks {

// What a value is, type and all, in words that can be compared.

std::string describe(const Variant& value);
std::string describe(const LongArray& value);
std::string describe(const ShortArray& value);
std::string describe(const Error& error);

/// An object by its interface and by what tells it from its like.
std::string describe(const ObjectPtr& object);

/// What a call gave or threw.
template <class Call> std::string outcome(Call&& call) {
    try {
        return describe(call());
    } catch (const Error& error) {
        return describe(error);
    }
}

} // namespace brx::checks
