#pragma once

#include "forms/button.h"
#include "forms/check_box.h"
#include "forms/date_picker.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/list_control.h"
#include "forms/list_view.h"
#include "forms/tab_strip.h"
#include "forms/text_box.h"
#include "forms/timer.h"

#include <string>
#include <vector>

namespace brx::checks {

/// Writes down how a form is designed: a line for the form, and one for each control in the order of
/// creation.
class DesignOnPaper {
public:
    explicit DesignOnPaper(const Form& form) {
        const FormDesign& design = form.design();
        add(design.name, true);
        add(size_of(design.size.width, design.size.height), true);
        add(quoted(design.caption), true);
        add("can be made larger", design.resizable);
        add("reports to hlxER01", design.errors == ErrorLibrary::hlxER01);
        end_line();
        for (const Control* control : form.controls()) describe(*control);
    }

    std::vector<std::string> lines() const { return lines_; }

private:
    void describe(const Control& control) {
        add(std::to_string(control.tab()), true);
        add(control.name(), true);
        kind_of(control);
        const Place& place = control.place();
        add("at " + std::to_string(place.left) + "," + std::to_string(place.top) + " " +
                size_of(place.width, place.height),
            control.kind() != Kind::timer);
        const Control* const around = control.container().as_control();
        add("in " + (around ? around->name() : std::string()), around != nullptr);
        add("disabled", !control.enabled());
        add("hidden", !control.visible() && control.kind() != Kind::timer);
        anchored(control.anchor());
        end_line();
    }

    void kind_of(const Control& control) {
        if (const auto* label = dynamic_cast<const Label*>(&control)) {
            add("label " + quoted(label->caption()), true);
            add("without a letter", !label->mnemonic());
        } else if (const auto* button = dynamic_cast<const Button*>(&control)) {
            add("button " + quoted(button->caption()), true);
            add("Enter", button->is_default());
            add("Escape", button->is_cancel());
        } else if (const auto* box = dynamic_cast<const TextBox*>(&control)) {
            add(box->display_only() ? "display box" : "box", true);
            add("takes Enter", box->takes_enter());
            add(quoted(box->text()), !box->text().empty());
        } else if (const auto* check = dynamic_cast<const CheckBox*>(&control)) {
            add("check box " + quoted(check->caption()), true);
            add("ticked", check->value() != 0);
        } else if (const auto* frame = dynamic_cast<const Frame*>(&control)) {
            add("frame " + quoted(frame->caption()), true);
        } else if (const auto* panel = dynamic_cast<const Panel*>(&control)) {
            add("panel", true);
            add("edged", panel->edge());
        } else if (const auto* strip = dynamic_cast<const TabStrip*>(&control)) {
            add("tabs", true);
            for (const std::string& caption : strip->captions()) add(quoted(caption), true);
        } else if (const auto* picker = dynamic_cast<const DatePicker*>(&control)) {
            add(picker->part() == DatePart::date ? "date" : "time", true);
        } else if (const auto* timer = dynamic_cast<const Timer*>(&control)) {
            add("timer " + std::to_string(timer->interval()), true);
        } else if (dynamic_cast<const ListBox*>(&control)) {
            add("list", true);
        } else if (dynamic_cast<const ComboBox*>(&control)) {
            add("drop-down list", true);
        } else if (dynamic_cast<const ListView*>(&control)) {
            add("table", true);
        } else {
            add("something else", true);
        }
    }

    void anchored(Anchor anchor) {
        add("keeps right", has(anchor, Anchor::right));
        add("keeps low", has(anchor, Anchor::bottom));
        add("grows wide", has(anchor, Anchor::stretch_width));
        add("grows high", has(anchor, Anchor::stretch_height));
    }

    static std::string size_of(int width, int height) {
        return std::to_string(width) + "x" + std::to_string(height);
    }
    static std::string quoted(const std::string& text) { return "'" + text + "'"; }
    void add(const std::string& what, bool applies) {
        if (applies) line_ += (line_.empty() ? "" : " ") + what;
    }
    void end_line() {
        lines_.push_back(line_);
        line_.clear();
    }

    std::string line_;
    std::vector<std::string> lines_;
};

} // namespace brx::checks
