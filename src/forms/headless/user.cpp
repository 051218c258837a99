#include "forms/headless/user.h"

#include "common/values/calendar.h"
#include "forms/accelerator.h"
#include "forms/button.h"
#include "forms/check_box.h"
#include "forms/date_picker.h"
#include "forms/headless/user_parts.h"
#include "forms/list_control.h"
#include "forms/list_view.h"
#include "forms/text_box.h"
#include "forms/timer.h"
#include "forms/tree_view.h"

#include <algorithm>
#include <cctype>
#include <cstdio>

namespace brx {

namespace {

constexpr std::int32_t backspace_key = 8;
constexpr std::int32_t enter_key = 13;
constexpr std::int32_t delete_key = 46;
constexpr std::int32_t control_v_code = 22;

/// UTF-8 text cut into its characters.
std::vector<std::string> characters(const std::string& text) {
    std::vector<std::string> all;
    for (const char c : text) {
        const bool continues = (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
        if (continues && !all.empty())
            all.back() += c;
        else
            all.emplace_back(1, c);
    }
    return all;
}

void drop_last_character(std::string& text) {
    while (!text.empty()) {
        const auto last = static_cast<unsigned char>(text.back());
        text.pop_back();
        if ((last & 0xC0U) != 0x80U) return;
    }
}

} // namespace

Form* HeadlessUser::form() const {
    HeadlessWindow* window = engine_.front();
    return window ? &window->form() : nullptr;
}

Control* HeadlessUser::find(const std::string& name) const {
    if (!form()) return nullptr;
    for (Control* control : form()->controls())
        if (control->name() == name) return control;
    return nullptr;
}

Control* HeadlessUser::focused() const { return form() ? form()->focused() : nullptr; }

bool HeadlessUser::leaves(const std::string& name) const {
    const auto* button = as<Button>(find(name));
    return button && button->leaves();
}

bool HeadlessUser::escape_leaves() const { return form() && form()->escape_leaves(); }

bool HeadlessUser::letter_leaves(char letter) const { return form() && form()->letter_leaves(letter); }

bool HeadlessUser::click(const std::string& name) {
    Control* control = find(name);
    if (!control || !control->takes_input() || !control->shows()) return false;
    focus(name);
    if (auto* button = as<Button>(control)) return button->user_click();
    if (auto* box = as<CheckBox>(control)) return box->user_toggle();
    return control->focusable();
}

bool HeadlessUser::focus(const std::string& name) {
    Control* control = find(name);
    if (auto* box = as<TextBox>(control)) return box->user_press();
    return control && control->user_focus();
}

bool HeadlessUser::press_character(TextBox& box, const std::string& character) {
    const auto first = static_cast<unsigned char>(character[0]);
    const std::int32_t key = std::toupper(first);
    if (!box.user_key_down(key)) return false;
    // Characters beyond ASCII come through unchanged unless the handler discards them.
    const std::int32_t code = first < 0x80 ? first : 0xFFFF;
    const std::int32_t entered = box.user_key_press(code);
    if (entered != 0 && entered != enter_key && !box.display_only()) {
        std::string text = box.all_selected() ? std::string() : box.text();
        if (entered == backspace_key)
            drop_last_character(text);
        else
            text += entered == code ? character : std::string(1, static_cast<char>(entered));
        box.user_text(text);
    }
    box.user_key_up(key);
    return true;
}

bool HeadlessUser::type(const std::string& text) {
    if (as<TreeView>(focused())) return search_tree(text);
    if (as<ListView>(focused())) return search_table(text);
    for (const std::string& character : characters(text)) {
        auto* box = as<TextBox>(focused());
        // What has no use for characters leaves letters to the form.
        const bool leaves_it = as<Button>(focused()) || as<CheckBox>(focused());
        const bool taken = as<ListBox>(focused()) ? search_list(character)
                           : box                  ? press_character(*box, character)
                                                  : leaves_it && accelerator(character[0]);
        if (!taken) return false;
    }
    return true;
}

bool HeadlessUser::paste(const std::string& text) {
    auto* box = as<TextBox>(focused());
    return box && !box->display_only() &&
           box->user_text((box->all_selected() ? std::string() : box->text()) + text);
}

bool HeadlessUser::control_v(const std::string& clipboard) {
    auto* box = as<TextBox>(focused());
    if (!box || !box->user_key_down('V')) return false;
    if (box->user_key_press(control_v_code) == control_v_code) paste(clipboard);
    box->user_key_up('V');
    return true;
}

bool HeadlessUser::backspace() { return type(std::string(1, static_cast<char>(backspace_key))); }

/// Delete is no character: no KeyPress comes with it.
bool HeadlessUser::erase() {
    auto* box = as<TextBox>(focused());
    if (!box || box->display_only() || !box->user_key_down(delete_key)) return false;
    if (!box->text().empty()) box->user_text("");
    box->user_key_up(delete_key);
    return true;
}

bool HeadlessUser::enter() {
    if (!form()) return false;
    if (auto* box = as<TextBox>(focused()); box && box->takes_enter())
        return press_character(*box, std::string(1, static_cast<char>(enter_key)));
    if (auto* table = as<ListView>(focused()); table && table->takes_enter())
        return table->user_double_click();
    if (auto* button = as<Button>(focused())) return button->user_click();
    Button* button = form()->default_button();
    return button && button->user_click();
}

bool HeadlessUser::shortcut(Shortcut which) { return form() && form()->user_shortcut(which); }

bool HeadlessUser::escape() {
    if (shortcut(Shortcut::leave)) return true;
    Button* button = form() ? form()->cancel_button() : nullptr;
    return button && button->user_click();
}

bool HeadlessUser::tab(bool backwards) {
    if (!form()) return false;
    std::vector<Control*> order = form()->controls_in_tab_order();
    std::erase_if(order,
                  [&](const Control* control) { return control != focused() && !control->can_focus(); });
    if (order.empty()) return false;
    if (backwards) std::reverse(order.begin(), order.end());
    auto here = std::find(order.begin(), order.end(), focused());
    if (here == order.end() || ++here == order.end()) here = order.begin();
    return (*here)->user_take_focus();
}

bool HeadlessUser::turn_tab(bool backwards) {
    TabStrip* strip = form() ? tab_strip_of(*form()) : nullptr;
    return strip && strip->user_turn(backwards);
}

bool HeadlessUser::set_date(const std::string& name, const std::string& text) {
    auto* picker = as<DatePicker>(find(name));
    int a = 0;
    unsigned b = 0;
    unsigned c = 0;
    if (!picker || !picker->can_focus() || std::sscanf(text.c_str(), "%d%*c%u%*c%u", &a, &b, &c) != 3)
        return false;
    picker->user_focus();
    Moment moment;
    if (picker->part() == DatePart::date)
        moment.day = day_number(a, b, c).value();
    else
        moment.second = a * 3600 + static_cast<int>(b) * 60 + static_cast<int>(c);
    return picker->user_set(to_date(moment));
}

bool HeadlessUser::space() {
    if (auto* button = as<Button>(focused())) return button->user_click();
    if (auto* box = as<CheckBox>(focused())) return box->user_toggle();
    if (auto* table = as<ListView>(focused())) return table->selected() != 0 || move(0);
    if (auto* list = as<ListBox>(focused())) return list->selected() >= 0 || move(0);
    if (auto* tree = as<TreeView>(focused())) return tree->selected() && tree->user_click(*tree->selected());
    return type(" ");
}

bool HeadlessUser::help() { return form() && form()->user_help(); }

bool HeadlessUser::accelerator(char letter) {
    if (!form()) return false;
    const auto [meant, alone] = accelerator_of(*form(), letter);
    if (!meant) return false;
    Control* const target = focus_for(*meant);
    if (!target) return false;
    if (!alone || target != meant) return target->user_take_focus();
    if (auto* strip = as<TabStrip>(meant)) return strip->user_select(tab_with(*strip, letter));
    return click(meant->name());
}

bool HeadlessUser::close_box() { return form() && form()->user_close(); }

void HeadlessUser::tick() {
    // The open windows can change while timers tick.
    const std::vector<HeadlessWindow*> windows = engine_.windows();
    for (HeadlessWindow* window : windows)
        for (Control* control : window->form().controls())
            if (auto* timer = as<Timer>(control)) timer->tick();
}

} // namespace brx
