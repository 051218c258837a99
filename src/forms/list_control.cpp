#include "forms/list_control.h"

#include "common/error.h"

#include <algorithm>

namespace brx {

const ListControl::Line& ListControl::line(int index) const {
    if (index < 0 || index >= count()) throw Error(error::invalid_procedure_call);
    return lines_[static_cast<std::size_t>(index)];
}

void ListControl::insert_line(int index, const std::string& text, std::int32_t data) {
    if (index < 0 || index > count()) throw Error(error::invalid_procedure_call);
    kept_ = std::min(kept_, index);
    lines_.insert(lines_.begin() + index, {text, data});
    changed(Aspect::lines);
    if (selected_ >= index) {
        ++selected_;
        changed(Aspect::selection);
    }
}

void ListControl::clear() {
    if (!lines_.empty()) changed(Aspect::lines);
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
    if (index >= 0) fire(design_.Click);
}

void ListControl::reset() {
    Control::reset();
    lines_.clear();
    kept_ = 0;
    selected_ = -1;
}

} // namespace brx
