#pragma once

#include "forms/control.h"
#include "forms/form.h"

namespace brx {

struct FrameDesign {
    Place place;
    std::string caption = {};
    int tab = 0;
    bool enabled = true;
    bool visible = true;
    Anchor anchor = Anchor::top_left;
};

/// A control with other controls in it, whose places count from its upper left corner.
class ContainerControl : public Control, public Container {
public:
    Form& owner_form() override { return Control::form(); }
    Control* as_control() override { return this; }

protected:
    ContainerControl(Container& container, const char* name, const FrameDesign& design)
        : Control(container, name,
                  {.place = design.place,
                   .tab = design.tab,
                   .enabled = design.enabled,
                   .visible = design.visible,
                   .anchor = design.anchor}) {}
};

/// A captioned group of controls.
class Frame : public ContainerControl {
public:
    Frame(Container& container, const char* name, const FrameDesign& design)
        : ContainerControl(container, name, design), caption_(design.caption) {}

    Kind kind() const override { return Kind::frame; }
    const std::string& caption() const { return caption_; }

private:
    std::string caption_;
};

/// A plain area, with or without controls in it.
class Panel : public ContainerControl {
public:
    Panel(Container& container, const char* name, const FrameDesign& design)
        : ContainerControl(container, name, design) {}

    Kind kind() const override { return Kind::panel; }
};

} // namespace brx
