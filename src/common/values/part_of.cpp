#include "common/values/part_of.h"

#include "common/values/text.h"

#include <algorithm>
#include <array>

namespace brx {

namespace {

constexpr unsigned char beyond_ascii = 0x80;

constexpr std::array<char, 128> make_capitals() {
    std::array<char, 128> capitals{};
    for (std::size_t i = 0; i < capitals.size(); ++i) {
        const auto each = static_cast<char>(i);
        capitals.at(i) = each >= 'a' && each <= 'z' ? static_cast<char>(each - 'a' + 'A') : each;
    }
    return capitals;
}
constexpr std::array<char, 128> capitals = make_capitals();

bool is_ascii(std::string_view text) {
    unsigned char all = 0;
    for (const char each : text) all = static_cast<unsigned char>(all | static_cast<unsigned char>(each));
    return all < beyond_ascii;
}

char capital_of(char each) { return capitals[static_cast<unsigned char>(each)]; }

} // namespace

PartOf::PartOf(std::string_view part) : capitals_(to_upper(part)) {}

bool PartOf::is_in(std::string_view text) const {
    if (!is_ascii(text)) return to_upper(text).find(capitals_) != std::string::npos;
    // What a server calls its items: by the million, and seldom anything but these.
    return std::search(text.begin(), text.end(), capitals_.begin(), capitals_.end(),
                       [](char in_text, char wanted) { return capital_of(in_text) == wanted; }) !=
               text.end() ||
           capitals_.empty();
}

} // namespace brx
