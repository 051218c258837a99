#include "forms/list_tools.h"

namespace brx::hlxListTools {

void add(ListControl& list, std::string_view text, std::int16_t item_data) { list.add_line(text, item_data); }

std::int32_t selected_data(const ListControl& list) {
    return list.selected() < 0 ? 0 : list.data(list.selected());
}

void select_data(ListControl& list, std::int32_t item_data) {
    for (int index = 0; index < list.count(); ++index)
        if (list.data(index) == item_data) return list.select(index);
}

} // namespace brx::hlxListTools
