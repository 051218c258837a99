// What a person does to a tree.

#include "forms/win32/form_window.h"
#include "forms/win32/tree_peer.h"

#include <windowsx.h>

#include <utility>

namespace brx {

LRESULT TreePeer::notified_of(NMHDR& notification) {
    switch (notification.code) {
    case TVN_GETDISPINFOW: {
        TVITEMW& asked = reinterpret_cast<NMTVDISPINFOW&>(notification).item;
        const TreeNode* const node = tree_.find(static_cast<int>(asked.lParam));
        if ((asked.mask & TVIF_CHILDREN) != 0) asked.cChildren = node && node->child() ? 1 : 0;
        return 0;
    }
    case TVN_ITEMEXPANDINGW: {
        if (window().is_showing()) return FALSE;
        const auto& expanding = reinterpret_cast<const NMTREEVIEWW&>(notification);
        take_expand(expanding.action, expanding.itemNew.hItem);
        return TRUE;
    }
    case TVN_SELCHANGEDW: {
        if (window().is_showing()) return 0;
        TreeNode* const node = node_of(reinterpret_cast<const NMTREEVIEWW&>(notification).itemNew.hItem);
        if (!node || !window().deliver([&] { return tree_.user_select(*node); })) refresh(Aspect::selection);
        return 0;
    }
    default:
        return 0;
    }
}

LRESULT TreePeer::handle_message(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        press({GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)}, message == WM_LBUTTONDBLCLK);
        return 0;
    case WM_KEYDOWN:
        if (take_key(wparam)) return 0;
        break;
    case WM_CHAR:
        if (std::exchange(own_key_, false)) return 0;
        typed_at_ = GetMessageTime();
        break;
    case WM_SETFOCUS: {
        // A tree without a selection takes the first node for it.
        LRESULT result = 0;
        {
            const FormWindow::Showing echo(window());
            result = ControlPeer::handle_message(message, wparam, lparam);
        }
        refresh(Aspect::selection);
        return result;
    }
    // From tools that help people who cannot see: not everything of it is told otherwise.
    case TVM_EXPAND:
        if (window().is_showing()) break;
        return take_expand(wparam, reinterpret_cast<HTREEITEM>(lparam));
    case WM_SYSCOLORCHANGE:
        refresh(Aspect::colors);
        break;
    default:
        break;
    }
    return handle() ? ControlPeer::handle_message(message, wparam, lparam) : 0;
}

/// The mouse button goes down. Its second time opens or closes a node.
void TreePeer::press(POINT point, bool twice) {
    if (GetFocus() != handle()) SetFocus(handle());
    TVHITTESTINFO hit{};
    hit.pt = point;
    send(TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    TreeNode* const node = node_of(hit.hItem);
    if (!node) return;
    const bool on_node = (hit.flags & TVHT_ONITEM) != 0;
    if ((hit.flags & TVHT_ONITEMBUTTON) != 0 || (on_node && twice))
        window().deliver([&] { return tree_.user_toggle(*node); });
    else if (on_node)
        window().deliver([&] { return tree_.user_click(*node); });
}

/// What a tree itself would do with these keys is more than is wanted, or nothing.
bool TreePeer::take_key(WPARAM key) {
    const bool clicks = key == VK_SPACE && !is_searching();
    own_key_ = clicks || key == VK_ADD || key == VK_SUBTRACT || key == VK_MULTIPLY;
    if (TreeNode* const selected = node_of(neighbour(TVGN_CARET))) {
        if (clicks) return window().deliver([&] { return tree_.user_click(*selected); });
        if (key != VK_MULTIPLY) return false;
        toggle(*selected, true);
        return true;
    }
    const bool moves = key >= VK_PRIOR && key <= VK_DOWN;
    TreeNode* const first = tree_.first();
    return moves && first && window().deliver([&] { return tree_.user_select(*first); });
}

/// The tree is looking for a name that is being typed, and a blank may be part of it.
bool TreePeer::is_searching() const {
    constexpr LONG pause = 1000; // ms, about where a tree begins anew
    return typed_at_ && GetMessageTime() - *typed_at_ < pause;
}

bool TreePeer::toggle(TreeNode& node, bool expanded) {
    return window().deliver([&] { return expanded ? tree_.user_expand(node) : tree_.user_collapse(node); });
}

bool TreePeer::take_expand(WPARAM action, HTREEITEM item) {
    TreeNode* const node = node_of(item);
    if (!node) return false;
    switch (action & TVE_TOGGLE) {
    case TVE_EXPAND:
        return toggle(*node, true);
    case TVE_COLLAPSE:
        return toggle(*node, false);
    default:
        return toggle(*node, !node->expanded());
    }
}

} // namespace brx
