#include "random/source.h"

#include "random/changes.h"
#include "random/values.h"

#include <array>

namespace brx::checks {

namespace {

/// What a message box with two buttons has in its style.
bool has_cancel(const Message& message) { return (message.style & 0xF) == message::ok_cancel; }

bool is_a_way_out(const std::string& control) {
    return control == "bnOK" || control == "bnCancel" || control == "bnClose";
}

constexpr int last_key = static_cast<int>(Key::previous_tab);

} // namespace

Deeds Source::beginning() {
    fails_ = chance_.happens(50);
    is_strange_ = chance_.happens(30);
    changes_ = chance_.happens(50);
    is_hurried_ = chance_.happens(35);
    waiting_.clear();
    Deeds deeds{{.verb = Verb::begins, .number = chance_.happens(85) ? 1 : 0}};
    if (chance_.happens(25))
        for (const int missing_library : {2, 5})
            deeds.push_back(
                {.verb = Verb::changes, .on = "an error library changes", .number = missing_library});
    if (changes_)
        for (int i = chance_.below(6); i > 0; --i) deeds.push_back(change());
    return deeds;
}

Deed Source::next(Screen& screen, bool is_showing) {
    if (!waiting_.empty()) {
        const Deed deed = waiting_.back();
        waiting_.pop_back();
        return deed;
    }
    if ((fails_ || is_strange_ || changes_ || is_hurried_) && chance_.happens(20)) return of_the_host();
    if (!is_showing) return showing();
    const bool has_a_timer = class_ == "ConfigurationSetup" || class_ == "ServerInformation";
    if (has_a_timer && chance_.happens(4)) return {.verb = Verb::waits, .number = chance_.between(1, 2)};
    if (const auto message = screen.message()) return before_a_message(*message);
    return before_a_form(screen, screen.front());
}

Deed Source::of_the_host() {
    switch (chance_.below(5)) {
    case 0:
        if (is_strange_)
            return in_a_call({.verb = Verb::answers, .number = chance_.below(count_of_values())});
        [[fallthrough]];
    case 1:
        if (changes_) return chance_.happens(50) ? change() : in_a_call(change());
        [[fallthrough]];
    case 2:
        if (is_hurried_) {
            const auto& control = chance_.one_of(controls_on(chance_.one_of(all_forms())));
            if (chance_.happens(8)) return in_a_call({.verb = Verb::stops});
            if (chance_.happens(20)) return in_a_call({.verb = Verb::leaves});
            return in_a_call(chance_.happens(30) ? with_keys() : at(control, {}));
        }
        [[fallthrough]];
    default:
        if (fails_ && !chance_.happens(3))
            return in_a_call({.verb = Verb::fails, .number = chance_.below(count_of_errors())});
        if (!chance_.happens(10)) return with_keys();
        // Before real windows the time really passes.
        return in_a_call({.verb = Verb::lasts, .number = chance_.between(1, 2'000)});
    }
}

/// Soon as a rule: a deed makes few calls, and reading a space many.
Deed Source::in_a_call(Deed deed) {
    deed.in_call = chance_.happens(70) ? chance_.between(1, 8) : chance_.between(1, 60);
    return deed;
}

Deed Source::change() {
    static const std::vector<std::string> all = changes_of_a_host();
    return {.verb = Verb::changes,
            .on = chance_.one_of(all),
            .text = chance_.happens(60) ? known_name(chance_) : any_text(chance_),
            .number = chance_.below(60)};
}

Deed Source::showing() {
    if (class_ == "TestConfiguration" && chance_.happens(20))
        return {.verb = Verb::changes,
                .on = "a test comes",
                .text = known_name(chance_),
                .number = chance_.below(60)};
    return {.verb = Verb::shows,
            .on = class_,
            .text = class_ == "LeafSelect" && chance_.happens(40) ? typed_text(chance_) : "",
            .number = chance_.happens(95) ? 0 : chance_.between(1, 2)};
}

Deed Source::before_a_message(const Message& message) {
    if (chance_.happens(10)) return with_keys();
    const bool cancels = has_cancel(message) && chance_.happens(50);
    return {.verb = Verb::decides, .number = cancels ? message::cancel : message::ok};
}

Deed Source::before_a_form(Screen& screen, const std::string& form) {
    const auto& controls = controls_on(form);
    if (controls.empty() || chance_.happens(12)) return with_keys();
    if (chance_.happens(1)) return {.verb = Verb::leaves};
    for (int tries = 0; tries < 30; ++tries) {
        const KnownControl& control = chance_.one_of(controls);
        const bool is_for_hands = control.kind != "label" && control.kind != "frame" &&
                                  control.kind != "panel" && control.kind != "timer";
        if (!is_for_hands && !chance_.happens(3)) continue;
        const bool leads_on = control.kind == "button" || control.kind == "tab_strip";
        if (!chance_.happens(is_a_way_out(control.name) ? 35 : leads_on ? 100 : 60)) continue;
        const Sight sight = screen.look(control.name);
        if ((!sight.enabled || !sight.visible) && !chance_.happens(3)) continue;
        const Deed deed = at(control, sight);
        if (!fails_ || !is_a_way_out(control.name) || !chance_.happens(40)) return deed;
        // What is written is written then: one of many calls, each as likely as the others.
        waiting_.push_back(deed);
        return {.verb = Verb::fails,
                .number = chance_.below(count_of_errors()),
                .in_call = chance_.between(1, chance_.happens(70) ? 14 : 40)};
    }
    return with_keys();
}

Deed Source::at(const KnownControl& control, const Sight& sight) {
    const std::string& name = control.name;
    const std::string& kind = control.kind;
    const int lines = std::max(static_cast<int>(sight.lines.size()), 1);
    const int line = chance_.happens(92) ? chance_.below(lines) : chance_.between(-1, lines + 1);
    if (kind == "button") return {.verb = Verb::presses, .on = name};
    if (kind == "check_box") return {.verb = Verb::toggles, .on = name};
    if (kind == "tab_strip") return {.verb = Verb::chooses, .on = name, .number = line};
    if (kind == "date_picker") {
        const bool is_time = sight.text.find(':') != std::string::npos;
        return {.verb = Verb::sets, .on = name, .text = is_time ? any_time(chance_) : any_day(chance_)};
    }
    if (kind == "list_box" || kind == "combo_box" || kind == "list_view")
        return {
            .verb = chance_.happens(65) ? Verb::chooses : Verb::double_clicks, .on = name, .number = line};
    if (kind == "tree_view") {
        static constexpr auto ways = std::to_array(
            {Verb::chooses, Verb::chooses, Verb::expands, Verb::collapses, Verb::double_clicks});
        return {.verb = chance_.one_of(ways), .on = name, .number = line};
    }
    if (kind == "text_box" && sight.focused) {
        if (chance_.happens(40)) return {.verb = Verb::types, .text = typed_text(chance_)};
        if (chance_.happens(60)) return {.verb = Verb::pastes, .text = any_text(chance_)};
        return with_keys();
    }
    return {.verb = Verb::goes_to, .on = name};
}

Deed Source::with_keys() {
    static constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyz0123456789";
    if (chance_.happens(15))
        return {.verb = Verb::uses_accelerator, .text = std::string(1, chance_.one_of(letters))};
    if (chance_.happens(5)) return {.verb = Verb::copies, .text = any_text(chance_)};
    if (chance_.happens(10)) return {.verb = Verb::types, .text = typed_text(chance_)};
    const int key = chance_.below(last_key + 1);
    // Few sittings would last if it was as frequent as the others.
    if (key == static_cast<int>(Key::escape) && chance_.happens(60)) return with_keys();
    return {.verb = Verb::hits, .number = key};
}

} // namespace brx::checks
