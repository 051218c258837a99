#pragma once

#include "forms/form.h"

namespace brx {

struct ButtonDesign {
    Place place;
    std::string caption = {};
    std::string accessible_name = {}; ///< what it opens, where the caption does not say so; its tip too
    int tab = 0;
    bool enabled = true;
    bool visible = true;
    bool is_default = false; ///< Enter presses it
    bool is_cancel = false;  ///< Escape presses it
    bool closes = false;     ///< it closes the form, as a Cancel button does
    Anchor anchor = Anchor::top_left;
    Handler Click = {};
};

class Button : public Control {
public:
    Button(Container& container, const char* name, const ButtonDesign& design)
        : Control(container, name, look_of(design)), design_(design) {}

    const char* kind() const override { return "button"; }
    bool focusable() const override { return true; }

    const std::string& caption() const { return design_.caption; }
    std::string accelerator_text() const override { return caption(); }
    bool is_default() const { return design_.is_default; }
    bool is_cancel() const { return design_.is_cancel; }
    /// Whoever presses it waits for nothing that the form still reads.
    bool leaves() const { return design_.is_cancel || design_.closes; }

    /// A person pressed the button: by mouse, blank, Enter, Escape or accelerator.
    bool user_click() {
        return by_person([&] { fire(design_.Click); });
    }

protected:
    void read_content(Aspect aspects, Reading& into, int) const override {
        if (has(aspects, Aspect::text)) into.text = caption();
    }

private:
    ButtonDesign design_;
};

} // namespace brx
