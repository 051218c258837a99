#pragma once

#include "forms/list_control.h"

#include <cstdint>
#include <string_view>

namespace brx::hlxListTools {

/// Adds a line with its item data.
void add(ListControl& list, std::string_view text, std::int16_t item_data = 0);

/// The item data of the selected line; 0 when none is selected.
std::int32_t selected_data(const ListControl& list);

/// Selects the first line whose item data equals the value; nothing changes when there is none.
void select_data(ListControl& list, std::int32_t item_data);

} // namespace brx::hlxListTools
