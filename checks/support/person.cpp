#include "person.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace brx::checks {

namespace {

[[noreturn]] void give_up(const std::string& why) {
    ADD_FAILURE() << why;
    throw GaveUp(why);
}

} // namespace

void Person::must(bool done, const std::string& deed) {
    if (done) return;
    std::string front = screen_.front();
    if (const auto box = screen_.message()) front += " \"" + box->title + "\": " + box->text;
    give_up("She could not " + deed + "; in front is: " + (front.empty() ? "nothing" : front));
}

void Person::does(bool done, const std::string& deed) {
    must(done, deed);
    afterwards();
}

void Person::is_at(const std::string& form) {
    must(screen_.front() == form, "see " + (form.empty() ? "nothing" : form) + " in front");
}

Sight Person::sees(const std::string& control) {
    const Sight sight = screen_.look(control);
    must(sight.exists, "see " + control);
    return sight;
}

std::string Person::line_of(const std::string& list, int line) {
    const Lines lines = lines_of(list);
    must(line >= 0 && line < static_cast<int>(lines.size()),
         "see line " + std::to_string(line) + " of " + list);
    return lines[static_cast<std::size_t>(line)];
}

bool Person::can_press(const std::string& button) {
    const Sight sight = sees(button);
    return sight.enabled && sight.visible;
}

void Person::presses(const std::string& button) { does(screen_.press(button), "press " + button); }

int Person::find_line(const std::string& list, const std::string& line) {
    const Lines lines = lines_of(list);
    const auto found = std::find(lines.begin(), lines.end(), line);
    must(found != lines.end(), "find \"" + line + "\" in " + list);
    return static_cast<int>(found - lines.begin());
}

void Person::picks(const std::string& list, const std::string& line) {
    does(screen_.choose(list, find_line(list, line)), "pick \"" + line + "\" in " + list);
}

void Person::double_clicks(const std::string& list, const std::string& line) {
    does(screen_.double_click(list, find_line(list, line)), "double-click \"" + line + "\" in " + list);
}

/// The first row whose text, without what shows its level and sign, is this.
int Person::find_node(const std::string& tree, const std::string& node) {
    const Lines rows = lines_of(tree);
    const auto is_it = [&](const std::string& row) {
        const std::size_t end = row.size() - std::min(row.size(), node.size());
        if (row.substr(end) != node || end % 2 == 0) return false;
        const char sign = row[end - 1];
        return row.find_first_not_of(' ') >= end - 1 && (sign == '+' || sign == '-' || sign == ' ');
    };
    const auto found = std::find_if(rows.begin(), rows.end(), is_it);
    must(found != rows.end(), "find \"" + node + "\" in " + tree);
    return static_cast<int>(found - rows.begin());
}

void Person::clicks_node(const std::string& tree, const std::string& node) {
    does(screen_.choose(tree, find_node(tree, node)), "click \"" + node + "\" in " + tree);
}

void Person::expands(const std::string& tree, const std::string& node) {
    does(screen_.expand(tree, find_node(tree, node)), "expand \"" + node + "\" in " + tree);
}

void Person::collapses(const std::string& tree, const std::string& node) {
    does(screen_.collapse(tree, find_node(tree, node)), "collapse \"" + node + "\" in " + tree);
}

void Person::ticks(const std::string& check_box) { does(screen_.toggle(check_box), "tick " + check_box); }

void Person::sets(const std::string& picker, const std::string& date) {
    does(screen_.set_date(picker, date), "set " + picker + " to " + date);
}

void Person::goes_to(const std::string& control) { does(screen_.focus(control), "go to " + control); }

void Person::enters(const std::string& box, const std::string& text) {
    goes_to(box);
    const std::string before = sees(box).text;
    for (std::size_t i = 0; i < before.size() && !reads(box).empty(); ++i) hits(Key::backspace);
    types(text);
}

void Person::replaces(const std::string& box, const std::string& text) {
    goes_to(box);
    hits(Key::erase);
    types(text);
}

void Person::types(const std::string& text) { does(screen_.type(text), "type \"" + text + "\""); }

void Person::pastes(const std::string& text) { does(screen_.paste(text), "paste \"" + text + "\""); }

void Person::pastes_by_key(const std::string& text) {
    must(screen_.copy(text), "copy \"" + text + "\"");
    hits(Key::control_v);
}

void Person::hits(Key key) { does(screen_.key(key), "hit key " + std::to_string(static_cast<int>(key))); }

void Person::uses_accelerator(char letter) {
    does(screen_.accelerator(letter), std::string("use Alt+") + letter);
}

void Person::closes_the_window() { does(screen_.close_box(), "close the window"); }

void Person::answers(const Message& expected, std::int32_t button) {
    const auto box = screen_.message();
    must(box.has_value(), "see the message \"" + expected.text + "\"");
    EXPECT_EQ(box->text, expected.text);
    EXPECT_EQ(box->title, expected.title);
    EXPECT_EQ(box->style, expected.style);
    does(screen_.answer(button), "answer the message");
}

} // namespace brx::checks
