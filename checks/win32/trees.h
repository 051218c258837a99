#pragma once

#include "desk/desk.h"

#include "desk/native_tree.h"
#include "forms/button.h"
#include "forms/tree_rows.h"
#include "forms/tree_view.h"

#include <commctrl.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace brx::checks {

using Rows = std::vector<std::string>;

/// A form with a tree that has the focus.
class Trees : public Form {
public:
    explicit Trees(Environment& on) : Form(on, {.name = "Trees", .caption = "Trees", .size = {400, 300}}) {}

    std::string events;
    std::function<void()> on_load;
    std::function<void(TreeNode&)> on_expand;

    // clang-format off
    TreeView Tree {*this, "Tree",  {.place = {10, 10, 200, 150}, .tab = 1,
                                    .Expand = [this](TreeNode& node) { events += "Expand " + node.text() + ". "; if (on_expand) on_expand(node); },
                                    .NodeClick = [this](TreeNode& node) { events += "NodeClick " + node.text() + ". "; },
                                    .Click = [this] { events += "Click. "; }}};
    Button   Press{*this, "Press", {.place = {10, 200, 75, 23}, .caption = "Press", .tab = 2, .is_default = true,
                                    .Click = [this] { events += "Press. "; }}};
    // clang-format on

    void Form_Load() override {
        Tree.set_line_style(LineStyle::root_lines);
        if (on_load) on_load();
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

class TreeTest : public OnWindows {
protected:
    using Story = std::function<void(Hands& hands, HWND tree)>;

    /// Shows the form, with something in its tree, while a person acts.
    void show_food(Trees& form, const Story& story) {
        form.on_load = [&] { form.add_food(); };
        show_tree(form, story);
    }
    void show_tree(Trees& form, const Story& story) {
        show(form, [&](Hands& hands) {
            hands.form("Trees");
            const HWND tree = hands.control("Trees", "Tree");
            story(hands, tree);
            hands.run([&] { expect_same_rows(tree, form.Tree); });
        });
    }
    /// As far as they can be compared in no time.
    static void expect_same_rows(HWND window, const TreeView& tree) {
        constexpr std::size_t most = 1'000;
        Rows held = tree.read().lines;
        held.resize(std::min(held.size(), most));
        EXPECT_EQ(tree_rows(window, most), held) << "the window lags behind";
    }
    /// Runs code of the form, as a handler does.
    static void run(Hands& hands, Form& form, const std::function<void()>& code) {
        hands.run([&] { form.run_event(code); });
    }

    static HTREEITEM item(HWND tree, int row) {
        return items_in_view(tree).at(static_cast<std::size_t>(row));
    }
    static void click_text(Hands& hands, HWND tree, int row) {
        const POINT point = point_on_text(tree, item(tree, row));
        hands.click(tree, point.x, point.y);
    }
    static void click_sign(Hands& hands, HWND tree, int row) {
        POINT point{};
        ASSERT_TRUE(point_on_sign(tree, item(tree, row), point)) << "row " << row;
        hands.click(tree, point.x, point.y);
    }
    static LRESULT count(HWND tree) { return SendMessageW(tree, TVM_GETCOUNT, 0, 0); }
};

} // namespace brx::checks
