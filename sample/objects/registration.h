#pragma once

#include <windows.h>

namespace brx::host {

/// Writes below `root` (HKEY_CURRENT_USER or HKEY_LOCAL_MACHINE) what scripts find the sample host's classes
/// by.
HRESULT register_classes(HKEY root) noexcept;

/// Removes it again, as far as it is this file's.
HRESULT unregister_classes(HKEY root) noexcept;

} // namespace brx::host
