#include "forms/tree_view.h"

#include "common/error.h"

namespace brx {

namespace {

std::string line_of(const TreeNode& node) {
    const char sign = node.expanded() ? '-' : node.child() ? '+' : ' ';
    return std::string(static_cast<std::size_t>(TreeView::depth(node)) * 2, ' ') + sign + node.text();
}

} // namespace

TreeView::TreeView(Container& container, const char* name, const TreeViewDesign& design)
    : Control(container, name, window_look_of(design)), design_(design) {}

TreeNode& TreeView::insert(TreeNode* parent, const std::string& key, const std::string& text) {
    if (!key.empty() && by_key_.contains(key)) throw Error(error::key_not_unique);
    const int index = static_cast<int>(nodes_.size()) + 1;
    nodes_.push_back(std::unique_ptr<TreeNode>(new TreeNode(index, key, text, parent)));
    TreeNode& node = *nodes_.back();
    if (!key.empty()) by_key_.emplace(node.key_, &node);
    TreeNode*& first = parent ? parent->first_child_ : first_;
    TreeNode*& last = parent ? parent->last_child_ : last_;
    node.previous_ = last;
    (last ? last->next_ : first) = &node;
    last = &node;
    note(Change::Kind::added, index);
    return node;
}

TreeNode& TreeView::node(const std::string& key) const {
    const auto found = by_key_.find(key);
    if (found == by_key_.end()) throw Error(error::element_not_found);
    return *found->second;
}

TreeNode& TreeView::node(int index) const {
    TreeNode* const found = find(index);
    if (!found) throw Error(error::index_out_of_bounds);
    return *found;
}

TreeNode* TreeView::find(int index) const {
    if (index < 1 || static_cast<std::size_t>(index) > nodes_.size()) return nullptr;
    return nodes_[static_cast<std::size_t>(index) - 1].get();
}

void TreeView::remove(TreeNode& node) {
    for (TreeNode* each = selected_; each; each = each->parent_) {
        if (each != &node) continue;
        TreeNode* const heir = node.next_ ? node.next_ : node.previous_ ? node.previous_ : node.parent_;
        select(heir);
        break;
    }
    note(Change::Kind::removed, node.index_);
    unlink(node);
    forget(node);
}

void TreeView::unlink(TreeNode& node) {
    TreeNode*& first = node.parent_ ? node.parent_->first_child_ : first_;
    TreeNode*& last = node.parent_ ? node.parent_->last_child_ : last_;
    (node.previous_ ? node.previous_->next_ : first) = node.next_;
    (node.next_ ? node.next_->previous_ : last) = node.previous_;
    if (node.parent_ && !node.parent_->first_child_) node.parent_->expanded_ = false;
}

/// Level after level, however deep the tree is.
void TreeView::forget(TreeNode& node) {
    std::vector<TreeNode*> gone{&node};
    while (!gone.empty()) {
        TreeNode* const each = gone.back();
        gone.pop_back();
        for (TreeNode* child = each->first_child_; child; child = child->next_) gone.push_back(child);
        if (!each->key_.empty()) by_key_.erase(each->key_);
        nodes_[static_cast<std::size_t>(each->index_) - 1].reset();
    }
}

void TreeView::drop_all() {
    by_key_.clear();
    nodes_.clear();
    first_ = last_ = selected_ = nullptr;
}

void TreeView::clear() {
    if (nodes_.empty()) return;
    if (selected_) changed(Aspect::selection);
    drop_all();
    changes_.clear();
    note(Change::Kind::cleared, 0);
}

void TreeView::select(TreeNode* node) {
    if (node == selected_) return;
    selected_ = node;
    changed(Aspect::selection);
}

void TreeView::bring_into_view(const TreeNode& node) {
    std::vector<TreeNode*> closed;
    for (TreeNode* around = node.parent_; around; around = around->parent_)
        if (!around->expanded_) closed.push_back(around);
    for (auto each = closed.rbegin(); each != closed.rend(); ++each) expand(**each);
}

void TreeView::note(Change::Kind kind, int index) {
    // Nobody reads the changes of a tree that is not on the screen yet; the first look is at everything.
    if (!peer()) return;
    changes_.push_back({kind, index});
    changed(Aspect::lines);
}

bool TreeView::in_view(const TreeNode& node) {
    for (const TreeNode* around = node.parent(); around; around = around->parent())
        if (!around->expanded()) return false;
    return true;
}

int TreeView::depth(const TreeNode& node) {
    int depth = 0;
    for (const TreeNode* around = node.parent(); around; around = around->parent()) ++depth;
    return depth;
}

TreeNode* TreeView::next_in_view(const TreeNode& node) {
    if (node.expanded()) return node.child();
    const TreeNode* each = &node;
    while (each && !each->next()) each = each->parent();
    return each ? each->next() : nullptr;
}

bool TreeView::user_click(TreeNode& node) {
    return in_view(node) && by_person([&] {
               select(&node);
               if (design_.NodeClick) design_.NodeClick(node);
               fire(design_.Click);
           });
}

bool TreeView::user_select(TreeNode& node) {
    if (&node == selected_) return true;
    return in_view(node) && by_person([&] {
               select(&node);
               if (design_.NodeClick) design_.NodeClick(node);
           });
}

bool TreeView::user_expand(TreeNode& node) {
    if (node.expanded_) return true;
    return in_view(node) && node.first_child_ && by_person([&] { expand(node); });
}

bool TreeView::user_collapse(TreeNode& node) {
    if (!node.expanded_) return true;
    return in_view(node) && by_person([&] { collapse(node); });
}

bool TreeView::user_toggle(TreeNode& node) {
    return in_view(node) && node.first_child_ && by_person([&] {
               node.expanded_ ? collapse(node) : expand(node);
               // Where the handler has taken the tree away, the mouse is on it no more.
               if (form().loaded() && takes_input() && shows()) fire(design_.Click);
           });
}

void TreeView::expand(TreeNode& node) {
    const int index = node.index_;
    if (design_.Expand) design_.Expand(node);
    // The handler may have removed it, or all that there was to show.
    TreeNode* const still = find(index);
    if (still && still->first_child_) open(*still, true);
}

void TreeView::collapse(TreeNode& node) {
    open(node, false);
    for (TreeNode* each = selected_; each; each = each->parent_)
        if (each == &node) return select(&node);
}

void TreeView::open(TreeNode& node, bool expanded) {
    node.expanded_ = expanded;
    note(expanded ? Change::Kind::expanded : Change::Kind::collapsed, node.index_);
}

void TreeView::reset() {
    Control::reset();
    tree_look_ = {};
    drop_all();
    forget_changes();
}

void TreeView::read_content(Aspect aspects, Reading& into, int most_lines) const {
    if (!has(aspects, Aspect::lines | Aspect::selection)) return;
    const bool lines_too = has(aspects, Aspect::lines);
    if (lines_too) into.lines.clear();
    into.text = selected_ ? selected_->text() : std::string();
    into.selected = -1;
    int row = 0;
    for (const TreeNode* each = first_; each; each = next_in_view(*each), ++row) {
        if (each == selected_) into.selected = row;
        if (lines_too && row < most_lines) into.lines.push_back(line_of(*each));
    }
    into.count = row;
}

} // namespace brx
