#pragma once

#include "forms/button.h"
#include "forms/tree_rows.h"
#include "forms/tree_view.h"

#include <functional>
#include <string>

namespace brx::checks {

/// A form with a tree that has the focus.
class TreeForm : public Form {
public:
    explicit TreeForm(Environment& on)
        : Form(on, {.name = "Trees", .caption = "Trees", .size = {400, 300}}) {}

    std::string events;
    bool has_signs_at_the_root = true;
    std::function<void()> on_load = [] {};
    std::function<void(TreeNode&)> on_expand = [](TreeNode&) {};
    std::function<void()> on_click = [] {};

    // clang-format off
    TreeView Tree {*this, "Tree",  {.place = {10, 10, 200, 150}, .tab = 1,
                                    .Expand = [this](TreeNode& node) { events += "Expand " + node.text() + ". "; on_expand(node); },
                                    .NodeClick = [this](TreeNode& node) { events += "NodeClick " + node.text() + ". "; },
                                    .Click = [this] { events += "Click. "; on_click(); }}};
    Button   Press{*this, "Press", {.place = {10, 200, 75, 23}, .caption = "Press", .tab = 2, .is_default = true,
                                    .Click = [this] { events += "Press. "; }}};
    // clang-format on

    void Form_Load() override {
        if (has_signs_at_the_root) Tree.set_line_style(LineStyle::root_lines);
        on_load();
        events.clear();
    }

    /// Fruit with Apple and Pear (which has Core) below it, and Spice.
    void add_food() {
        TreeNode& fruit = Tree.add("fruit", "Fruit");
        Tree.add_child(fruit, "apple", "Apple");
        Tree.add_child(Tree.add_child(fruit, "pear", "Pear"), "core", "Core");
        Tree.add("spice", "Spice");
    }
};

} // namespace brx::checks
