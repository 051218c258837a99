#include "conversions/comparison.h"

#include "common/error.h"

#include <algorithm>
#include <array>
#include <cinttypes>
#include <cstdio>

namespace brx::conversions {
namespace {

constexpr std::uint64_t told_at_most = 200;

/// A text on one line, with what cannot be seen made visible.
std::string visible(const std::string& text) {
    std::string result;
    for (const char c : text) {
        if (static_cast<unsigned char>(c) >= 0x20) {
            result += c;
        } else {
            std::array<char, 8> escape{};
            std::snprintf(escape.data(), escape.size(), "\\x%02X", static_cast<unsigned>(c));
            result += escape.data();
        }
    }
    return result;
}

struct Row {
    const char* reason;
    const char* locale;
    const char* function;
    std::uint64_t count;
    std::uint64_t digest;
};

constexpr Row rows[] = {
#include "conversions/known_differences.inc"
    {nullptr, nullptr, nullptr, 0, 0}};

} // namespace

std::string outcome(const std::function<std::string()>& body) {
    try {
        return body();
    } catch (const Error& error) {
        return "error " + std::to_string(error.number());
    }
}

void Comparison::compare(const std::string& function, const std::string& locale, const std::string& input,
                         const std::string& ours, const std::string& theirs,
                         const std::function<Reason()>& reason) {
    ++asked_[{locale, function}];
    if (ours == theirs) {
        ++passed_;
        return;
    }
    const Reason found = reason();
    if (listing_) {
        std::printf("%s | %s | %s | %s | ours %s | theirs %s\n", found ? found->c_str() : "?", locale.c_str(),
                    function.c_str(), visible(input).c_str(), visible(ours).c_str(), visible(theirs).c_str());
    }
    if (!found) {
        fail(locale + " " + function + " of |" + visible(input) + "|: ours " + visible(ours) + ", theirs " +
                 visible(theirs),
             1);
        return;
    }
    Group& group = differences_[{*found, locale, function}];
    ++group.count;
    // The inputs only: where a text leaves the year out, the values change from year to year.
    for (const char c : input + '\n')
        group.digest = (group.digest ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
}

void Comparison::skip(const std::string& what) {
    std::printf("SKIPPED: %s\n", what.c_str());
    ++skipped_;
}

void Comparison::fail(const std::string& text, std::uint64_t count) {
    if (failed_ < told_at_most) std::printf("FAILED: %s\n", text.c_str());
    failed_ += count;
}

bool Comparison::finish() {
    std::map<Key, Group> known;
    for (const Row& row : rows) {
        if (row.reason && known_are_met_ && asked_.contains({row.locale, row.function})) {
            known[{row.reason, row.locale, row.function}] = {row.count, row.digest};
        }
    }
    for (const auto& [key, group] : differences_) known.try_emplace(key, Group{0, 0});
    for (const auto& [key, wanted] : known) {
        const Group found = differences_.contains(key) ? differences_.at(key) : Group{0, 0};
        if (found.count == wanted.count && found.digest == wanted.digest) {
            passed_ += found.count;
            continue;
        }
        const auto& [reason, locale, function] = key;
        fail(locale + " " + function + ": " + std::to_string(found.count) + " differences of the kind \"" +
                 reason + "\", known are " + std::to_string(wanted.count) +
                 (found.count == wanted.count ? ", but for other inputs" : ""),
             std::max<std::uint64_t>(found.count, 1));
    }
    std::printf("%" PRIu64 " passed, %" PRIu64 " failed, %" PRIu64 " skipped\n", passed_, failed_, skipped_);
    std::fflush(stdout);
    return failed_ == 0;
}

void Comparison::print_table() const {
    for (const auto& [key, group] : differences_) {
        const auto& [reason, locale, function] = key;
        std::printf("    {\"%s\", \"%s\", \"%s\", %" PRIu64 ", 0x%" PRIX64 "},\n", reason.c_str(),
                    locale.c_str(), function.c_str(), group.count, group.digest);
    }
}

} // namespace brx::conversions
