#pragma once

#include "forms/control.h"

namespace brx {

struct LabelDesign {
    Place place;
    std::string caption = {};
    int tab = 0;
    bool mnemonic = true; ///< "&" marks the accelerator; false for text that is data
    bool visible = true;
    Anchor anchor = Anchor::top_left;
};

/// Text beside a control. Its accelerator moves the focus to the next control in tab order.
class Label : public Control {
public:
    Label(Container& container, const char* name, const LabelDesign& design)
        : Control(
              container, name,
              {.place = design.place, .tab = design.tab, .visible = design.visible, .anchor = design.anchor}),
          design_(design),
          caption_(design.caption) {}

    const char* kind() const override { return "label"; }
    bool mnemonic() const { return design_.mnemonic; }
    std::string accelerator_text() const override { return mnemonic() ? caption_ : std::string(); }

    const std::string& caption() const { return caption_; }
    void set_caption(const std::string& caption) {
        if (caption_ == caption) return;
        caption_ = caption;
        changed(Aspect::text);
    }

    void reset() override {
        Control::reset();
        caption_ = design_.caption;
    }

protected:
    void read_content(Aspect aspects, Reading& into, int) const override {
        if (has(aspects, Aspect::text)) into.text = caption_;
    }

private:
    LabelDesign design_;
    std::string caption_;
};

} // namespace brx
