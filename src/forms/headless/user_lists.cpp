#include "forms/headless/user.h"

#include "common/values/text.h"
#include "forms/headless/user_parts.h"
#include "forms/list_control.h"
#include "forms/list_rows.h"
#include "forms/tab_strip.h"
#include "forms/text_box.h"
#include "forms/tree_rows.h"

#include <algorithm>

// What a person does to lists, tables, trees and tabs.

namespace brx {

bool HeadlessUser::choose(const std::string& name, int line) {
    if (auto* tree = as<TreeView>(find(name))) {
        TreeNode* node = node_at(*tree, line);
        if (!node || !tree->can_focus()) return false;
        tree->user_focus();
        return tree->user_click(*node);
    }
    if (auto* strip = as<TabStrip>(find(name))) {
        if (!strip->can_focus()) return false;
        strip->user_focus();
        return strip->user_select(line + 1);
    }
    if (auto* table = as<ListView>(find(name))) {
        if (!table->can_focus()) return false;
        table->user_focus();
        return table->user_select(line + 1);
    }
    auto* list = as<ListControl>(find(name));
    if (!list || !list->can_focus()) return false;
    list->user_focus();
    return list->user_press(line);
}

bool HeadlessUser::double_click(const std::string& name, int line) {
    Control* const control = find(name);
    const Form* const before = form();
    const int opened = engine_.opened();
    if (!choose(name, line)) return false;
    // Where the first click closed the form or brought something before it, the second one misses.
    if (form() != before || engine_.opened() != opened || !control->can_focus()) return false;
    if (auto* tree = as<TreeView>(control)) {
        TreeNode* node = node_at(*tree, line);
        if (node && node->child()) tree->user_toggle(*node);
        return true;
    }
    if (auto* table = as<ListView>(control)) return table->user_double_click();
    auto* list = as<ListControl>(control);
    return list && list->user_double_click();
}

bool HeadlessUser::expand(const std::string& name, int row) {
    auto* tree = as<TreeView>(find(name));
    TreeNode* node = tree ? node_at(*tree, row) : nullptr;
    if (!node || !node->child() || node->expanded() || !tree->can_focus()) return false;
    tree->user_focus();
    return tree->user_toggle(*node);
}

bool HeadlessUser::collapse(const std::string& name, int row) {
    auto* tree = as<TreeView>(find(name));
    TreeNode* node = tree ? node_at(*tree, row) : nullptr;
    if (!node || !node->expanded() || !tree->can_focus()) return false;
    tree->user_focus();
    return tree->user_toggle(*node);
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

/// A table does the same with its rows' own texts.
bool HeadlessUser::search_table(const std::string& text) {
    auto& table = *as<ListView>(focused());
    const int found = row_beginning_with(table, text, table.selected() + 1);
    return found != 0 && table.user_select(found);
}

/// A list box goes by one character at a time.
bool HeadlessUser::search_list(const std::string& character) {
    auto& list = *as<ListBox>(focused());
    return list.user_search(character);
}

bool HeadlessUser::left() {
    if (auto* strip = as<TabStrip>(focused()))
        return strip->selected() == 1 || strip->user_select(strip->selected() - 1);
    auto* tree = as<TreeView>(focused());
    TreeNode* node = tree ? tree->selected() : nullptr;
    if (!node) return false;
    if (node->expanded()) return tree->user_collapse(*node);
    return !node->parent() || tree->user_select(*node->parent());
}

bool HeadlessUser::right() {
    if (auto* strip = as<TabStrip>(focused()))
        return strip->selected() == strip->count() || strip->user_select(strip->selected() + 1);
    auto* tree = as<TreeView>(focused());
    TreeNode* node = tree ? tree->selected() : nullptr;
    if (!node) return false;
    if (!node->child()) return true;
    return node->expanded() ? tree->user_select(*node->child()) : tree->user_expand(*node);
}

bool HeadlessUser::go_to_end(bool first) {
    if (auto* box = as<TextBox>(focused())) return box->user_press(); // the caret goes there
    if (auto* tree = as<TreeView>(focused())) {
        TreeNode* node = tree->first();
        for (TreeNode* next = node; next && !first; next = TreeView::next_in_view(*next)) node = next;
        return node && tree->user_select(*node);
    }
    if (auto* table = as<ListView>(focused()))
        return table->count() > 0 && table->user_select(first ? 1 : table->count());
    auto* list = as<ListControl>(focused());
    return list && list->count() > 0 && list->user_select(first ? 0 : list->count() - 1);
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
    if (auto* table = as<ListView>(focused()))
        return table->count() > 0 && table->user_select(row_from_keyboard(*table, lines));
    auto* list = as<ListControl>(focused());
    if (!list || list->count() == 0) return false;
    return list->user_select(std::clamp(list->selected() + lines, 0, list->count() - 1));
}

} // namespace brx
