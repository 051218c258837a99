#pragma once

#include <windows.h>

#include <objbase.h>

#include <array>
#include <string>

namespace brx {

/// The identifier as the registry and type libraries' tools write it, in braces.
inline std::wstring guid_text(REFGUID guid) {
    std::array<wchar_t, 39> text{};
    StringFromGUID2(guid, text.data(), static_cast<int>(text.size()));
    return text.data();
}

} // namespace brx
