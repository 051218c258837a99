#include "forms/win32/wide.h"

#include "common/values/text.h"

namespace brx {

std::wstring to_wide(std::string_view text) {
    const std::u16string units = to_utf16(text);
    return {units.begin(), units.end()};
}

std::string from_wide(std::wstring_view text) { return to_utf8(std::u16string(text.begin(), text.end())); }

std::wstring window_text(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)), L'\0');
    // The length can be an upper bound only.
    text.resize(
        static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1)));
    return text;
}

} // namespace brx
