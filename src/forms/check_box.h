#pragma once

#include "forms/form.h"

namespace brx {

struct CheckBoxDesign {
    Place place;
    std::string caption = {};
    int tab = 0;
    int value = 0;
    bool enabled = true;
    bool visible = true;
    Anchor anchor = Anchor::top_left;
    Handler Click = {};
};

/// Values: 0 cleared, 1 ticked, 2 grey. A person only clears and ticks.
class CheckBox : public Control {
public:
    CheckBox(Container& container, const char* name, const CheckBoxDesign& design)
        : Control(container, name, look_of(design)), design_(design), value_(design.value) {}

    const char* kind() const override { return "check_box"; }
    bool focusable() const override { return true; }
    const std::string& caption() const { return design_.caption; }
    std::string accelerator_text() const override { return caption(); }

    int value() const { return value_; }
    void set_value(int value) {
        if (value_ == value) return;
        value_ = value;
        changed(Aspect::value);
        fire(design_.Click);
    }

    bool user_toggle() {
        return by_person([&] { set_value(value_ == 0 ? 1 : 0); });
    }

    void reset() override {
        Control::reset();
        value_ = design_.value;
    }

protected:
    void read_content(Aspect aspects, Reading& into, int) const override {
        if (has(aspects, Aspect::text)) into.text = caption();
        if (has(aspects, Aspect::value)) into.selected = value_;
    }

private:
    CheckBoxDesign design_;
    int value_;
};

} // namespace brx
