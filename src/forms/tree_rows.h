#pragma once

#include "forms/tree_view.h"

namespace brx {

// A tree as a person reads it: the nodes in view, a row each, from the top down.

/// The node's row, counted from 0; -1 when it is not in view, or none.
int row_of(const TreeView& tree, const TreeNode* node);

/// Null when there is no such row.
TreeNode* node_at(const TreeView& tree, int row);

} // namespace brx
