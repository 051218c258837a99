#include "forms/list_rows.h"

#include "common/values/text.h"

#include <algorithm>

namespace brx {

int text_beginning_with(std::string_view wanted, int start, int count,
                        const std::function<std::string_view(int)>& text_of) {
    const std::string beginning = to_upper(wanted);
    const int first = start < 0 || start >= count ? 0 : start;
    for (int i = 0; i < count; ++i) {
        const int index = (first + i) % count;
        if (to_upper(text_of(index)).starts_with(beginning)) return index;
    }
    return -1;
}

int row_beginning_with(const ListView& list, const std::string& text, int start) {
    const auto text_of = [&](int index) -> std::string_view { return list.row(index + 1).text(); };
    return text_beginning_with(text, start - 1, list.count(), text_of) + 1;
}

int row_from_keyboard(const ListView& list, int rows) {
    const int from = std::max(1, list.focus_row());
    return list.selected() == 0 ? from : std::clamp(from + rows, 1, list.count());
}

} // namespace brx
