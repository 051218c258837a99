#pragma once

#include <windows.h>

#include <set>
#include <string>

namespace brx::checks {

/// Every key and every value below a key, a line each. The registry does not tell capitals of key names from
/// small letters, so here they are small.
using RegistrySnapshot = std::set<std::wstring>;

RegistrySnapshot take_snapshot(HKEY root, const std::wstring& path);

/// The line of a key, given as path below the snapshot's own, and of a value in it.
std::wstring key_line(const std::wstring& key);
std::wstring value_line(const std::wstring& key, const std::wstring& name, const std::wstring& text);

/// The lines of one snapshot that another one lacks.
RegistrySnapshot lines_beyond(const RegistrySnapshot& other, const RegistrySnapshot& snapshot);

} // namespace brx::checks
