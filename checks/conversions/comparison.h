#pragma once

#include "common/values/locale.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <tuple>

namespace brx::conversions {

/// A locale by its settings, by its identifier and by the name that stands in the table of known differences.
struct ComparedLocale {
    std::string name;
    std::uint32_t identifier;
    Locale locale;
};

/// What a conversion makes.
enum class Kind { number, single, integer, truth, date, text };

/// One conversion, ours and theirs. What it says is a text: the value, exact to the last bit, or "error" and
/// its number.
template <class Input> struct Conversion {
    std::string function;
    Kind kind;
    const ComparedLocale& where;
    std::function<std::string(const Input&)> ours;
    std::function<std::string(const Input&)> theirs;
};

/// What `body` returns, or "error" and its number.
std::string outcome(const std::function<std::string()>& body);

/// Counts how many values are the same on both sides. A difference must have a reason that can be told from
/// the input and both values, and the differences of each reason must be exactly the known ones; anything
/// else fails.
class Comparison {
public:
    /// With `listing` every difference is printed. The known differences are Wine's: a real Windows is
    /// expected to have none, and each is a failure there.
    Comparison(bool listing, bool known_are_met) : listing_(listing), known_are_met_(known_are_met) {}

    using Reason = std::optional<std::string>;

    void compare(const std::string& function, const std::string& locale, const std::string& input,
                 const std::string& ours, const std::string& theirs, const std::function<Reason()>& reason);
    void skip(const std::string& what);

    /// Compares the differences with the known ones of the functions and locales that were asked, tells what
    /// failed, and prints the closing line. True when nothing failed.
    bool finish();

    /// Prints what the table of known differences has to say.
    void print_table() const;

private:
    /// The reason, the locale and the function.
    using Key = std::tuple<std::string, std::string, std::string>;
    struct Group {
        std::uint64_t count = 0;
        std::uint64_t digest = 0xCBF29CE484222325U;
    };

    void fail(const std::string& text, std::uint64_t count);

    bool listing_;
    bool known_are_met_;
    std::map<Key, Group> differences_;
    std::map<std::tuple<std::string, std::string>, std::uint64_t> asked_; ///< by locale and function
    std::uint64_t passed_ = 0;
    std::uint64_t failed_ = 0;
    std::uint64_t skipped_ = 0;
};

} // namespace brx::conversions
