#include "host/words.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace brx::host {

namespace {

// The low byte of a quality: two bits for the quality itself, four for what is the matter, two for the
// limits.
constexpr std::int32_t limit_bits = 0x03;
constexpr std::int32_t status_bits = 0xFC;

struct QualityName {
    std::int32_t status;
    const char* name;
};
constexpr std::array quality_names = {
    QualityName{0x00, "bad"},
    QualityName{0x04, "bad, configuration error"},
    QualityName{0x08, "bad, not connected"},
    QualityName{0x0C, "bad, device failure"},
    QualityName{0x10, "bad, sensor failure"},
    QualityName{0x14, "bad, last known value"},
    QualityName{0x18, "bad, communication failure"},
    QualityName{0x1C, "bad, out of service"},
    QualityName{0x20, "bad, waiting for initial data"},
    QualityName{0x40, "uncertain"},
    QualityName{0x44, "uncertain, last usable value"},
    QualityName{0x50, "uncertain, sensor not accurate"},
    QualityName{0x54, "uncertain, engineering units exceeded"},
    QualityName{0x58, "uncertain, sub-normal"},
    QualityName{0xC0, "good"},
    QualityName{0xD8, "good, local override"},
};

std::string status_in_words(std::int32_t status) {
    const auto known = std::ranges::find(quality_names, status, &QualityName::status);
    if (known != quality_names.end()) return known->name;
    static constexpr std::array kinds = {"bad", "uncertain", "of unknown quality", "good"};
    return std::string(kinds.at(static_cast<std::size_t>(status >> 6))) + ", status " +
           std::to_string(status >> 2 & 0x0F);
}

} // namespace

std::string number_in_words(std::int32_t number) {
    if (number >= 0) return std::to_string(number);
    std::array<char, 16> code{};
    std::snprintf(code.data(), code.size(), "0x%08X", static_cast<unsigned>(number));
    return code.data();
}

std::string in_one_line(const Error& error) {
    if (error.number() >= 0) return error.description();
    return error.description() + " (" + number_in_words(error.number()) + ")";
}

std::string quality_in_words(std::int32_t quality) {
    static constexpr std::array limits = {"", ", at its low limit", ", at its high limit", ", constant"};
    return status_in_words(quality & status_bits) + limits.at(static_cast<std::size_t>(quality & limit_bits));
}

std::string counted(std::int64_t count, const std::string& one, const std::string& many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

} // namespace brx::host
