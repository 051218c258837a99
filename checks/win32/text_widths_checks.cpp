#include "forms/win32/text_widths.h"
#include "forms/win32/wide.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <random>
#include <string>

namespace brx::checks {

namespace {

struct FontWanted {
    const wchar_t* family;
    int height;
    int weight = FW_NORMAL;
    BYTE italic = FALSE;
};

constexpr FontWanted fonts[] = {
    {L"Tahoma", -11},
    {L"Tahoma", -13, FW_BOLD},
    {L"Arial", -15, FW_NORMAL, TRUE},
    {L"Arial", -22},
    {L"Courier New", -12, FW_BOLD},
    {L"MS Sans Serif", -11},
    {L"MS Sans Serif", -11, FW_BOLD},
    {L"MS Sans Serif", -13, FW_BOLD, TRUE},
    {L"System", -16, FW_BOLD, TRUE},
    {L"Symbol", -13},
};

FontHandle make_font(const FontWanted& wanted) {
    LOGFONTW font{};
    font.lfHeight = wanted.height;
    font.lfWeight = wanted.weight;
    font.lfItalic = wanted.italic;
    font.lfCharSet = DEFAULT_CHARSET;
    std::copy_n(wanted.family, std::min<std::size_t>(std::wcslen(wanted.family), LF_FACESIZE - 1),
                font.lfFaceName);
    return FontHandle(CreateFontIndirectW(&font));
}

/// Texts of all lengths, plain ones and others.
std::vector<std::wstring> some_texts() {
    constexpr wchar_t others[] = L"\t\n\u007F\u00C4\u00DF\u0416\u6F22\u05E9\u202E\xD83D\xDE00\xFFFF";
    std::mt19937 random(4711);
    std::vector<std::wstring> texts = {L"",
                                       L" ",
                                       L"~",
                                       L"AVAToWa.fi ffl",
                                       L"Line07.Station12.Tag0001234",
                                       std::wstring(999, L'x'),
                                       std::wstring(1000, L'\u00C4'),
                                       std::wstring(5000, L'W'),
                                       std::wstring(4096, L'\u0416')};
    for (std::size_t i = 0; i < 300; ++i) {
        std::wstring text;
        for (std::size_t length = random() % 60; length > 0; --length)
            text += static_cast<wchar_t>(L' ' + random() % 95);
        if (i % 3 == 0)
            text.insert(random() % (text.size() + 1), 1, others[random() % (std::size(others) - 1)]);
        texts.push_back(text);
    }
    return texts;
}

} // namespace

TEST(TextWidths, AreTheSystemsInEveryFont) {
    for (const FontWanted& wanted : fonts) {
        const FontHandle font = make_font(wanted);
        const TextWidths widths(nullptr, font.get());
        const TextMeasure measure(nullptr, font.get());
        for (const std::wstring& text : some_texts())
            ASSERT_EQ(widths.of(from_wide(text)), measure.width(text.data(), text.size()))
                << wanted.family << " " << wanted.height << " " << wanted.weight;
    }
}

} // namespace brx::checks
