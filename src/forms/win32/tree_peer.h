#pragma once

#include "forms/tree_view.h"
#include "forms/win32/control_peer.h"

#include <windows.h>

#include <commctrl.h>

#include <optional>
#include <vector>

namespace brx {

/// A tree as the system's. It never opens, closes or selects anything on its own: it says what a person did,
/// and shows what the control makes of it.
class TreePeer : public ControlPeer {
public:
    TreePeer(FormWindow& window, TreeView& tree);
    LRESULT notified_of(NMHDR& notification) override;

protected:
    void show(Aspect aspects) override;
    LRESULT handle_message(UINT message, WPARAM wparam, LPARAM lparam) override;

private:
    class Frozen;

    void show_style();
    void show_colors();
    void show_nodes();
    void show_change(const TreeView::Change& change);
    void show_expansion(const TreeNode& node);
    void show_selection();
    bool belongs_on_screen(const TreeNode& node) const;
    void insert(const TreeNode& node);
    void remove(int index);
    void remove_all();

    void press(POINT point, bool twice);
    bool take_key(WPARAM key);
    bool is_searching() const;
    bool toggle(TreeNode& node, bool expanded);
    bool take_expand(WPARAM action, HTREEITEM item);

    /// Null when the node has none.
    HTREEITEM item_of(const TreeNode& node) const;
    /// Null also for a node that the tree has no more.
    TreeNode* node_of(HTREEITEM item) const;
    HTREEITEM neighbour(UINT relation, HTREEITEM item = nullptr) const;
    bool shows_expanded(HTREEITEM item) const;

    TreeView& tree_;
    std::vector<HTREEITEM> items_; ///< by the node's index
    bool fresh_ = true;            ///< nothing has been shown yet
    bool own_key_ = false;         ///< the last key does something else than type
    std::optional<LONG> typed_at_; ///< when the last character was typed, as messages are timed
};

} // namespace brx
