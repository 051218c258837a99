#pragma once

#include "common/values/utf16.h"

#include <windows.h>

#include <oleauto.h>

#include <new>
#include <string>
#include <string_view>
#include <utility>

namespace brx {

/// The text of a counted run of platform characters.
inline std::string text_of(const OLECHAR* characters, std::size_t count) {
    return utf8_of(std::wstring_view(characters, count));
}

/// The text of an automation string; a null one is empty text.
inline std::string text_of(const OLECHAR* automation_string) {
    if (!automation_string) return {};
    return text_of(automation_string, SysStringLen(const_cast<BSTR>(automation_string)));
}

/// The text as the platform's functions take it.
inline std::wstring wide(std::string_view text) { return utf16_of<wchar_t>(text); }

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
    ~Bstr() {
        if (string_) SysFreeString(string_);
    }

    BSTR get() const noexcept { return string_; }
    BSTR* out() noexcept {
        *this = Bstr();
        return &string_;
    }
    BSTR detach() noexcept { return std::exchange(string_, nullptr); }
    std::string text() const { return text_of(string_); }
    /// The text into one that is there already.
    void read(std::string& result) const {
        write_utf8(result, std::wstring_view(string_, SysStringLen(string_)));
    }

private:
    BSTR string_ = nullptr;
};

} // namespace brx
