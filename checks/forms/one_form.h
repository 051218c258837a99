#pragma once

#include "forms/button.h"
#include "forms/check_box.h"
#include "forms/frame.h"
#include "forms/headless/engine.h"
#include "forms/label.h"
#include "forms/list_control.h"
#include "forms/text_box.h"
#include "forms/timer.h"
#include "host/fake_host.h"

#include <functional>
#include <string>
#include <vector>

namespace brx::checks {

/// What the handlers of a form noted, in order.
using Notes = std::vector<std::string>;

/// An environment whose message boxes and forms run whatever the check says instead of waiting for a person.
class ScriptedEngine : public FormEngine {
public:
    std::function<void(Form&)> while_open = [](Form& form) { form.user_close(); };
    std::function<std::int32_t(const Message&)> while_asking = [](const Message&) { return message::ok; };
    std::vector<std::string> events;

    void show_modal(Form& form) override {
        events.push_back("open " + form.name());
        const auto story = while_open; // may set the next form's
        story(form);
        form.unload();
        events.push_back("close " + form.name());
    }
    void repaint(Form& form) override { events.push_back("repaint " + form.name()); }
    void hourglass(Form&, bool on) override { events.emplace_back(on ? "hourglass on" : "hourglass off"); }
    std::int32_t message_box(const Message& message) override { return while_asking(message); }
    HelpOutcome help = HelpOutcome::opened;
    HelpOutcome show_help(const std::string& help_file, std::int32_t topic) override {
        if (help == HelpOutcome::opened) events.push_back("help " + help_file + " " + std::to_string(topic));
        return help;
    }
};

/// The number of the error that `deed` ends with, 0 for none.
inline std::int32_t number_of_error(const std::function<void()>& deed) {
    try {
        deed();
    } catch (const Error& error) {
        return error.number();
    }
    return 0;
}

/// The control of the form with this name.
template <class Which> Which& control_of(Form& form, const std::string& name) {
    for (Control* control : form.controls())
        if (control->name() == name) return dynamic_cast<Which&>(*control);
    throw Error(error::element_not_found);
}

/// A form with one control of each kind that the checks drive.
class OneForm : public Form {
public:
    explicit OneForm(Environment& environment)
        : Form(environment, {.name = "OneForm", .caption = "One form", .size = {300, 200}}) {}

    Notes notes;
    std::function<void()> on_load = [] {};
    std::function<void()> on_click = [] {};
    std::function<void()> on_tick = [] {};
    std::function<void()> on_got_focus = [] {};
    std::function<void(std::int32_t&)> on_key = [](std::int32_t&) {};

    // clang-format off
    Frame    frame {*this, "frame",  {.place = {0, 0, 200, 100}, .caption = "Frame"}};
    Panel    panel {*this, "panel",  {.place = {200, 0, 50, 50}}};
    Label    label {frame, "label",  {.place = {0, 0, 50, 15}, .caption = "&Text:", .tab = 1}};
    TextBox  box   {frame, "box",    {.place = {60, 0, 90, 23}, .tab = 2, .text = "design",
                                      .Change = note("box_Change"),
                                      .KeyDown = [this](std::int32_t) { notes.emplace_back("box_KeyDown"); },
                                      .KeyPress = [this](std::int32_t& key) { notes.emplace_back("box_KeyPress"); on_key(key); },
                                      .KeyUp = [this](std::int32_t) { notes.emplace_back("box_KeyUp"); },
                                      .GotFocus = [this] { notes.emplace_back("box_GotFocus"); on_got_focus(); }, .LostFocus = note("box_LostFocus")}};
    ListBox  list  {*this, "list",   {.place = {0, 110, 90, 60}, .tab = 3,
                                      .Click = note("list_Click"),
                                      .DblClick = note("list_DblClick")}};
    ComboBox combo {*this, "combo",  {.place = {100, 110, 90, 23}, .tab = 4, .Click = note("combo_Click"),
                                      .Change = note("combo_Change")}};
    CheckBox check {*this, "check",  {.place = {100, 140, 90, 17}, .caption = "C&heck", .tab = 5,
                                      .Click = note("check_Click")}};
    Button   button{*this, "button", {.place = {0, 175, 75, 23}, .caption = "&Go", .tab = 6, .is_default = true,
                                      .Click = [this] { notes.emplace_back("button_Click"); on_click(); }}};
    Button   leave {*this, "leave",  {.place = {80, 175, 75, 23}, .caption = "&Leave", .tab = 7, .is_cancel = true,
                                      .Click = [this] { notes.emplace_back("leave_Click"); unload(); }}};
    Timer    timer {*this, "timer",  {.interval = 1000, .Timer = [this] { notes.emplace_back("timer_Timer"); on_tick(); }}};
    // clang-format on

    using Form::show_message;

private:
    Handler note(const char* what) {
        return [this, what] { notes.emplace_back(what); };
    }
    void Form_Load() override {
        notes.emplace_back("Form_Load");
        on_load();
    }
    void Form_Unload() override { notes.emplace_back("Form_Unload"); }
};

/// Shows a OneForm and runs `story` while it is open.
struct OpenForm {
    FakeHost host;
    ScriptedEngine engine;
    Environment environment{engine, host, host, Locale{}};
    OneForm form{environment};

    void while_open(const std::function<void()>& story) {
        engine.while_open = [&](Form&) {
            form.notes.clear();
            story();
        };
        form.show_modal();
    }
};

} // namespace brx::checks
