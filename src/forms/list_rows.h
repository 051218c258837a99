#pragma once

#include "forms/list_view.h"

#include <string>

namespace brx {

/// The first row whose own text begins so, whatever the case, from `start` on and round the end; 0 for none.
int row_beginning_with(const ListView& list, const std::string& text, int start);

/// Where the keyboard gets to from the focus row by so many rows, no further than to the ends. With no row
/// selected it only selects the focus row. The list is not empty.
int row_from_keyboard(const ListView& list, int rows);

} // namespace brx
