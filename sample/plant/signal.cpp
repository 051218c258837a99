#include "plant/signal.h"

#include "plant/clock.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <string>

namespace brx::plant {

namespace {

/// Spreads the bits of a number evenly.
std::uint64_t scramble(std::uint64_t number) {
    number += 0x9E37'79B9'7F4A'7C15;
    number = (number ^ (number >> 30)) * 0xBF58'476D'1CE4'E5B9;
    number = (number ^ (number >> 27)) * 0x94D0'49BB'1331'11EB;
    return number ^ (number >> 31);
}

/// Even between 0 and 1, always the same for the same number.
double chance(std::uint64_t number) { return static_cast<double>(scramble(number) >> 11) * 0x1p-53; }

/// Between 0 and 1, most often near the middle: the mean of a few even chances is close to a normal one.
double bell(std::uint64_t seed, std::int64_t turn) {
    constexpr int chances = 6;
    double sum = 0;
    for (int i = 0; i < chances; ++i)
        sum += chance(scramble(seed + static_cast<std::uint64_t>(i)) ^ static_cast<std::uint64_t>(turn));
    return sum / chances;
}

double level(const Signal& signal, std::uint64_t seed, double seconds) {
    const double turns = seconds / signal.period + chance(seed);
    const double phase = turns - std::floor(turns);
    const double span = signal.high - signal.low;
    switch (signal.wave) {
    case Wave::sine:
        return signal.low + span * (0.5 + 0.5 * std::sin(2 * std::numbers::pi * phase));
    case Wave::ramp:
        return signal.low + span * phase;
    case Wave::square:
        return phase < 0.5 ? signal.low : signal.high;
    case Wave::measured:
        return signal.low + span * bell(seed, static_cast<std::int64_t>(std::floor(seconds / signal.period)));
    case Wave::counted:
        return std::floor(std::fmod(seconds, seconds_per_day) / signal.period);
    case Wave::clock:
        return std::floor(seconds / signal.period) * signal.period / seconds_per_day;
    case Wave::steady:
        break;
    }
    return signal.low;
}

template <class Integer> Integer rounded(double number) {
    using Limits = std::numeric_limits<Integer>;
    return static_cast<Integer>(std::clamp(std::round(number), static_cast<double>(Limits::min()),
                                           static_cast<double>(Limits::max())));
}

Variant as_text(std::span<const char* const> words, double number) {
    if (words.empty()) return std::string();
    const double last = static_cast<double>(words.size() - 1);
    return std::string(words[static_cast<std::size_t>(std::clamp(std::round(number), 0.0, last))]);
}

} // namespace

std::uint64_t seed_of(std::string_view text) {
    std::uint64_t hash = 0xCBF2'9CE4'8422'2325;
    for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 0x0000'0100'0000'01B3;
    return hash;
}

Variant value_at(const Signal& signal, std::uint64_t seed, Date time) {
    const double number = level(signal, seed, time.days * seconds_per_day);
    switch (signal.type) {
    case Type::short_integer:
        return rounded<std::int16_t>(number);
    case Type::long_integer:
        return rounded<std::int32_t>(number);
    case Type::single:
        return static_cast<float>(number);
    case Type::real:
        return number;
    case Type::currency:
        return Currency{static_cast<std::int64_t>(std::llround(number * 10'000))};
    case Type::date:
        return Date{number};
    case Type::text:
        return as_text(signal.texts, number);
    case Type::boolean:
        return number > (signal.low + signal.high) / 2;
    case Type::byte:
        return Opaque{static_cast<std::uint16_t>(signal.type), nullptr,
                      std::to_string(int{rounded<std::uint8_t>(number)})};
    }
    return Null{};
}

} // namespace brx::plant
