#pragma once

#include <cstdint>

namespace brx {

/// Where a control lies in its container, in pixels at 96 DPI. Engines scale to the monitor.
struct Place {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    bool operator==(const Place&) const = default;
};

struct Size {
    int width = 0;
    int height = 0;
    bool operator==(const Size&) const = default;
};

/// What a control makes of it when the form is made larger: which edges of the form, or whether its middle,
/// it keeps its distance to, and how much of the room it takes.
enum class Anchor : unsigned {
    top_left = 0,
    right = 1,
    bottom = 2,
    stretch_width = 4,
    stretch_height = 8,
    middle = 16,            ///< moves right by half of what the form is wider
    stretch_half_width = 32 ///< takes half of what the form is wider
};
constexpr Anchor operator|(Anchor a, Anchor b) {
    return static_cast<Anchor>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}
constexpr bool has(Anchor set, Anchor one) {
    return (static_cast<unsigned>(set) & static_cast<unsigned>(one)) != 0;
}

/// Lengths given in twips (1440 to the inch) as pixels at 96 DPI.
constexpr int twips(int length) { return (length + (length < 0 ? -7 : 7)) / 15; }

/// A colour: 0x00BBGGRR, or a system colour, whose code has the top bit set and its index in the low byte.
using Color = std::uint32_t;
namespace color {
inline constexpr Color window = 0x80000005;
inline constexpr Color window_text = 0x80000008;
inline constexpr Color button_face = 0x8000000F;
inline constexpr Color button_text = 0x80000012;
inline constexpr Color red = 0x000000FF;
} // namespace color

} // namespace brx
