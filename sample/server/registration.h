#pragma once

#include <windows.h>

namespace brx::server {

/// The class that clients create. By the name OPC.Automation it is found too, unless that is another
/// wrapper's.
extern const CLSID server_class;

/// Writes into a hive what clients in other processes need: the class, and the type library by which calls
/// travel. When something cannot be written, all is as before.
HRESULT install(HKEY root) noexcept;
/// Removes what this very file installed.
HRESULT uninstall(HKEY root) noexcept;

} // namespace brx::server
