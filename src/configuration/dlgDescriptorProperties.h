#pragma once

#include "common/common_tools.h"
#include "forms/button.h"
#include "forms/label.h"
#include "forms/text_box.h"

#include <cstdint>
#include <optional>
#include <string>

namespace brx {

/// Edits which value one descriptor takes: its item and its group. Each is a name kept in the database or,
/// written as (%identifier), an OPC item.
class dlgDescriptorProperties : public Form {
public:
    explicit dlgDescriptorProperties(Environment& environment);

    /// Where names are looked up.
    void set_Database(const hlxDatabasePtr& database) { database_ = database; }
    /// Whose server and group OPC items are chosen from.
    void set_Configuration(const hlxOPCConfigurationPtr& configuration) { configuration_ = configuration; }
    /// The descriptor's kind, 0 to 8.
    void set_DescriptorType(std::int32_t type) { type_ = type; }
    const std::string& DescriptorItemName() const { return item_name_; }
    void set_DescriptorItemName(const std::string& name) { item_name_ = name; }
    const std::string& DescriptorGroupName() const { return group_name_; }
    void set_DescriptorGroupName(const std::string& name) { group_name_ = name; }
    /// True only after OK.
    bool OKPressed() const { return ok_pressed_; }

private:
    // clang-format off
    Label   lblGroup  {*this, "lblGroup",   {.place = {11, 15, 60, 15}, .caption = "&A. Group:", .tab = 1}};
    TextBox txtGroup  {*this, "txtGroup",   {.place = {75, 11, 272, 23}, .tab = 2,
                                             .Change = [this] { txtGroup_Change(); }}};
    Button  bnGroup   {*this, "bnGroup",    {.place = {347, 11, 23, 23}, .caption = "...",
                                             .accessible_name = "Browse the server for the group's item", .tab = 3,
                                             .Click = [this] { bnGroup_Click(); }}};
    Label   lblGeneral{*this, "lblGeneral", {.place = {11, 45, 60, 15}, .caption = "&B. Item:", .tab = 4}};
    TextBox txtItem   {*this, "txtItem",    {.place = {75, 41, 272, 23}, .tab = 5,
                                             .Change = [this] { txtItem_Change(); }}};
    Button  bnItem    {*this, "bnItem",     {.place = {347, 41, 23, 23}, .caption = "...",
                                             .accessible_name = "Browse the server for an item", .tab = 6,
                                             .Click = [this] { bnItem_Click(); }}};
    Button  bnSelect  {*this, "bnSelect",   {.place = {75, 71, 180, 23}, .caption = "&C. Select from Database...", .tab = 7,
                                             .Click = [this] { bnSelect_Click(); }}};
    Button  bnOK      {*this, "bnOK",       {.place = {213, 105, 75, 23}, .caption = "OK", .tab = 8, .enabled = false,
                                             .is_default = true, .Click = [this] { bnOK_Click(); }}};
    Button  bnCancel  {*this, "bnCancel",   {.place = {295, 105, 75, 23}, .caption = "&Cancel", .tab = 9,
                                             .is_cancel = true, .Click = [this] { bnCancel_Click(); }}};
    // clang-format on

    void Form_Load() override;
    void Form_Unload() override;
    void txtGroup_Change();
    void txtItem_Change();
    void bnGroup_Click();
    void bnItem_Click();
    void bnSelect_Click();
    void bnOK_Click();
    void bnCancel_Click();

    void ParceItem(const std::string& text, std::string& result);
    void SelectOPCItem(std::string& item_id, bool& ok);
    void AddOPCItem(const ObjectPtr& server, const OPCGroupPtr& group, const std::string& item_id, bool& ok);

    void SelectPart();
    void SelectProcess();
    void SelectJob();
    void SelectShift();
    void SelectDescriptor();
    std::int32_t GetPartID(const std::string& name);
    std::int32_t GetPtgpId(const std::string& name);
    std::optional<std::string> GetPtgpName(std::int32_t id);
    std::int32_t GetPrcsID(const std::string& name);
    std::int32_t GetPrgpId(const std::string& name);
    std::optional<std::string> GetPrgpName(std::int32_t id);
    std::int32_t GetJobID(const std::string& name);
    std::int32_t GetJbgpId(const std::string& name);
    std::optional<std::string> GetJbgpName(std::int32_t id);
    std::int32_t GetShftID(const std::string& name);
    std::int32_t GetShgpId(const std::string& name);
    std::optional<std::string> GetShgpName(std::int32_t id);
    std::int32_t GetDescID(const std::string& name, std::int32_t group_id);
    std::int32_t GetDsgpId(const std::string& name);
    std::optional<std::string> GetDsgpName(std::int32_t id);

    void browse_into(TextBox& box);
    void allow_confirming();
    using GroupName = std::optional<std::string> (dlgDescriptorProperties::*)(std::int32_t id);
    void pick(const char* selection, std::int32_t id, std::int32_t group_id, GroupName name_of_group);
    /// 0, and "" below, when the database has no such record.
    std::int32_t find_id(const char* procedure, const char* record, const std::string& name,
                         std::optional<std::int32_t> group_id = std::nullopt);
    /// None when it could not be looked up, which has been reported.
    std::optional<std::string> find_name(const char* procedure, const char* record, std::int32_t id);

    CommonTools tools_;
    hlxDatabasePtr database_;
    hlxOPCConfigurationPtr configuration_;
    std::int32_t type_ = 0;
    std::string item_name_;
    std::string group_name_;
    bool ok_pressed_ = false;
};

} // namespace brx
