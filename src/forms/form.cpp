#include "forms/form.h"

#include "common/call_gate.h"
#include "forms/accelerator.h"
#include "forms/button.h"
#include "forms/showing.h"

#include <algorithm>

namespace brx {

Form::Form(Environment& environment, FormDesign design)
    : Module(design.name, environment.errors, design.errors),
      environment_(environment),
      design_(std::move(design)),
      caption_(design_.caption) {}

std::vector<Control*> Form::controls_in_tab_order() const {
    std::vector<Control*> ordered = controls_;
    std::stable_sort(ordered.begin(), ordered.end(),
                     [](const Control* a, const Control* b) { return a->tab() < b->tab(); });
    return ordered;
}

void Form::set_caption(const std::string& caption) {
    if (caption_ == caption) return;
    caption_ = caption;
    changed(Aspect::text);
}

void Form::show_modal() {
    // The form below shows what its handler has done so far while this one is in front of it.
    if (Form* below = turn::top_form()) below->settle();
    const ShowingScope showing(design_.name);
    struct Unloading {
        Form& form;
        ~Unloading() {
            form.loaded_ = false;
            form.focused_ = nullptr;
            form.Form_Unload();
        }
    };
    const Unloading at_the_end{*this}; // also when no window can be had for it
    expect_still_wanted();
    load();
    if (!loaded_) return;
    const ModalTurn waiting(this);
    environment_.engine.show_modal(*this);
}

void Form::expect_still_wanted() {
    call_gate::pass();
    work().expect_no_stop();
}

void Form::load() {
    caption_ = design_.caption;
    help_topic_ = 0;
    focused_ = nullptr;
    for (Control* control : controls_) control->reset();
    loaded_ = true;
    run_event([&] { Form_Load(); });
    if (!loaded_) return;
    if (Control* first = focused_ ? focused_ : first_focusable(); first && first->can_focus())
        run_event([&] { first->take_focus(); });
}

Control* Form::first_focusable() const {
    const std::vector<Control*> order = controls_in_tab_order();
    const auto can_focus = [](const Control* each) { return each->can_focus(); };
    const auto takes_entries = [](const Control* each) { return each->can_focus() && each->takes_entries(); };
    auto first = std::find_if(order.begin(), order.end(), takes_entries);
    if (first == order.end()) first = std::find_if(order.begin(), order.end(), can_focus);
    return first == order.end() ? nullptr : *first;
}

std::int32_t Form::show_message(const Message& message) {
    settle();
    environment_.engine.comes_before_forms();
    const ModalTurn waiting(nullptr);
    return environment_.services.show_message(message);
}

void Form::unload() { loaded_ = false; }

void Form::settle() {
    keep_focus_usable();
    for (Control* control : controls_) control->flush();
    // Last: the focus can only go where the controls already take it.
    flush();
}

void Form::repaint() {
    settle();
    environment_.engine.repaint(*this);
}

void Form::move_focus(Control* control) {
    if (focused_ == control) return;
    Control* before = focused_;
    focused_ = control;
    changed(Aspect::focus);
    if (before) before->lost_focus();
    if (control && focused_ == control) control->got_focus();
}

void Form::keep_focus_usable() {
    if (!loaded_ || !focused_ || focused_->can_focus()) return;
    const std::vector<Control*> order = controls_in_tab_order();
    const auto here = std::find(order.begin(), order.end(), focused_);
    const auto usable = [](const Control* control) { return control->can_focus(); };
    auto next = std::find_if(here, order.end(), usable);
    if (next == order.end()) next = std::find_if(order.begin(), here, usable);
    Control* heir = next != order.end() && (*next)->can_focus() ? *next : nullptr;
    const CodeTurn code;
    move_focus(heir);
}

void Form::note_within(const Control& container, Aspect aspects) {
    const auto lies_within = [&](const Control* control) {
        for (; control; control = control->container().as_control())
            if (control == &container) return true;
        return false;
    };
    for (Control* control : controls_)
        if (lies_within(control)) control->changed(aspects);
}

namespace {

template <class Test> Button* find_button(const std::vector<Control*>& controls, Test&& test) {
    for (Control* control : controls) {
        auto* button = dynamic_cast<Button*>(control);
        if (button && test(*button)) return button;
    }
    return nullptr;
}

} // namespace

bool Form::letter_leaves(char letter) const {
    const Accelerator found = accelerator_of(*this, letter);
    const auto* button = dynamic_cast<const Button*>(found.control);
    return button && found.alone && button->leaves();
}

Button* Form::default_button() const {
    return find_button(controls_, [](const Button& button) { return button.is_default(); });
}

Button* Form::cancel_button() const {
    return find_button(controls_, [](const Button& button) { return button.is_cancel(); });
}

bool Form::user_close() {
    if (!in_front()) return false;
    unload();
    return true;
}

bool Form::user_shortcut(Shortcut which) {
    if (!in_front()) return false;
    bool taken = false;
    run_event([&] { taken = takes(which); });
    return taken;
}

bool Form::user_help() {
    if (!in_front()) return false;
    // No procedure of the dialog's: nobody is reported to.
    run_event([&] { attempt([&] { show_help(); }); });
    return true;
}

void Form::show_help() {
    std::string file = environment_.help_file;
    // Not every dialog asks for it as it loads.
    if (file.empty()) attempt([&] { file = environment_.services.help_file(); });
    if (file.empty()) return;
    const HelpOutcome outcome = environment_.engine.show_help(file, help_topic_);
    if (outcome == HelpOutcome::opened) return;
    const char* const why = outcome == HelpOutcome::missing ? " cannot be found." : " cannot be opened.";
    settle();
    const ModalTurn waiting(nullptr);
    environment_.services.tell(
        {.text = "The help file " + file + why, .style = message::exclamation, .title = component_name});
}

} // namespace brx
