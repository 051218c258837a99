#include "forms/control.h"

#include "common/error.h"
#include "forms/form.h"

namespace brx {

Control::Control(Container& container, const char* name, const Look& look)
    : container_(container), name_(name), design_look_(look), look_(look) {
    container.owner_form().controls_.push_back(this);
}

void Control::read(Aspect aspects, Reading& into, int most_lines) const {
    if (has(aspects, Aspect::enabled)) into.enabled = takes_input();
    if (has(aspects, Aspect::visible)) into.visible = shows();
    if (has(aspects, Aspect::place)) into.place = place();
    if (has(aspects, Aspect::colors)) {
        into.back_color = back_color();
        into.fore_color = fore_color();
    }
    read_content(aspects, into, most_lines);
}

Reading Control::read(int most_lines) const {
    Reading all;
    read(Aspect::everything, all, most_lines);
    return all;
}

void Control::read_content(Aspect, Reading&, int) const {}

void Control::set_place(const Place& place) {
    if (look_.place == place) return;
    look_.place = place;
    form().note_within(*this, Aspect::place);
}

void Control::set_enabled(bool enabled) {
    if (look_.enabled == enabled) return;
    look_.enabled = enabled;
    form().note_within(*this, Aspect::enabled);
}

void Control::set_visible(bool visible) {
    if (look_.visible == visible) return;
    look_.visible = visible;
    form().note_within(*this, Aspect::visible);
}

void Control::set_back_color(Color color) {
    if (look_.back_color == color) return;
    look_.back_color = color;
    changed(Aspect::colors);
}

void Control::set_fore_color(Color color) {
    if (look_.fore_color == color) return;
    look_.fore_color = color;
    changed(Aspect::colors);
}

bool Control::takes_input() const {
    if (!enabled()) return false;
    const Control* around = container_.as_control();
    return !around || around->takes_input();
}

bool Control::shows() const {
    if (!visible()) return false;
    const Control* around = container_.as_control();
    return !around || around->shows();
}

void Control::set_focus() {
    if (!can_focus()) throw Error(error::invalid_procedure_call);
    form().move_focus(this);
}

void Control::take_focus() {
    set_focus();
    if (form().focused() == this) select_content();
}

bool Control::user_take_focus() {
    return can_focus() && by_person([&] { take_focus(); });
}

bool Control::user_focus() {
    if (form().focused() == this) return true;
    return can_focus() && by_person([&] { form().move_focus(this); });
}

bool Control::within_reach() const { return form().in_front() && takes_input() && shows(); }

} // namespace brx
