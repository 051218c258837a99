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
    ContainerControl(Container& container, const char* name, const Look& look)
        : Control(container, name, look) {}
};

/// A captioned group of controls.
class Frame : public ContainerControl {
public:
    Frame(Container& container, const char* name, const FrameDesign& design)
        : ContainerControl(container, name, look_of(design)), caption_(design.caption) {}

    const char* kind() const override { return "frame"; }
    const std::string& caption() const { return caption_; }
    std::string accelerator_text() const override { return caption_; }

protected:
    void read_content(Aspect aspects, Reading& into, int) const override {
        if (has(aspects, Aspect::text)) into.text = caption_;
    }

private:
    std::string caption_;
};

struct PanelDesign {
    Place place;
    int tab = 0;
    bool enabled = true;
    bool visible = true;
    Anchor anchor = Anchor::top_left;
    bool edge = false; ///< drawn around it, as around an empty box
};

/// A plain area, with or without controls in it.
class Panel : public ContainerControl {
public:
    Panel(Container& container, const char* name, const PanelDesign& design)
        : ContainerControl(container, name, look_of(design)), edge_(design.edge) {}

    const char* kind() const override { return "panel"; }
    bool edge() const { return edge_; }

    /// Whether it covers the controls that it overlaps, those in it too, or lies behind them.
    bool in_front() const { return in_front_; }
    void bring_to_front() { set_in_front(true); }
    void send_to_back() { set_in_front(false); }

    void reset() override {
        Control::reset();
        in_front_ = false;
    }

protected:
    void read_content(Aspect aspects, Reading& into, int) const override {
        if (has(aspects, Aspect::order)) into.selected = in_front_ ? 1 : 0;
    }

private:
    void set_in_front(bool in_front) {
        if (in_front_ == in_front) return;
        in_front_ = in_front;
        changed(Aspect::order);
    }

    bool edge_;
    bool in_front_ = false;
};

} // namespace brx
