#pragma once

#include "common/values/text.h"

#include <windows.h>

#include <oleauto.h>

#include <cstring>
#include <new>
#include <string>
#include <string_view>
#include <utility>

namespace brx {

static_assert(sizeof(OLECHAR) == sizeof(char16_t));

/// The text of a counted run of platform characters.
inline std::string text_of(const OLECHAR* characters, std::size_t count) {
    std::u16string units(count, u'\0');
    if (count) std::memcpy(units.data(), characters, count * sizeof(char16_t));
    return to_utf8(units);
}

/// The text of an automation string; a null one is empty text.
inline std::string text_of(const OLECHAR* automation_string) {
    if (!automation_string) return {};
    return text_of(automation_string, SysStringLen(const_cast<BSTR>(automation_string)));
}

/// The text as the platform's functions take it.
inline std::wstring wide(std::string_view text) {
    const std::u16string units = to_utf16(text);
    return {units.begin(), units.end()};
}

/// Owns an automation string.
class Bstr {
public:
    Bstr() noexcept = default;
    explicit Bstr(std::string_view text) {
        const std::wstring characters = wide(text);
        string_ = SysAllocStringLen(characters.data(), static_cast<UINT>(characters.size()));
        if (!string_) throw std::bad_alloc();
    }
    Bstr(Bstr&& other) noexcept : string_(other.detach()) {}
    Bstr& operator=(Bstr&& other) noexcept {
        std::swap(string_, other.string_);
        return *this;
    }
    ~Bstr() { SysFreeString(string_); }

    BSTR get() const noexcept { return string_; }
    BSTR* out() noexcept {
        *this = Bstr();
        return &string_;
    }
    BSTR detach() noexcept { return std::exchange(string_, nullptr); }
    std::string text() const { return text_of(string_); }

private:
    BSTR string_ = nullptr;
};

} // namespace brx
