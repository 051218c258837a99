#pragma once

#include "common/common_tools.h"
#include "common/model/configuration.h"
#include "forms/button.h"
#include "forms/label.h"
#include "forms/list_control.h"
#include "forms/text_box.h"
#include "tests/operators.h"

#include <cstdint>
#include <string>

namespace brx {

/// Sets one trigger of a collection configuration: the item watched, the operator and the value.
class dlgEvaluation : public Form {
public:
    explicit dlgEvaluation(Environment& environment);

    /// The configuration whose server and group the item belongs to.
    void set_configuration(const hlxOPCConfigurationPtr& configuration) { configuration_ = configuration; }

    /// The item's identifier; "<None>" for no item.
    const std::string& TriggerOPCItemID() const { return item_id_; }
    void set_TriggerOPCItemID(const std::string& item_id) { item_id_ = item_id; }
    /// Operator code 0 to 6. Error 6 for what has no room in 16 bits.
    std::int16_t TriggerExpression() const { return expression_; }
    void set_TriggerExpression(std::int32_t expression);
    /// The value that the item's is compared with, as the item's type.
    const Variant& TriggerValue() const { return value_; }
    void set_TriggerValue(const Variant& value) { value_ = value; }
    /// True only after a successful OK.
    bool OkClicked() const { return ok_clicked_; }
    void set_OkClicked(bool clicked) { ok_clicked_ = clicked; }
    /// True when the dialog added the chosen item to the group. It is then the caller's to remove.
    bool AddedNewItem() const { return added_new_item_; }

private:
    // clang-format off
    Label    Label1       {*this, "Label1",        {.place = {11, 15, 92, 15}, .caption = "&A. OPC Item:", .tab = 1}};
    ComboBox cboItem      {*this, "cboItem",       {.place = {107, 11, 280, 23}, .tab = 2,
                                                    .Click = [this] { txtItem_Click(); }}};
    Button   bnItem       {*this, "bnItem",        {.place = {387, 11, 23, 23}, .caption = "...",
                                                    .accessible_name = "Browse the server for an item", .tab = 3,
                                                    .Click = [this] { bnItem_Click(); }}};
    Label    Label2       {*this, "Label2",        {.place = {11, 45, 92, 15}, .caption = "&B. Expression", .tab = 4}};
    ComboBox cboExpression{*this, "cboExpression", {.place = {107, 41, 303, 23}, .tab = 5,
                                                    .Click = [this] { cboExpression_Click(); },
                                                    .Change = [this] { cboExpression_Change(); }}};
    Label    Label3       {*this, "Label3",        {.place = {11, 75, 92, 15}, .caption = "&C. Value", .tab = 6}};
    TextBox  txtValue     {*this, "txtValue",      {.place = {107, 71, 303, 23}, .tab = 7,
                                                    .KeyPress = [this](auto&) { txtValue_KeyPress(); },
                                                    .KeyUp = [this](auto) { txtValue_KeyUp(); }}};
    Button   bnOK         {*this, "bnOK",          {.place = {253, 105, 75, 23}, .caption = "OK", .tab = 8,
                                                    .is_default = true, .Click = [this] { bnOK_Click(); }}};
    Button   bnCancel     {*this, "bnCancel",      {.place = {335, 105, 75, 23}, .caption = "&Cancel", .tab = 9,
                                                    .is_cancel = true, .Click = [this] { bnCancel_Click(); }}};
    // clang-format on

    void Form_Load() override;
    void Form_Unload() override;
    void txtItem_Click();
    void bnItem_Click();
    void cboExpression_Click();
    void cboExpression_Change();
    void txtValue_KeyPress();
    void txtValue_KeyUp();
    void bnOK_Click();
    void bnCancel_Click();

    void BuildDlg();
    void EnableValueField(bool enable);
    void CheckDataType(const ObjectPtr& reached_server = nullptr);
    bool GetCalculation();
    bool SetExpressions(std::int32_t type);

    void take_item(OPCItems& items, const std::string& item_id);
    void follow_operator();
    void note_key();
    OPCItemsPtr items_of(const ObjectPtr& group);

    CommonTools tools_;
    hlxOPCConfigurationPtr configuration_;
    std::string item_id_;
    std::int16_t expression_ = 0;
    Variant value_;
    bool ok_clicked_ = false;
    bool added_new_item_ = false;
    std::int32_t data_type_ = data_type::unread;
};

} // namespace brx
