#include "forms/win32/tree_peer.h"

#include "common/error.h"
#include "forms/win32/dpi.h"
#include "forms/win32/form_window.h"

#include <utility>

namespace brx {

namespace {

constexpr int indent = 19; ///< of a level, at 96 DPI
constexpr DWORD changing_styles = TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT;

DWORD tree_style(const TreeView& tree) {
    DWORD style = 0;
    if (tree.style() == TreeStyle::plus_minus_text || tree.style() == TreeStyle::tree_lines_plus_minus_text)
        style |= TVS_HASBUTTONS;
    if (tree.style() == TreeStyle::tree_lines_text || tree.style() == TreeStyle::tree_lines_plus_minus_text)
        style |= TVS_HASLINES;
    if (tree.line_style() == LineStyle::root_lines) style |= TVS_LINESATROOT;
    return style;
}

} // namespace

/// For its lifetime the tree is not drawn, and does not measure what is put into it.
class TreePeer::Frozen {
public:
    explicit Frozen(const TreePeer& peer)
        : peer_(peer), visible_((GetWindowLongW(peer.handle(), GWL_STYLE) & WS_VISIBLE) != 0) {
        peer_.send(WM_SETREDRAW, FALSE);
    }
    ~Frozen() {
        peer_.send(WM_SETREDRAW, TRUE);
        // Drawing again may have made it visible.
        if (!visible_) ShowWindow(peer_.handle(), SW_HIDE);
        InvalidateRect(peer_.handle(), nullptr, TRUE);
    }
    Frozen(const Frozen&) = delete;
    Frozen& operator=(const Frozen&) = delete;

private:
    const TreePeer& peer_;
    bool visible_;
};

TreePeer::TreePeer(FormWindow& window, TreeView& tree)
    : ControlPeer(window, tree,
                  {WC_TREEVIEWW, TVS_SHOWSELALWAYS | TVS_DISABLEDRAGDROP | WS_TABSTOP | tree_style(tree),
                   WS_EX_CLIENTEDGE, true}),
      tree_(tree) {}

void TreePeer::show(Aspect aspects) {
    ControlPeer::show(aspects); // first, for a tree scrolls to its selection within the place it has
    if (has(aspects, Aspect::place)) send(TVM_SETINDENT, static_cast<WPARAM>(scaled(indent, window().dpi())));
    if (has(aspects, Aspect::value)) show_style();
    if (has(aspects, Aspect::colors)) show_colors();
    if (has(aspects, Aspect::lines)) show_nodes();
    // Where nodes have come and gone the tree has selected others on its own.
    if (has(aspects, Aspect::lines | Aspect::selection)) show_selection();
}

void TreePeer::show_style() {
    const auto before = static_cast<DWORD>(GetWindowLongW(handle(), GWL_STYLE));
    const DWORD wanted = (before & ~changing_styles) | tree_style(tree_);
    if (wanted == before) return;
    SetWindowLongW(handle(), GWL_STYLE, static_cast<LONG>(wanted));
    InvalidateRect(handle(), nullptr, TRUE);
}

void TreePeer::show_colors() {
    // On its own it follows the system's colours for windows, also while it is disabled.
    const auto rgb = [](Color color, Color usual) {
        return color == usual ? LPARAM{-1} : static_cast<LPARAM>(Palette::rgb(color));
    };
    send(TVM_SETBKCOLOR, 0, rgb(tree_.back_color(), color::window));
    send(TVM_SETTEXTCOLOR, 0, rgb(tree_.fore_color(), color::window_text));
}

void TreePeer::show_nodes() {
    const std::vector<TreeView::Change> changes = tree_.take_changes();
    const Frozen frozen(*this);
    if (!std::exchange(fresh_, false)) {
        for (const TreeView::Change& change : changes) show_change(change);
        return;
    }
    for (const TreeNode* each = tree_.first(); each; each = TreeView::next_in_view(*each)) insert(*each);
    for (const TreeNode* each = tree_.first(); each; each = TreeView::next_in_view(*each))
        if (each->expanded()) show_expansion(*each);
}

/// Changes are shown as far as they still hold: later ones of the same bundle have happened already.
void TreePeer::show_change(const TreeView::Change& change) {
    const TreeNode* const node = tree_.find(change.index);
    switch (change.kind) {
    case TreeView::Change::Kind::added:
        if (node && belongs_on_screen(*node)) insert(*node);
        break;
    case TreeView::Change::Kind::removed:
        remove(change.index);
        break;
    case TreeView::Change::Kind::expanded:
    case TreeView::Change::Kind::collapsed:
        if (node) show_expansion(*node);
        break;
    case TreeView::Change::Kind::cleared:
        remove_all();
        break;
    }
}

/// Children become items when their parent is first opened, so that what stands for children that are not
/// known yet is never to be seen. Those that come later follow the ones that are there.
bool TreePeer::belongs_on_screen(const TreeNode& node) const {
    return !node.parent() || (node.previous() && item_of(*node.previous()));
}

void TreePeer::show_expansion(const TreeNode& node) {
    const HTREEITEM item = item_of(node);
    if (!item) return;
    if (node.expanded())
        for (const TreeNode* child = node.child(); child; child = child->next())
            if (!item_of(*child)) insert(*child);
    if (shows_expanded(item) != node.expanded())
        send(TVM_EXPAND, node.expanded() ? TVE_EXPAND : TVE_COLLAPSE, reinterpret_cast<LPARAM>(item));
}

void TreePeer::insert(const TreeNode& node) {
    // Behind the one before it: a tree finds its last one only by going through all of them.
    std::wstring text = to_wide(node.text());
    TVINSERTSTRUCTW wanted{};
    wanted.hParent = node.parent() ? item_of(*node.parent()) : TVI_ROOT;
    wanted.hInsertAfter = node.previous() ? item_of(*node.previous()) : TVI_FIRST;
    wanted.item.mask = TVIF_TEXT | TVIF_PARAM | TVIF_CHILDREN;
    wanted.item.pszText = text.data();
    wanted.item.cChildren = I_CHILDRENCALLBACK;
    wanted.item.lParam = node.index();
    const auto item =
        reinterpret_cast<HTREEITEM>(send_directly(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&wanted)));
    if (!item) throw Error(error::out_of_memory);
    const auto index = static_cast<std::size_t>(node.index());
    if (items_.size() <= index) items_.resize(index + 1);
    items_[index] = item;
}

void TreePeer::remove(int index) {
    if (static_cast<std::size_t>(index) >= items_.size()) return;
    const HTREEITEM item = std::exchange(items_[static_cast<std::size_t>(index)], nullptr);
    if (!item) return;
    const HTREEITEM parent = neighbour(TVGN_PARENT, item);
    send_directly(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(item));
    if (!parent || neighbour(TVGN_CHILD, parent)) return;
    // What has nothing below it any more is no longer open.
    TVITEMW closed{};
    closed.mask = TVIF_STATE | TVIF_HANDLE;
    closed.hItem = parent;
    closed.stateMask = TVIS_EXPANDED;
    send_directly(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&closed));
}

void TreePeer::remove_all() {
    send_directly(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
    items_.clear();
}

void TreePeer::show_selection() {
    // Selecting what does not show would open everything around it.
    const TreeNode* const selected = tree_.selected();
    const HTREEITEM wanted = selected && TreeView::in_view(*selected) ? item_of(*selected) : nullptr;
    if (neighbour(TVGN_CARET) != wanted) send(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(wanted));
}

HTREEITEM TreePeer::item_of(const TreeNode& node) const {
    const auto index = static_cast<std::size_t>(node.index());
    return index < items_.size() ? items_[index] : nullptr;
}

TreeNode* TreePeer::node_of(HTREEITEM item) const {
    if (!item) return nullptr;
    TVITEMW asked{};
    asked.mask = TVIF_PARAM | TVIF_HANDLE;
    asked.hItem = item;
    if (!send_directly(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&asked))) return nullptr;
    return tree_.find(static_cast<int>(asked.lParam));
}

HTREEITEM TreePeer::neighbour(UINT relation, HTREEITEM item) const {
    return reinterpret_cast<HTREEITEM>(
        send_directly(TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
}

bool TreePeer::shows_expanded(HTREEITEM item) const {
    return (send_directly(TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(item), TVIS_EXPANDED) & TVIS_EXPANDED) !=
           0;
}

} // namespace brx
