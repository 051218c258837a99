#pragma once

#include "forms/button.h"
#include "forms/check_box.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/list_control.h"
#include "forms/text_box.h"

#include <string>
#include <vector>

namespace brx::checks {

inline std::string text_of(const Place& place) {
    return std::to_string(place.left) + "," + std::to_string(place.top) + " " + std::to_string(place.width) +
           "x" + std::to_string(place.height);
}

/// What a form is designed as: itself, and each control in the order of its creation with tab position, kind,
/// name, place, caption and what sets it apart.
inline std::vector<std::string> design_of(const Form& form) {
    const FormDesign& design = form.design();
    std::vector<std::string> lines = {design.name + std::string(" ") + std::to_string(design.size.width) +
                                      "x" + std::to_string(design.size.height) + " '" + design.caption +
                                      "' " + design.font_family + (design.resizable ? " resizable" : "")};
    for (const Control* control : form.controls()) {
        std::string kind = "other";
        std::string looks;
        if (const auto* label = dynamic_cast<const Label*>(control)) {
            kind = "label";
            looks = " '" + label->caption() + "'";
        } else if (const auto* button = dynamic_cast<const Button*>(control)) {
            kind = "button";
            looks = " '" + button->caption() + "'" + (button->is_default() ? " default" : "") +
                    (button->is_cancel() ? " cancel" : "");
        } else if (const auto* check_box = dynamic_cast<const CheckBox*>(control)) {
            kind = "check box";
            looks = " '" + check_box->caption() + "'";
        } else if (const auto* box = dynamic_cast<const TextBox*>(control)) {
            kind = "text box";
            looks = std::string(box->display_only() ? " display-only" : "") +
                    (box->takes_enter() ? " takes Enter" : "") +
                    (box->text().empty() ? "" : " \"" + box->text() + "\"");
        } else if (dynamic_cast<const ComboBox*>(control)) {
            kind = "drop-down list";
        }
        lines.push_back(std::to_string(control->tab()) + " " + kind + " " + control->name() + " " +
                        text_of(control->place()) + looks + (control->enabled() ? "" : " disabled") +
                        (control->visible() ? "" : " hidden"));
    }
    return lines;
}

} // namespace brx::checks
