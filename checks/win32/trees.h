#pragma once

#include "desk/desk.h"

#include "desk/native_tree.h"
#include "rules/tree_form.h"

#include <commctrl.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace brx::checks {

using Rows = std::vector<std::string>;

class TreeTest : public OnWindows {
protected:
    using Story = std::function<void(Hands& hands, HWND tree)>;

    /// Shows the form, with something in its tree, while a person acts.
    void show_food(TreeForm& form, const Story& story) {
        form.on_load = [&] { form.add_food(); };
        show_tree(form, story);
    }
    void show_tree(TreeForm& form, const Story& story) {
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
