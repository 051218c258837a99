#include "forms/tree_rows.h"

namespace brx {

std::vector<std::string> rows_of(const TreeView& tree) {
    std::vector<std::string> rows;
    for (const TreeNode* each = tree.first(); each; each = TreeView::next_in_view(*each)) {
        const char sign = each->expanded() ? '-' : each->child() ? '+' : ' ';
        rows.push_back(std::string(static_cast<std::size_t>(TreeView::depth(*each)) * 2, ' ') + sign +
                       each->text());
    }
    return rows;
}

int row_of(const TreeView& tree, const TreeNode* node) {
    int row = 0;
    for (const TreeNode* each = tree.first(); each; each = TreeView::next_in_view(*each), ++row)
        if (each == node) return row;
    return -1;
}

TreeNode* node_at(const TreeView& tree, int row) {
    TreeNode* each = tree.first();
    for (; each && row > 0; --row) each = TreeView::next_in_view(*each);
    return row == 0 ? each : nullptr;
}

} // namespace brx
