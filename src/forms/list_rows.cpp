#include "forms/list_rows.h"

#include "common/values/text.h"

#include <algorithm>

namespace brx {

int row_beginning_with(const ListView& list, const std::string& text, int start) {
    const std::string wanted = to_upper(text);
    const int first = start < 1 || start > list.count() ? 1 : start;
    for (int i = 0; i < list.count(); ++i) {
        const int position = (first - 1 + i) % list.count() + 1;
        if (to_upper(list.row(position).text()).starts_with(wanted)) return position;
    }
    return 0;
}

int row_from_keyboard(const ListView& list, int rows) {
    const int from = std::max(1, list.focus_row());
    return list.selected() == 0 ? from : std::clamp(from + rows, 1, list.count());
}

} // namespace brx
