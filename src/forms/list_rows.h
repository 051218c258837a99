#pragma once

#include "forms/list_view.h"

#include <functional>
#include <string>
#include <string_view>

namespace brx {

/// The first of so many texts that begins so, whatever the case, from `start` on and round the end; -1 for
/// none. Counts from 0.
int text_beginning_with(std::string_view wanted, int start, int count,
                        const std::function<std::string_view(int)>& text_of);

/// The first row whose own text begins so, whatever the case, from `start` on and round the end; 0 for none.
int row_beginning_with(const ListView& list, const std::string& text, int start);

/// Where the keyboard gets to from the focus row by so many rows, no further than to the ends. With no row
/// selected it only selects the focus row. The list is not empty.
int row_from_keyboard(const ListView& list, int rows);

} // namespace brx
