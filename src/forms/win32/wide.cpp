#include "forms/win32/wide.h"

#include "common/values/utf16.h"

namespace brx {

std::wstring to_wide(std::string_view text) { return utf16_of<wchar_t>(text); }

void to_wide(std::string_view text, std::wstring& result) { write_utf16(result, text); }

std::string from_wide(std::wstring_view text) { return utf8_of(text); }

std::wstring window_text(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)), L'\0');
    // The length can be an upper bound only.
    text.resize(
        static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1)));
    return text;
}

} // namespace brx
