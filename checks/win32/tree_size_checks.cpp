#include "trees.h"

namespace brx::checks {

namespace {

std::string branch_name(int i) { return "Branch " + std::to_string(i) + " of the plant"; }

} // namespace

TEST_F(TreeTest, FiftyThousandBranchesAreItemsAndWhatStandsForTheirChildrenIsNot) {
    TreeForm form(environment);
    show_tree(form, [&](Hands& hands, HWND tree) {
        run(hands, form, [&] {
            form.Tree.clear();
            for (int node = 0; node < 50'000; ++node)
                form.Tree.add_child(form.Tree.add(branch_name(node), branch_name(node)), "", "xxx");
        });
        EXPECT_EQ(count(tree), 50'000);
    });
}

TEST_F(TreeTest, ABranchOfTenThousandShowsThemAllWhenItIsOpened) {
    TreeForm form(environment);
    show_tree(form, [&](Hands& hands, HWND tree) {
        form.on_expand = [&](TreeNode& node) {
            form.Tree.remove(*node.child());
            for (int i = 0; i < 10'000; ++i)
                form.Tree.add_child(form.Tree.add_child(node, branch_name(i), branch_name(i)), "", "XXX");
        };
        run(hands, form, [&] {
            form.Tree.clear();
            form.Tree.add_child(form.Tree.add("root", "Root"), "", "xxx");
        });
        hands.run([&] { form.Tree.user_expand(*form.Tree.first()); });
        EXPECT_EQ(count(tree), 10'001);
    });
}

} // namespace brx::checks
