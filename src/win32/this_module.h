#pragma once

#include <windows.h>

/// The linker's name for where the module begins.
extern "C" IMAGE_DOS_HEADER __ImageBase;

namespace brx {

/// The module: the program or DLL that this code was linked into.
inline HINSTANCE this_module() noexcept { return reinterpret_cast<HINSTANCE>(&__ImageBase); }

} // namespace brx
