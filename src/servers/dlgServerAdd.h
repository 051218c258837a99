#pragma once

#include "common/common_tools.h"
#include "forms/button.h"
#include "forms/label.h"
#include "forms/list_control.h"
#include "forms/text_box.h"

#include <cstdint>
#include <optional>

namespace brx {

/// Finds the OPC servers of a network node and adds the chosen one to the host's collection.
class dlgServerAdd : public Form {
public:
    explicit dlgServerAdd(Environment& environment);

    void set_servers(const hlxOPCServersPtr& servers) { servers_ = servers; }

    /// True once the person has confirmed and the server is connected.
    bool OKPressed() const { return ok_pressed_; }
    void set_OKPressed(bool pressed) { ok_pressed_ = pressed; }
    /// The chosen server's program identifier.
    const std::string& ServerName() const { return server_name_; }
    void set_ServerName(const std::string& server_name) { server_name_ = server_name; }
    /// The node that it was found on; "" for the local computer.
    const std::string& Node() const { return node_; }
    void set_Node(const std::string& node) { node_ = node; }
    /// The position of the added entry in the host's collection; 0 before.
    std::int16_t added_server_index() const { return added_server_index_; }

private:
    // clang-format off
    Label   Label1           {*this, "Label1",            {.place = {11, 15, 88, 15}, .caption = "&A. Node:", .tab = 1}};
    TextBox txtNode          {*this, "txtNode",           {.place = {107, 11, 207, 23}, .tab = 2, .takes_enter = true,
                                                           .Change = [this] { txtNode_Change(); },
                                                           .KeyPress = [this](auto& key) { txtNode_KeyPress(key); },
                                                           .GotFocus = [this] { txtNode_GotFocus(); }}};
    Button  cmdRefreshList   {*this, "cmdRefreshList",    {.place = {321, 11, 98, 23}, .caption = "&B. Refresh List",
                                                           .tab = 3, .Click = [this] { cmdRefreshList_Click(); }}};
    Label   Label2           {*this, "Label2",            {.place = {11, 45, 408, 15}, .caption = "&C. OPC Servers:",
                                                           .tab = 4}};
    ListBox lstOPCServers    {*this, "lstOPCServers",     {.place = {11, 63, 408, 169}, .tab = 5,
                                                           .Click = [this] { lstOPCServers_Click(); },
                                                           .DblClick = [this] { lstOPCServers_DblClick(); }}};
    Label   Label4           {*this, "Label4",            {.place = {11, 243, 92, 15}, .caption = "Selected Server:",
                                                           .tab = 6}};
    Label   lblSelectedServer{*this, "lblSelectedServer", {.place = {107, 243, 312, 15}, .tab = 7,
                                                           .mnemonic = false}};
    Button  bnOK             {*this, "bnOK",              {.place = {262, 271, 75, 23}, .caption = "OK", .tab = 8,
                                                           .enabled = false, .is_default = true,
                                                           .Click = [this] { bnOK_Click(); }}};
    Button  bnCancel         {*this, "bnCancel",          {.place = {344, 271, 75, 23}, .caption = "&Cancel",
                                                           .tab = 9, .is_cancel = true,
                                                           .Click = [this] { bnCancel_Click(); }}};
    // clang-format on

    void Form_Load() override;
    void Form_Unload() override;
    void cmdRefreshList_Click();
    void txtNode_Change();
    void txtNode_KeyPress(std::int32_t key_ascii);
    void txtNode_GotFocus();
    void lstOPCServers_Click();
    void lstOPCServers_DblClick();
    void bnOK_Click();
    void bnCancel_Click();

    /// Whether no entry of the collection is the chosen server; none when that could not be found out.
    std::optional<bool> NotInColl(const hlxOPCServersPtr& servers);
    bool is_chosen(hlxOPCServer& entry, const std::string& node) const;
    bool ConnectServer();

    Variant FindServers(const std::string& node);

    CommonTools tools_;
    hlxOPCServersPtr servers_;
    hlxOPCServerPtr entry_;
    std::string last_node_;
    bool ok_pressed_ = false;
    std::string server_name_;
    std::string node_;
    std::int32_t count_before_ = 0; ///< of the entries that were looked through for the chosen server
    std::int16_t added_server_index_ = 0;
};

} // namespace brx
