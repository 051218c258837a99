#include "forms/list_control.h"

#include "common/error.h"
#include "forms/list_rows.h"

#include <algorithm>

namespace brx {

int ListControl::checked(int index) const {
    if (index < 0 || index >= count()) throw Error(error::invalid_procedure_call);
    return index;
}

void ListControl::insert_line(int index, std::string_view text, std::int32_t data) {
    if (index < 0 || index > count()) throw Error(error::invalid_procedure_call);
    lines_.insert(index, text, data);
    kept_ = std::min(kept_, index);
    changed(Aspect::lines);
    if (selected_ >= index) {
        ++selected_;
        changed(Aspect::selection);
    }
}

void ListControl::clear() {
    if (count() > 0) changed(Aspect::lines);
    if (selected_ >= 0) changed(Aspect::selection);
    lines_.clear();
    kept_ = 0;
    selected_ = -1;
}

void ListControl::select(int index) {
    if (index == selected_) return;
    if (index < -1 || index >= count()) throw Error(error::invalid_procedure_call);
    selected_ = index;
    changed(Aspect::selection);
    if (index >= 0) fire_click();
}

void ListControl::reset() {
    Control::reset();
    lines_.clear();
    kept_ = 0;
    selected_ = -1;
}

void ListControl::select_text(std::string_view text) {
    for (int index = 0; index < count(); ++index)
        if (line(index) == text) return select(index);
}

int ListBox::line_beginning_with(std::string_view text, int start) const {
    return text_beginning_with(text, start, count(), [this](int index) { return line(index); });
}

void ListControl::read_content(Aspect aspects, Reading& into, int most_lines) const {
    if (has(aspects, Aspect::lines)) {
        into.count = count();
        into.lines.clear();
        for (int index = 0; index < std::min(count(), most_lines); ++index) into.lines.push_back(text(index));
    }
    if (has(aspects, Aspect::lines | Aspect::selection)) {
        into.selected = selected_;
        into.text = text();
    }
}

} // namespace brx
