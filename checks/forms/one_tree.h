#pragma once

#include "forms/tree_rows.h"
#include "one_form.h"

#include <gtest/gtest.h>

namespace brx::checks {

/// A form with a tree in a frame.
class TreeForm : public Form {
public:
    explicit TreeForm(Environment& environment)
        : Form(environment, {.name = "TreeForm", .caption = "Tree", .size = {300, 200}}) {}

    Notes notes;
    std::function<void(TreeNode&)> on_expand = [](TreeNode&) {};
    std::function<void()> on_click = [] {};

    // clang-format off
    Frame    frame {*this, "frame",  {.place = {0, 0, 200, 100}}};
    TreeView tree  {frame, "tree",   {.place = {0, 0, 100, 100},
                                      .Expand = [this](TreeNode& node) { notes.push_back("Expand " + node.text()); on_expand(node); },
                                      .NodeClick = [this](TreeNode& node) { notes.push_back("NodeClick " + node.text()); },
                                      .Click = [this] { notes.emplace_back("Click"); on_click(); }}};
    // clang-format on
};

struct OneTree {
    FakeHost host;
    ScriptedEngine engine;
    Environment environment{engine, host, host, Locale{}};
    TreeForm form{environment};
    TreeView& tree = form.tree;

    void while_open(const std::function<void()>& story) {
        engine.while_open = [&](Form&) { story(); };
        form.show_modal();
    }
    /// Fruit with Apple and Pear (which has Core) below it, and Spice.
    void add_food() {
        TreeNode& fruit = tree.add("fruit", "Fruit");
        tree.add_child(fruit, "apple", "Apple");
        tree.add_child(tree.add_child(fruit, "pear", "Pear"), "core", "Core");
        tree.add("spice", "Spice");
    }
    static std::int32_t number_of_error(const std::function<void()>& deed) {
        try {
            deed();
        } catch (const Error& error) {
            return error.number();
        }
        return 0;
    }
    std::string selected() const { return tree.selected() ? tree.selected()->text() : "none"; }
};

} // namespace brx::checks
