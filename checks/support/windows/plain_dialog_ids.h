#pragma once

#include <windows.h>

/// What the parts of the plain dialog agree on.
namespace brx::checks::plain {

inline constexpr const wchar_t* name_property = L"brx.Name";
inline constexpr UINT_PTR timer = 7;

enum Id : WORD {
    ok = IDOK,
    cancel = IDCANCEL,
    text_box = 100,
    check_box,
    list_box,
    combo_box,
    tree_box,
    table_box,
    tab_box,
    day_box,
    time_box,
    message_button,
    chain_button,
    off_button,
    hidden_button,
    under_button,
};

} // namespace brx::checks::plain
