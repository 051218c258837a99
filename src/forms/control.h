#pragma once

#include "forms/element.h"
#include "forms/geometry.h"
#include "forms/reading.h"

#include <functional>
#include <string>

namespace brx {

using Handler = std::function<void()>;

/// What has controls in it: the form, a frame, a panel.
class Container {
public:
    virtual ~Container() = default;
    virtual Form& owner_form() = 0;
    /// The container as a control, or null when it is the form.
    virtual class Control* as_control() { return nullptr; }
};

/// What every kind of control is designed with.
struct Look {
    Place place;
    int tab = 0; ///< position in the tab order; a label stands just before the control that it names
    bool enabled = true;
    bool visible = true;
    Anchor anchor = Anchor::top_left;
    Color back_color = color::button_face;
    Color fore_color = color::button_text;
    std::string accessible_name =
        {}; ///< what screen readers call it, where neither caption nor label says it
};

/// What the designs of all kinds say of a control's looks.
template <class Design>
Look look_of(const Design& design, Color back_color = color::button_face,
             Color fore_color = color::button_text) {
    Look look{.place = design.place,
              .tab = design.tab,
              .enabled = design.enabled,
              .visible = design.visible,
              .anchor = design.anchor,
              .back_color = back_color,
              .fore_color = fore_color};
    if constexpr (requires { design.accessible_name; }) look.accessible_name = design.accessible_name;
    return look;
}
/// The same for what is drawn like the inside of a window.
template <class Design> Look window_look_of(const Design& design) {
    return look_of(design, color::window, color::window_text);
}

/// A control owns its state and fires its own events. Setters are for code; `user_...` verbs are for what a
/// person did, and refuse what a person could not do.
class Control : public Element {
public:
    /// The name of its class, in words: "text_box".
    virtual const char* kind() const = 0;
    Form& form() override { return container_.owner_form(); }
    using Element::form;
    const std::string& name() const { return name_; }
    Container& container() const { return container_; }
    int tab() const { return look_.tab; }
    Anchor anchor() const { return look_.anchor; }

    const Place& place() const { return look_.place; }
    bool enabled() const { return look_.enabled; }
    bool visible() const { return look_.visible; }
    Color back_color() const { return look_.back_color; }
    Color fore_color() const { return look_.fore_color; }
    void set_place(const Place& place);
    void set_enabled(bool enabled);
    void set_visible(bool visible);
    void set_back_color(Color color);
    void set_fore_color(Color color);

    /// Enabled, and every container around it too.
    bool takes_input() const;
    /// Visible, and every container around it too.
    bool shows() const;
    /// Whether the focus can be on this kind of control.
    virtual bool focusable() const { return false; }
    /// Whether there is anything to do in it but read.
    virtual bool takes_entries() const { return true; }
    /// Whether the focus can be on it now.
    bool can_focus() const { return focusable() && takes_input() && shows(); }

    /// Reads these aspects again, of at most so many lines.
    void read(Aspect aspects, Reading& into, int most_lines = Reading::all_lines) const;
    /// The same of everything.
    Reading read(int most_lines = Reading::all_lines) const;
    /// An engine that reads everything again wants no journal of what changed.
    virtual void forget_changes() {}

    /// Words of its own for screen readers; "" where caption or label do.
    const std::string& accessible_name() const { return look_.accessible_name; }
    /// The text whose "&" marks the letter that leads here; "" where there is none.
    virtual std::string accelerator_text() const { return {}; }

    /// Moves the focus here. Error 5 when it cannot be here.
    void set_focus();
    /// The same as the keyboard does it: the text of a box is selected as a whole.
    void take_focus();

    /// Back to the design state, without events.
    virtual void reset() { look_ = design_look_; }

    /// The focus came to this control or left it, whoever moved it.
    virtual void got_focus() {}
    virtual void lost_focus() {}

    /// A person moved the focus here, with the mouse for instance.
    bool user_focus();
    /// A person moved the focus here with the keyboard, or it is here already.
    bool user_take_focus();

protected:
    Control(Container& container, const char* name, const Look& look);
    ~Control() override = default;

    /// Runs what a person did. False, and nothing happens, when a person could not have done it. Defined in
    /// form.h.
    template <class Deed> bool by_person(Deed&& deed);

    /// The focus came as from the keyboard.
    virtual void select_content() {}

    /// What it shows besides what every control has.
    virtual void read_content(Aspect aspects, Reading& into, int most_lines) const;

    static void fire(const Handler& handler) {
        if (handler) handler();
    }

private:
    friend class Form;
    bool within_reach() const;

    Container& container_;
    std::string name_;
    Look design_look_;
    Look look_;
};

} // namespace brx
