#pragma once

#include <windows.h>

#include <array>

namespace brx {

/// A dialog without controls, menu, class and title of its own. The system's class is the one that stays when
/// this module is unloaded.
struct alignas(DWORD) EmptyTemplate {
    DLGTEMPLATE dialog{};
    std::array<WORD, 3> nothing{};
};

} // namespace brx
