#include "conversions/samples.h"

namespace brx::conversions {

std::uint64_t Random::bits() {
    // splitmix64
    std::uint64_t z = state_ += 0x9E3779B97F4A7C15U;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBU;
    return z ^ (z >> 31);
}

std::string in_order(std::initializer_list<std::string> parts) {
    std::string text;
    for (const std::string& part : parts) text += part;
    return text;
}

std::string with_mistakes(Random& random, std::string text) {
    static const std::vector<std::string> pieces = {
        "0", "1", "9", "+", "-", ".", ",", "(", ")", "$", "€", " ", "e",      "E", "d", "D",
        "H", "O", "&", "x", "X", ":", "/", "%", "'", "#", "A", "P", "\u00A0", "’", "M", "Jan"};
    const auto is_inner = [&](std::size_t at) {
        return at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80;
    };
    for (int mistakes = random.between(1, 2); mistakes > 0; --mistakes) {
        std::size_t place = random.below(text.size() + 1);
        while (is_inner(place)) ++place;
        std::size_t end = place < text.size() ? place + 1 : place;
        while (is_inner(end)) ++end;
        switch (random.below(4)) {
        case 0:
            text.erase(place, end - place);
            break;
        case 1:
            text.insert(place, text.substr(place, end - place));
            break;
        case 2:
            text.replace(place, end - place, random.pick(pieces));
            break;
        default:
            text.insert(place, random.pick(pieces));
            break;
        }
    }
    return text;
}

} // namespace brx::conversions
