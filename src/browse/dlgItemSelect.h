#pragma once

#include "common/model/opc_automation.h"
#include "forms/button.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/list_control.h"
#include "forms/text_box.h"
#include "forms/tree_view.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace brx {

/// Lets a person pick one item of an OPC server's address space, or type its identifier.
class dlgItemSelect : public Form {
public:
    explicit dlgItemSelect(Environment& environment);

    /// The connected server to browse.
    const OPCServerPtr& OPCServer() const { return server_; }
    void set_OPCServer(const OPCServerPtr& server) { server_ = server; }
    /// A group of that server, which says whether an item can be had. Without one none is ever accepted.
    const OPCGroupPtr& OPCGroup() const { return group_; }
    void set_OPCGroup(const OPCGroupPtr& group) { group_ = group; }
    /// The item identifier: to start with, and once the person has confirmed the accepted one.
    const std::string& Leaf() const { return leaf_; }
    void set_Leaf(const std::string& leaf) { leaf_ = leaf; }
    /// True once the person has confirmed an item that the server knows.
    bool OkClicked() const { return ok_clicked_; }
    void set_OkClicked(bool clicked) { ok_clicked_ = clicked; }

    /// With the flag set, shows `Leaf` in the text box if the server has any leaf, and finds nothing.
    /// Otherwise tells whether the server has it, in whatever letter case.
    bool SearchForPath(bool SelectFlag);

private:
    static constexpr Anchor tree_anchor = Anchor::stretch_half_width | Anchor::stretch_height;
    static constexpr Anchor last_row = Anchor::bottom | Anchor::right;

    // clang-format off
    Label    Label1     {*this, "Label1",      {.place = {11, 15, 92, 15}, .caption = "Server Name:", .tab = 1}};
    TextBox  txtServer  {*this, "txtServer",   {.place = {107, 11, 442, 23}, .tab = 2, .display_only = true,
                                                .anchor = Anchor::stretch_width}};
    Label    Label2     {*this, "Label2",      {.place = {11, 45, 265, 15}, .caption = "&A. Groups:", .tab = 3}};
    TreeView TrView     {*this, "TrView",      {.place = {11, 63, 265, 265}, .tab = 4, .anchor = tree_anchor,
                                                .Expand = [this](TreeNode& node) { TrView_Expand(node); },
                                                .NodeClick = [this](TreeNode& node) { TrView_NodeClick(node); },
                                                .Click = [this] { TrView_Click(); }}};
    Panel    picTrView  {*this, "picTrView",   {.place = {11, 63, 265, 265}, .anchor = tree_anchor, .edge = true}};
    Label    Label3     {*this, "Label3",      {.place = {283, 45, 266, 15}, .caption = "&B. Items:", .tab = 5,
                                                .anchor = Anchor::middle}};
    ListBox  lstItem    {*this, "lstItem",     {.place = {283, 63, 266, 265}, .tab = 6,
                                                .anchor = Anchor::middle | tree_anchor,
                                                .Click = [this] { lstItem_Click(); },
                                                .DblClick = [this] { lstItem_DblClick(); }}};
    Label    lblNotice  {*this, "lblNotice",   {.place = {11, 332, 538, 15}, .mnemonic = false,
                                                .anchor = Anchor::bottom | Anchor::stretch_width}};
    Label    Label4     {*this, "Label4",      {.place = {11, 357, 538, 15},
                                                .caption = "&C. Item (Examples: somegroup.someitem or [mytopic]myitem)",
                                                .tab = 7, .anchor = Anchor::bottom | Anchor::stretch_width}};
    TextBox  txtFullPath{*this, "txtFullPath", {.place = {11, 375, 538, 23}, .tab = 8,
                                                .anchor = Anchor::bottom | Anchor::stretch_width,
                                                .Change = [this] { txtFullPath_Change(); },
                                                .KeyPress = [this](auto&) { txtFullPath_KeyPress(); }}};
    Button   cmdRefresh {*this, "cmdRefresh",  {.place = {11, 409, 75, 23}, .caption = "&Refresh", .tab = 9,
                                                .anchor = Anchor::bottom, .Click = [this] { cmdRefresh_Click(); }}};
    Label    lblFind    {*this, "lblFind",     {.place = {97, 413, 34, 15}, .caption = "&Find:", .tab = 10,
                                                .visible = false, .anchor = Anchor::bottom}};
    TextBox  txtFind    {*this, "txtFind",     {.place = {135, 409, 150, 23}, .tab = 11, .visible = false,
                                                .anchor = Anchor::bottom, .Change = [this] { txtFind_Change(); }}};
    Label    lblFound   {*this, "lblFound",    {.place = {292, 413, 96, 15}, .mnemonic = false, .visible = false,
                                                .anchor = Anchor::bottom}};
    Button   bnOK       {*this, "bnOK",        {.place = {392, 409, 75, 23}, .caption = "OK", .tab = 12,
                                                .is_default = true, .anchor = last_row,
                                                .Click = [this] { bnOK_Click(); }}};
    Button   bnCancel   {*this, "bnCancel",    {.place = {474, 409, 75, 23}, .caption = "&Cancel", .tab = 13,
                                                .is_cancel = true, .anchor = last_row,
                                                .Click = [this] { bnCancel_Click(); }}};
    // clang-format on

    void Form_Load() override;
    void Form_Unload() override;
    void cmdRefresh_Click();
    void TrView_Expand(TreeNode& Node);
    void TrView_NodeClick(TreeNode& Node);
    void TrView_Click();
    void lstItem_Click();
    void lstItem_DblClick();
    void txtFullPath_Change();
    void txtFullPath_KeyPress();
    void bnOK_Click();
    void bnCancel_Click();
    void txtFind_Change();
    bool takes(Shortcut which) override;
    /// It closes the line in which one looks for something first.
    bool escape_leaves() const override { return !txtFind.visible() && Form::escape_leaves(); }

    void ConnectServer();
    void BuildGroupList();
    void BuildNodes(const std::string& ParentKey, int ParentIndex);
    void BuildLeaves(const std::string& Key, int Index);
    void GetAllLeaves();
    bool CheckItem();
    bool ValidateItem(const std::string& ItemID);

    enum class Towards { here, next, previous };
    void show_find_line(bool shown);
    struct Hits;
    template <class NameOf>
    static Hits find_hits(const std::string& text, int count, int selected, Towards where, NameOf&& name_of);
    void find(Towards where);
    /// What is told of the hits, "" for none.
    std::string find_item(Towards where);
    std::string find_group(Towards where);
    std::string told(const Hits& hits) const;
    std::vector<TreeNode*> groups() const;
    /// What only makes a branch show that it can be opened, until its children are read.
    static bool is_placeholder(const TreeNode& node);

    void show_nothing_to_browse();
    void show_browsing();
    /// A part of the address space that is read at one go.
    struct Part {
        const char* of;    ///< what it consists of
        const char* again; ///< how a person has it read again
    };
    static constexpr Part groups_part = {"groups", "Refresh"};
    static constexpr Part items_of_group = {"items", "a click on the group"};
    static constexpr Part all_items = {"items", "Refresh"};
    /// A procedure that reads it. When that is stopped before there is anything of it, this is told of.
    void reads(const char* procedure, const Part& part, const std::function<void()>& body);
    /// Goes through it, and tells of it when that is stopped.
    void read_each(const Part& part, std::int32_t count, const std::function<void(std::int32_t)>& step);
    void list_items(const Part& part, std::int32_t count);
    /// A step whose error is ignored, but for telling that the server does not answer.
    void ignoring(const std::function<void()>& step);
    /// Nothing is known of the items then.
    void note_of_groups(const std::string& notice);
    void note_of_items(const std::string& notice);
    void note_of(const Part& part, const std::string& notice);
    void set_path(const std::string& text);

    OPCServerPtr server_;
    OPCGroupPtr group_;
    OPCBrowserPtr browser_;
    std::string server_title_;
    std::string groups_notice_; ///< until they are read again
    bool finds_groups_ = false; ///< by what was typed last, not items
    std::string selected_leaf_;
    std::string leaf_;
    bool ok_clicked_ = false;
};

} // namespace brx
