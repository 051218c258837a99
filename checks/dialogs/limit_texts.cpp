#include "dialogs/limit_texts.h"

#include "common/error.h"

#include <algorithm>

namespace brx::checks {

namespace {

const Outcome large = Outcome::failing(error::overflow);
const Outcome wrong = Outcome::failing(error::type_mismatch);
constexpr double yes = -1;
constexpr double no = 0;

constexpr double largest_single = 0x1.FFFFFEp+127;
constexpr double smallest_single = 0x1p-149;
constexpr double largest_double = 0x1.FFFFFFFFFFFFFp+1023;
constexpr double smallest_double = 0x1p-1074;

// Columns: 16 bits, 32 bits, single, double, Boolean.
// clang-format off

/// With a full stop, which other locales write otherwise.
const std::vector<LimitText> everywhere = {
    {"32766", 32766, 32766, 32766, 32766, yes},
    {"32767", 32767, 32767, 32767, 32767, yes},
    {"32767.4999", 32767, 32767, 32767.5, 32767.4999, yes},
    {"32767.5", large, 32768, 32767.5, 32767.5, yes},
    {"32768", large, 32768, 32768, 32768, yes},
    {"-32767", -32767, -32767, -32767, -32767, yes},
    {"-32768", -32768, -32768, -32768, -32768, yes},
    {"-32768.5", -32768, -32768, -32768.5, -32768.5, yes},
    {"-32768.51", large, -32769, -32768.51171875, -32768.51, yes},
    {"-32769", large, -32769, -32769, -32769, yes},

    {"2147483646", large, 2147483646, 2147483648, 2147483646, yes},
    {"2147483647", large, 2147483647, 2147483648, 2147483647, yes},
    {"2147483647.4", large, 2147483647, 2147483648, 2147483647.4, yes},
    {"2147483647.5", large, large, 2147483648, 2147483647.5, yes},
    {"2147483648", large, large, 2147483648, 2147483648, yes},
    {"-2147483647", large, -2147483647, -2147483648, -2147483647, yes},
    {"-2147483648", large, -2147483648, -2147483648, -2147483648, yes},
    {"-2147483648.5", large, -2147483648, -2147483648, -2147483648.5, yes},
    {"-2147483648.75", large, large, -2147483648, -2147483648.75, yes},
    {"-2147483649", large, large, -2147483648, -2147483649, yes},

    // The next double after the largest single's half step is too large for one.
    {"3.4028232E38", large, large, 0x1.FFFFFCp+127, 3.4028232e38, yes},
    {"3.4028235E38", large, large, largest_single, 3.4028235e38, yes},
    {"-3.4028235E38", large, large, -largest_single, -3.4028235e38, yes},
    {"3.40282356E38", large, large, largest_single, 3.40282356e38, yes},
    {"3.40282357E38", large, large, large, 3.40282357e38, yes},
    {"-3.40282357E38", large, large, large, -3.40282357e38, yes},
    {"1.5E-45", 0, 0, smallest_single, 1.5e-45, yes},
    {"7.1E-46", 0, 0, smallest_single, 7.1e-46, yes},
    {"6.9E-46", 0, 0, 0, 6.9e-46, yes},

    {"1.79769313486231E308", large, large, large, 1.79769313486231e308, yes},
    {"1.7976931348623157E308", large, large, large, largest_double, yes},
    {"-1.7976931348623157E308", large, large, large, -largest_double, yes},
    {"1.7976931348623159E308", large, large, large, large, large},
    {"-1.7976931348623159E308", large, large, large, large, large},
    {"1E309", large, large, large, large, large},
    {"2.2250738585072014E-308", 0, 0, 0, 0x1p-1022, yes},
    {"4.94E-324", 0, 0, 0, smallest_double, yes},
    {"2.4E-324", 0, 0, 0, 0, no},

    // Truth, also as a number.
    {"0", 0, 0, 0, 0, no},
    {"0.4", 0, 0, 0.4F, 0.4, yes},
    {"-0.5", 0, 0, -0.5, -0.5, yes},
    {"1", 1, 1, 1, 1, yes},
    {"-1", -1, -1, -1, -1, yes},
    {"True", wrong, wrong, wrong, wrong, yes},
    {"FALSE", wrong, wrong, wrong, wrong, no},
    {"Yes", wrong, wrong, wrong, wrong, wrong},

    // An amount of money ends at 922337203685477.5807, but is entered as a text or a double.
    {"922337203685477.5807", large, large, 922337203685477.5807F, 922337203685477.5807, yes},
    {"922337203685477.5808", large, large, 922337203685477.5808F, 922337203685477.5808, yes},
    {"-922337203685477.5808", large, large, -922337203685477.5808F, -922337203685477.5808, yes},
    {"-922337203685477.5809", large, large, -922337203685477.5809F, -922337203685477.5809, yes},

    // Dates are no numbers. The days of the calendar's ends are.
    {"1/1/100", wrong, wrong, wrong, wrong, wrong},
    {"12/31/9999", wrong, wrong, wrong, wrong, wrong},
    {"1/1/10000", wrong, wrong, wrong, wrong, wrong},
    {"1:04:05 PM", wrong, wrong, wrong, wrong, wrong},
    {"2958465", large, 2958465, 2958465, 2958465, yes},
    {"2958466", large, 2958466, 2958466, 2958466, yes},
    {"-657434", large, -657434, -657434, -657434, yes},
    {"-657435", large, -657435, -657435, -657435, yes},

    {"", wrong, wrong, wrong, wrong, wrong},
    {" ", wrong, wrong, wrong, wrong, wrong},
    {"abc", wrong, wrong, wrong, wrong, wrong},
    {"1x", wrong, wrong, wrong, wrong, wrong},
    {"&H7FFF", 32767, 32767, 32767, 32767, yes},
    {"(5)", -5, -5, -5, -5, yes},
};

const std::vector<LimitText> american = {
    {"32,767", 32767, 32767, 32767, 32767, yes},
    {"32,768", large, 32768, 32768, 32768, yes},
    {"2,147,483,647", large, 2147483647, 2147483648, 2147483647, yes},
    {"2,147,483,648", large, large, 2147483648, 2147483648, yes},
    {"$5", 5, 5, 5, 5, yes},
    {"\u20AC5", wrong, wrong, wrong, wrong, wrong},
    {"Wahr", wrong, wrong, wrong, wrong, wrong},
};

const std::vector<LimitText> german = {
    {"32.767", 32767, 32767, 32767, 32767, yes},
    {"32.768", large, 32768, 32768, 32768, yes},
    {"2.147.483.647", large, 2147483647, 2147483648, 2147483647, yes},
    {"2.147.483.648", large, large, 2147483648, 2147483648, yes},
    {"5 \u20AC", 5, 5, 5, 5, yes},
    {"$5", wrong, wrong, wrong, wrong, wrong},
    {"Wahr", wrong, wrong, wrong, wrong, yes},
    {"falsch", wrong, wrong, wrong, wrong, no},
    // A date like this is a number with grouped digits.
    {"31.12.9999", large, 31129999, 31130000, 31129999, yes},
};

// clang-format on

} // namespace

std::vector<LimitText> limit_texts(const Locale& locale) {
    std::vector<LimitText> texts = everywhere;
    if (locale == Locale{}) {
        texts.insert(texts.end(), american.begin(), american.end());
        return texts;
    }
    for (LimitText& each : texts) std::ranges::replace(each.text, '.', ',');
    texts.insert(texts.end(), german.begin(), german.end());
    return texts;
}

} // namespace brx::checks
