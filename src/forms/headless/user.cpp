#include "forms/headless/user.h"

#include "common/values/text.h"
#include "forms/button.h"
#include "forms/check_box.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/list_control.h"
#include "forms/text_box.h"
#include "forms/timer.h"
#include "forms/tree_rows.h"

#include <algorithm>
#include <cctype>

namespace brx {

namespace {

constexpr std::int32_t backspace_key = 8;
constexpr std::int32_t enter_key = 13;

template <class Kind> Kind* as(Control* control) { return dynamic_cast<Kind*>(control); }

/// The letter after the single "&" of a caption, in lower case; 0 for none.
int mnemonic_of(const std::string& caption) {
    for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != '&') continue;
        if (caption[i + 1] != '&') return std::tolower(static_cast<unsigned char>(caption[i + 1]));
        ++i;
    }
    return 0;
}

int mnemonic_of(Control* control) {
    if (const auto* label = as<Label>(control)) return label->mnemonic() ? mnemonic_of(label->caption()) : 0;
    if (const auto* button = as<Button>(control)) return mnemonic_of(button->caption());
    if (const auto* box = as<CheckBox>(control)) return mnemonic_of(box->caption());
    if (const auto* frame = as<Frame>(control)) return mnemonic_of(frame->caption());
    return 0;
}

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

bool HeadlessUser::click(const std::string& name) {
    Control* control = find(name);
    if (!control || !control->takes_input() || !control->shows()) return false;
    control->user_focus();
    if (auto* button = as<Button>(control)) return button->user_click();
    if (auto* box = as<CheckBox>(control)) return box->user_toggle();
    return control->focusable();
}

bool HeadlessUser::choose(const std::string& name, int line) {
    if (auto* tree = as<TreeView>(find(name))) {
        TreeNode* node = node_at(*tree, line);
        if (!node || !tree->can_focus()) return false;
        tree->user_focus();
        return tree->user_click(*node);
    }
    auto* list = as<ListControl>(find(name));
    if (!list || !list->can_focus()) return false;
    list->user_focus();
    return list->user_select(line);
}

bool HeadlessUser::double_click(const std::string& name, int line) {
    if (auto* tree = as<TreeView>(find(name))) {
        if (!choose(name, line)) return false;
        TreeNode* node = node_at(*tree, line);
        if (!node || !node->child()) return true;
        return node->expanded() ? tree->user_collapse(*node) : tree->user_expand(*node);
    }
    return choose(name, line) && as<ListControl>(find(name))->user_double_click();
}

bool HeadlessUser::expand(const std::string& name, int row) {
    auto* tree = as<TreeView>(find(name));
    TreeNode* node = tree ? node_at(*tree, row) : nullptr;
    if (!node || !node->child() || node->expanded() || !tree->can_focus()) return false;
    tree->user_focus();
    return tree->user_expand(*node);
}

bool HeadlessUser::collapse(const std::string& name, int row) {
    auto* tree = as<TreeView>(find(name));
    TreeNode* node = tree ? node_at(*tree, row) : nullptr;
    if (!node || !node->expanded() || !tree->can_focus()) return false;
    tree->user_focus();
    return tree->user_collapse(*node);
}

bool HeadlessUser::focus(const std::string& name) {
    Control* control = find(name);
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

/// A tree goes to the next node in view that begins with what is typed, round the end.
bool HeadlessUser::search_tree(const std::string& text) {
    auto& tree = *as<TreeView>(focused());
    const auto begins = [&](const TreeNode& node) {
        return to_upper(node.text()).rfind(to_upper(text), 0) == 0;
    };
    const int start = row_of(tree, tree.selected());
    TreeNode* first = nullptr;
    int row = 0;
    for (TreeNode* each = tree.first(); each; each = TreeView::next_in_view(*each), ++row) {
        if (!begins(*each)) continue;
        if (row > start) return tree.user_select(*each);
        if (!first) first = each;
    }
    return first && tree.user_select(*first);
}

bool HeadlessUser::type(const std::string& text) {
    if (as<TreeView>(focused())) return search_tree(text);
    for (const std::string& character : characters(text)) {
        auto* box = as<TextBox>(focused());
        if (!box || !press_character(*box, character)) return false;
    }
    return true;
}

bool HeadlessUser::paste(const std::string& text) {
    auto* box = as<TextBox>(focused());
    return box && !box->display_only() &&
           box->user_text((box->all_selected() ? std::string() : box->text()) + text);
}

bool HeadlessUser::backspace() { return type(std::string(1, static_cast<char>(backspace_key))); }

bool HeadlessUser::enter() {
    if (!form()) return false;
    if (auto* box = as<TextBox>(focused()); box && box->takes_enter())
        return press_character(*box, std::string(1, static_cast<char>(enter_key)));
    if (auto* button = as<Button>(focused())) return button->user_click();
    Button* button = form()->default_button();
    return button && button->user_click();
}

bool HeadlessUser::escape() {
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
    return (*here)->user_focus();
}

bool HeadlessUser::space() {
    if (auto* button = as<Button>(focused())) return button->user_click();
    if (auto* box = as<CheckBox>(focused())) return box->user_toggle();
    return type(" ");
}

bool HeadlessUser::left() {
    auto* tree = as<TreeView>(focused());
    TreeNode* node = tree ? tree->selected() : nullptr;
    if (!node) return false;
    if (node->expanded()) return tree->user_collapse(*node);
    return !node->parent() || tree->user_select(*node->parent());
}

bool HeadlessUser::right() {
    auto* tree = as<TreeView>(focused());
    TreeNode* node = tree ? tree->selected() : nullptr;
    if (!node) return false;
    if (!node->child()) return true;
    return node->expanded() ? tree->user_select(*node->child()) : tree->user_expand(*node);
}

bool HeadlessUser::plus() {
    auto* tree = as<TreeView>(focused());
    TreeNode* node = tree ? tree->selected() : nullptr;
    return node && (!node->child() || tree->user_expand(*node));
}

bool HeadlessUser::minus() {
    auto* tree = as<TreeView>(focused());
    TreeNode* node = tree ? tree->selected() : nullptr;
    return node && tree->user_collapse(*node);
}

bool HeadlessUser::move(int lines) {
    if (auto* tree = as<TreeView>(focused())) {
        const int row = row_of(*tree, tree->selected());
        TreeNode* node = node_at(*tree, std::max(row + lines, 0));
        return node ? tree->user_select(*node) : row >= 0;
    }
    auto* list = as<ListControl>(focused());
    if (!list || list->count() == 0) return false;
    return list->user_select(std::clamp(list->selected() + lines, 0, list->count() - 1));
}

bool HeadlessUser::help() { return form() && form()->user_help(); }

bool HeadlessUser::accelerator(char letter) {
    if (!form()) return false;
    const int wanted = std::tolower(static_cast<unsigned char>(letter));
    const std::vector<Control*> order = form()->controls_in_tab_order();
    std::vector<Control*> named;
    for (Control* control : order)
        if (control->shows() && control->takes_input() && mnemonic_of(control) == wanted)
            named.push_back(control);
    if (named.empty()) return false;
    // Of several with one letter the next one after the focus is meant, and none of them is pressed.
    const auto position = [&](const Control* control) {
        return std::find(order.begin(), order.end(), control);
    };
    const auto here = position(focused());
    const auto later = std::find_if(named.begin(), named.end(), [&](Control* each) {
        return here != order.end() && position(each) > here;
    });
    Control* meant = later == named.end() ? named.front() : *later;
    if (meant->focusable()) return named.size() == 1 ? click(meant->name()) : meant->user_focus();
    const auto next = std::find_if(position(meant), order.end(),
                                   [](const Control* control) { return control->can_focus(); });
    return next != order.end() && (*next)->user_focus();
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
