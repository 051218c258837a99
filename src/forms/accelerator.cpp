#include "forms/accelerator.h"

#include <algorithm>
#include <cctype>

namespace brx {

namespace {

char lower(char character) { return static_cast<char>(std::tolower(static_cast<unsigned char>(character))); }

/// The letter after the single "&" of a caption, in lower case; 0 for none.
char mnemonic_of(const std::string& caption) {
    for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != '&') continue;
        if (caption[i + 1] != '&') return lower(caption[i + 1]);
        ++i;
    }
    return 0;
}

bool answers_to(const Control& control, char character) {
    if (const auto* strip = dynamic_cast<const TabStrip*>(&control)) return tab_with(*strip, character) != 0;
    return mnemonic_of(control.accelerator_text()) == character;
}

} // namespace

int tab_with(const TabStrip& strip, char character) {
    for (int tab = 1; tab <= strip.count(); ++tab)
        if (mnemonic_of(strip.caption(tab)) == lower(character)) return tab;
    return 0;
}

Accelerator accelerator_of(const Form& form, char character) {
    const std::vector<Control*> order = form.controls_in_tab_order();
    std::vector<Control*> named;
    for (Control* control : order)
        if (control->shows() && control->takes_input() && answers_to(*control, lower(character)))
            named.push_back(control);
    if (named.empty()) return {};
    const auto position = [&](const Control* control) {
        return std::find(order.begin(), order.end(), control);
    };
    const auto here = position(form.focused());
    const auto later = std::find_if(named.begin(), named.end(), [&](const Control* each) {
        return here != order.end() && position(each) > here;
    });
    return {.control = later == named.end() ? named.front() : *later, .alone = named.size() == 1};
}

Control* focus_for(Control& control) {
    if (control.focusable()) return &control;
    const std::vector<Control*> order = control.form().controls_in_tab_order();
    const auto next = std::find_if(std::find(order.begin(), order.end(), &control), order.end(),
                                   [](const Control* each) { return each->can_focus(); });
    return next == order.end() ? nullptr : *next;
}

} // namespace brx
