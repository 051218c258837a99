#include "forms/tree_rows.h"

namespace brx {

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
