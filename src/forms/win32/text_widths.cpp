#include "forms/win32/text_widths.h"

#include "forms/win32/wide.h"

#include <algorithm>
#include <numeric>

namespace brx {

namespace {

constexpr wchar_t first_plain = L' ';
constexpr wchar_t last_plain = L'~';
constexpr std::size_t plain_count = last_plain - first_plain + 1;

/// Sums of it stay within bounds for texts of this length, and texts that are longer are rare.
constexpr int not_plain = 1 << 20;
constexpr std::size_t longest = 1000;

} // namespace

TextWidths::TextWidths(HWND window, HFONT font) : measure_(window, font) {
    advance_.fill(not_plain);
    std::array<wchar_t, plain_count> all{};
    std::iota(all.begin(), all.end(), first_plain);
    std::array<int, plain_count> widths{};
    // Together they are wider in fonts that the system makes bold or slanted itself, which stick out at the
    // end.
    if (GetCharWidth32W(measure_.dc(), first_plain, last_plain, widths.data()) &&
        measure_.width(all.data(), all.size()) == std::accumulate(widths.begin(), widths.end(), 0))
        std::copy(widths.begin(), widths.end(), advance_.begin() + first_plain);
}

int TextWidths::of(std::string_view text) const {
    int width = 0;
    if (text.size() <= longest)
        for (const char c : text) width += advance_[static_cast<unsigned char>(c)];
    if (text.size() <= longest && width < not_plain) return width;
    const std::wstring wide = to_wide(text);
    return measure_.width(wide.data(), wide.size());
}

} // namespace brx
