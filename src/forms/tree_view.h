#pragma once

#include "forms/form.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace brx {

/// One node of a tree view, which owns it. It lives until it is removed.
class TreeNode {
public:
    TreeNode(const TreeNode&) = delete;
    TreeNode& operator=(const TreeNode&) = delete;

    /// Unique in the tree, compared exactly; "" for a node that is never looked up.
    const std::string& key() const { return key_; }
    const std::string& text() const { return text_; }
    /// The node's number in the tree, from 1. A number is not used again before the tree is cleared.
    int index() const { return index_; }
    /// What code keeps with the node; never shown.
    const std::string& tag() const { return tag_; }
    void set_tag(std::string tag) { tag_ = std::move(tag); }

    /// Null at the root level, and for the first or last of its kind.
    TreeNode* parent() const { return parent_; }
    TreeNode* child() const { return first_child_; } ///< the first one
    TreeNode* previous() const { return previous_; }
    TreeNode* next() const { return next_; }
    /// Whether its children show.
    bool expanded() const { return expanded_; }

private:
    friend class TreeView;
    TreeNode(int index, std::string key, std::string text, TreeNode* parent)
        : key_(std::move(key)), text_(std::move(text)), index_(index), parent_(parent) {}

    std::string key_;
    std::string text_;
    std::string tag_;
    int index_;
    bool expanded_ = false;
    TreeNode* parent_;
    TreeNode* first_child_ = nullptr;
    TreeNode* last_child_ = nullptr;
    TreeNode* previous_ = nullptr;
    TreeNode* next_ = nullptr;
};

/// Whether a click on the selected node starts editing its text. What a person edits would have nowhere to
/// go: windows never offer it.
enum class LabelEdit { automatic = 0, manual = 1 };
enum class LineStyle { tree_lines = 0, root_lines = 1 };
/// Which parts of a node show, beside its text.
enum class TreeStyle {
    text_only = 0,
    plus_minus_text = 2,
    tree_lines_text = 4,
    tree_lines_plus_minus_text = 6
};

struct TreeViewDesign {
    Place place;
    int tab = 0;
    bool enabled = true;
    bool visible = true;
    Anchor anchor = Anchor::top_left;
    std::function<void(TreeNode&)> Expand = {};    ///< just before the node's children show
    std::function<void(TreeNode&)> NodeClick = {}; ///< a person selected the node, or clicked it again
    Handler Click = {}; ///< a person clicked a node or its sign; after what that led to
};

/// A tree of named nodes, one of them selected or none.
class TreeView : public Control {
public:
    TreeView(Container& container, const char* name, const TreeViewDesign& design);

    const char* kind() const override { return "tree_view"; }
    bool focusable() const override { return true; }

    /// Adds a node behind the others of its level. Error 35602 when the tree has the key.
    TreeNode& add(const std::string& key, const std::string& text) { return insert(nullptr, key, text); }
    TreeNode& add_child(TreeNode& parent, const std::string& key, const std::string& text) {
        return insert(&parent, key, text);
    }
    /// Error 35601 when there is none.
    TreeNode& node(const std::string& key) const;
    /// Error 35600 when there is none.
    TreeNode& node(int index) const;
    /// Removes the node with all below it. When the selected one goes, its next neighbour is selected, or
    /// else the one before or the parent. Nothing fires.
    void remove(TreeNode& node);
    /// Removes every node. Nothing fires.
    void clear();

    TreeNode* first() const { return first_; }
    TreeNode* selected() const { return selected_; }
    /// Null selects none. Nothing fires.
    void select(TreeNode* node);
    /// Opens what lies around the node, so that it can be seen; Expand fires for each.
    void bring_into_view(const TreeNode& node);

    LabelEdit label_edit() const { return tree_look_.label_edit; }
    LineStyle line_style() const { return tree_look_.line_style; }
    TreeStyle style() const { return tree_look_.style; }
    void set_label_edit(LabelEdit edit) { set_look(tree_look_.label_edit, edit); }
    void set_line_style(LineStyle lines) { set_look(tree_look_.line_style, lines); }
    void set_style(TreeStyle style) { set_look(tree_look_.style, style); }

    /// Whether a person could see the node, given room: everything around it is expanded.
    static bool in_view(const TreeNode& node);
    /// How deep the node lies; 0 at the root level.
    static int depth(const TreeNode& node);
    /// The next one in view, going down; null at the end.
    static TreeNode* next_in_view(const TreeNode& node);

    /// A person clicked a node, or pressed the space bar on the selected one.
    bool user_click(TreeNode& node);
    /// A person moved the selection with the keyboard.
    bool user_select(TreeNode& node);
    /// A person opened or closed a node with the keyboard. A selection below a closed node moves up to it.
    bool user_expand(TreeNode& node);
    bool user_collapse(TreeNode& node);
    /// A person pressed the mouse on the sign before a node, or a second time on the node: it opens or
    /// closes, and Click follows.
    bool user_toggle(TreeNode& node);

    /// What happened to the nodes since the last call, in order.
    struct Change {
        enum class Kind : std::uint8_t { added, removed, expanded, collapsed, cleared } kind;
        int index; ///< of the node
    };
    std::vector<Change> take_changes() { return std::exchange(changes_, {}); }
    /// The same node while it is there; null afterwards.
    TreeNode* find(int index) const;

    void forget_changes() override { take_changes(); }
    void reset() override;

protected:
    void read_content(Aspect aspects, Reading& into, int most_lines) const override;

private:
    struct TreeLook {
        LabelEdit label_edit = LabelEdit::automatic;
        LineStyle line_style = LineStyle::tree_lines;
        TreeStyle style = TreeStyle::tree_lines_plus_minus_text;
    };
    template <class Value> void set_look(Value& value, Value wanted) {
        if (value == wanted) return;
        value = wanted;
        changed(Aspect::value);
    }
    TreeNode& insert(TreeNode* parent, const std::string& key, const std::string& text);
    void unlink(TreeNode& node);
    void forget(TreeNode& node);
    void note(Change::Kind kind, int index);
    void open(TreeNode& node, bool expanded);
    void expand(TreeNode& node);
    void collapse(TreeNode& node);
    void drop_all();

    TreeViewDesign design_;
    TreeLook tree_look_;
    std::deque<std::unique_ptr<TreeNode>> nodes_; ///< by index - 1; null once removed
    std::unordered_map<std::string_view, TreeNode*> by_key_;
    TreeNode* first_ = nullptr;
    TreeNode* last_ = nullptr;
    TreeNode* selected_ = nullptr;
    std::vector<Change> changes_;
};

} // namespace brx
