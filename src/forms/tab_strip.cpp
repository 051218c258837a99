#include "forms/tab_strip.h"

#include "common/error.h"

#include <algorithm>

namespace brx {

const std::string& TabStrip::caption(int tab) const {
    if (tab < 1 || tab > count()) throw Error(error::index_out_of_bounds);
    return design_.captions[static_cast<std::size_t>(tab) - 1];
}

void TabStrip::select(int tab) {
    static_cast<void>(caption(tab));
    if (selected_ == tab) return;
    selected_ = tab;
    changed(Aspect::selection);
    fire(design_.Click);
}

bool TabStrip::user_select(int tab) {
    if (tab < 1 || tab > count()) return false;
    return by_person([&] {
        select(tab);
        const Control* focused = form().focused();
        if (!form().loaded() || (focused && focused->can_focus())) return;
        if (Control* first = form().first_focusable()) first->take_focus();
    });
}

bool TabStrip::user_turn(bool backwards) {
    const int next = backwards ? selected_ - 1 : selected_ + 1;
    return user_select(next < 1 ? count() : next > count() ? 1 : next);
}

void TabStrip::reset() {
    Control::reset();
    selected_ = 1;
}

TabStrip* tab_strip_of(const Form& form) {
    for (Control* control : form.controls())
        if (auto* strip = dynamic_cast<TabStrip*>(control); strip && strip->can_focus()) return strip;
    return nullptr;
}

void TabStrip::read_content(Aspect aspects, Reading& into, int most_lines) const {
    if (has(aspects, Aspect::lines)) {
        into.count = count();
        into.lines.clear();
        for (int tab = 1; tab <= std::min(count(), most_lines); ++tab) into.lines.push_back(caption(tab));
    }
    if (has(aspects, Aspect::selection)) {
        into.selected = selected_ - 1;
        into.text = caption(selected_);
    }
}

} // namespace brx
