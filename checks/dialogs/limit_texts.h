#pragma once

#include "common/values/locale.h"

#include <string>
#include <vector>

namespace brx::checks {

/// What a conversion makes of a text: a number (of a truth -1 or 0) or an error's number.
struct Outcome {
    double value = 0;
    int error = 0;
    Outcome(double number) : value(number) {}
    static Outcome failing(int number) {
        Outcome outcome(0);
        outcome.error = number;
        return outcome;
    }
    bool operator==(const Outcome&) const = default;
};

/// A text that a person can enter, and what it is as each type whose values are converted.
struct LimitText {
    std::string text;
    Outcome int16;
    Outcome int32;
    Outcome single;
    Outcome real;
    Outcome boolean;
};

/// Texts at, just inside and just outside of the limits of each type, and texts of other kinds, in US English
/// or German.
std::vector<LimitText> limit_texts(const Locale& locale);

} // namespace brx::checks
