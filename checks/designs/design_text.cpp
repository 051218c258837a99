#include "designs/design_text.h"

#include "forms/button.h"
#include "forms/check_box.h"
#include "forms/date_picker.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/tab_strip.h"
#include "forms/text_box.h"
#include "forms/timer.h"

#include <algorithm>
#include <array>
#include <sstream>

namespace brx::checks {

namespace {

std::string kind_text(const Control& control) {
    std::string text = control.kind();
    std::ranges::replace(text, '_', ' ');
    return text;
}

std::string anchor_text(Anchor anchor) {
    struct Named {
        Anchor anchor;
        const char* name;
    };
    static constexpr std::array<Named, 6> names = {{{Anchor::right, " right"},
                                                    {Anchor::bottom, " bottom"},
                                                    {Anchor::stretch_width, " wide"},
                                                    {Anchor::stretch_height, " high"},
                                                    {Anchor::middle, " middle"},
                                                    {Anchor::stretch_half_width, " half-wide"}}};
    std::string text;
    for (const Named& each : names)
        if (has(anchor, each.anchor)) text += each.name;
    return text;
}

/// What only some kinds have.
std::string own_text(const Control& control) {
    if (const auto* label = dynamic_cast<const Label*>(&control))
        return " '" + label->caption() + "'" + (label->mnemonic() ? "" : " as data");
    if (const auto* button = dynamic_cast<const Button*>(&control))
        return " '" + button->caption() + "'" + (button->is_default() ? " default" : "") +
               (button->is_cancel() ? " cancel" : "") +
               (button->accessible_name().empty() ? "" : " tip '" + button->accessible_name() + "'");
    if (const auto* box = dynamic_cast<const CheckBox*>(&control))
        return " '" + box->caption() + "' " + std::to_string(box->value());
    if (const auto* frame = dynamic_cast<const Frame*>(&control)) return " '" + frame->caption() + "'";
    if (const auto* panel = dynamic_cast<const Panel*>(&control)) return panel->edge() ? " edge" : "";
    if (const auto* box = dynamic_cast<const TextBox*>(&control))
        return std::string(box->display_only() ? " display only" : "") +
               (box->takes_enter() ? " enter" : "") + (box->text().empty() ? "" : " '" + box->text() + "'");
    if (const auto* picker = dynamic_cast<const DatePicker*>(&control))
        return picker->part() == DatePart::date ? " date" : " time";
    if (const auto* timer = dynamic_cast<const Timer*>(&control))
        return " " + std::to_string(timer->interval()) + " ms";
    std::string text;
    if (const auto* strip = dynamic_cast<const TabStrip*>(&control))
        for (const std::string& caption : strip->captions()) text += " '" + caption + "'";
    return text;
}

} // namespace

std::string design_text(const Form& form) {
    const FormDesign& design = form.design();
    std::ostringstream text;
    text << design.name << " '" << design.caption << "' " << design.size.width << "x" << design.size.height
         << (design.resizable ? " resizable" : "")
         << (design.font_family.empty() ? "" : " in " + design.font_family)
         << (design.errors == ErrorLibrary::brxError6 ? "" : " reports to hlxER01") << '\n';
    for (const Control* control : form.controls()) {
        const Place& place = control->place();
        const Control* const around = control->container().as_control();
        text << (around ? around->name() + "/" : "") << control->name() << ": " << kind_text(*control);
        if (!dynamic_cast<const Timer*>(control))
            text << ' ' << place.left << ',' << place.top << ' ' << place.width << 'x' << place.height
                 << " tab " << control->tab() << anchor_text(control->anchor())
                 << (control->visible() ? "" : " hidden");
        text << (control->enabled() ? "" : " disabled") << own_text(*control) << '\n';
    }
    return text.str();
}

} // namespace brx::checks
