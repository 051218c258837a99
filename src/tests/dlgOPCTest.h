#pragma once

#include "common/common_tools.h"
#include "common/model/configuration.h"
#include "forms/button.h"
#include "forms/check_box.h"
#include "forms/label.h"
#include "forms/list_control.h"
#include "forms/text_box.h"
#include "tests/operators.h"

#include <cstdint>
#include <optional>
#include <string>

namespace brx {

/// Edits one test: its characteristic, its OPC item, how its value is saved and whether it triggers.
class dlgOPCTest : public Form {
public:
    explicit dlgOPCTest(Environment& environment);

    /// The test to edit.
    const hlxOPCTestPtr& test() const { return test_; }
    void set_test(const hlxOPCTestPtr& test) { test_ = test; }
    /// The state that the test is in, to go back to.
    void set_TestState(std::int32_t state) { state_ = state; }
    /// Where the host keeps its characteristics.
    void set_database(const hlxDatabasePtr& database) { database_ = database; }

    /// True only after a successful OK.
    bool OKPressed() const { return ok_pressed_; }
    void set_OKPressed(bool pressed) { ok_pressed_ = pressed; }
    /// The chosen characteristic, 0 and "" for none, and its group.
    std::int32_t TestId() const { return test_id_; }
    void set_TestId(std::int32_t id) { test_id_ = id; }
    const std::string& TestName() const { return test_name_; }
    void set_TestName(const std::string& name) { test_name_ = name; }
    std::int32_t TestGroupID() const { return test_group_id_; }
    void set_TestGroupID(std::int32_t id) { test_group_id_ = id; }
    const std::string& TestGroupName() const { return test_group_name_; }
    void set_TestGroupName(const std::string& name) { test_group_name_ = name; }
    /// The identifier of the item bound to the test.
    const std::string& TestOPCItemID() const { return item_id_; }
    void set_TestOPCItemID(const std::string& item_id) { item_id_ = item_id; }
    /// Whether a change of the item's value triggers collection, by which operator (code 0 to 6) and value.
    bool ItemTrigger() const { return item_trigger_; }
    void set_ItemTrigger(bool trigger) { item_trigger_ = trigger; }
    std::int16_t TriggerExpression() const { return expression_; }
    void set_TriggerExpression(std::int16_t expression) { expression_ = expression; }
    const Variant& TriggerValue() const { return value_; }
    void set_TriggerValue(const Variant& value) { value_ = value; }
    /// The server's handle of the item that this dialog added to the group.
    std::int32_t ClientHandle() const { return client_handle_; }
    void set_ClientHandle(std::int32_t handle) { client_handle_ = handle; }

private:
    // clang-format off
    Label    lblTest       {*this, "lblTest",        {.place = {11, 15, 92, 15}, .caption = "&A. Test:", .tab = 1}};
    TextBox  txtTest       {*this, "txtTest",        {.place = {107, 11, 280, 23}, .tab = 2, .display_only = true}};
    Button   bnTest        {*this, "bnTest",         {.place = {387, 11, 23, 23}, .caption = "...",
                                                      .accessible_name = "Choose a test from the database", .tab = 3,
                                                      .Click = [this] { bnTest_Click(); }}};
    Label    lblItem       {*this, "lblItem",        {.place = {11, 45, 92, 15}, .caption = "&B. OPC Item:", .tab = 4}};
    TextBox  txtItem       {*this, "txtItem",        {.place = {107, 41, 280, 23}, .tab = 5, .display_only = true}};
    Button   bnItem        {*this, "bnItem",         {.place = {387, 41, 23, 23}, .caption = "...",
                                                      .accessible_name = "Browse the server for an item", .tab = 6,
                                                      .Click = [this] { bnItem_Click(); }}};
    Label    lblSaveAs     {*this, "lblSaveAs",      {.place = {11, 75, 92, 15}, .caption = "&C. Save As:", .tab = 7}};
    ComboBox cboSaveAs     {*this, "cboSaveAs",      {.place = {107, 71, 303, 23}, .tab = 8}};
    Label    lblConstant   {*this, "lblConstant",    {.place = {11, 105, 92, 15}, .caption = "&D. Constant:", .tab = 9}};
    TextBox  txtConstant   {*this, "txtConstant",    {.place = {107, 101, 303, 23}, .tab = 10,
                                                      .Change = [this] { txtConstant_Change(); }}};
    CheckBox chkItemTrigger{*this, "chkItemTrigger", {.place = {11, 137, 399, 17}, .caption = "&E. Trigger On Change Event",
                                                      .tab = 11, .Click = [this] { chkItemTrigger_Click(); }}};
    Label    lblExpression {*this, "lblExpression",  {.place = {11, 169, 92, 15}, .caption = "&F. Expression:", .tab = 12}};
    ComboBox cboExpression {*this, "cboExpression",  {.place = {107, 165, 303, 23}, .tab = 13,
                                                      .Click = [this] { cboExpression_Click(); },
                                                      .Change = [this] { cboExpression_Change(); }}};
    Label    lblValue      {*this, "lblValue",       {.place = {11, 199, 92, 15}, .caption = "&G. Value:", .tab = 14}};
    TextBox  txtValue      {*this, "txtValue",       {.place = {107, 195, 303, 23}, .tab = 15}};
    Button   bnOK          {*this, "bnOK",           {.place = {253, 229, 75, 23}, .caption = "OK", .tab = 16,
                                                      .is_default = true, .Click = [this] { bnOK_Click(); }}};
    Button   bnCancel      {*this, "bnCancel",       {.place = {335, 229, 75, 23}, .caption = "&Cancel", .tab = 17,
                                                      .is_cancel = true, .Click = [this] { bnCancel_Click(); }}};
    // clang-format on

    void Form_Load() override;
    void Form_Unload() override;
    void bnTest_Click();
    void bnItem_Click();
    void chkItemTrigger_Click();
    void cboExpression_Click();
    void cboExpression_Change();
    void txtConstant_Change();
    void bnOK_Click();
    void bnCancel_Click();

    void EditSet();
    void ShowEvalType(int state);
    bool TestChoices();
    bool TestValue();
    void StoreTriggerExpression();
    void GetItemDataType();
    hlxRecordPtr GetTestGrp(std::int32_t id);
    hlxTestDataPtr ResolveTestDat(const ObjectPtr& object);

    bool is_duplicate(std::int32_t id);
    void allow_confirming();
    void follow_operator();
    void take_item(OPCItems& items, const ObjectPtr& server);
    void drop_added_item();
    double entered_constant();
    void write_test(double constant);
    void write_characteristic(hlxTestData& data);
    hlxOPCConfigurationPtr configuration();
    ObjectPtr server();
    OPCItemsPtr items_of(const ObjectPtr& group);

    /// What a test that exists held when it was read. None of it is known of a new one.
    struct Former {
        std::optional<bool> item_trigger;
        std::optional<Variant> trigger_value;
        std::optional<std::int32_t> client_handle;
        std::optional<std::int16_t> trigger_expression;
        std::optional<std::string> item_id;
        std::optional<std::int32_t> state;
        std::optional<double> constant;
        std::optional<std::int16_t> save_as;
    };

    CommonTools tools_;
    hlxOPCTestPtr test_;
    std::optional<std::int32_t> state_;
    hlxDatabasePtr database_;
    bool ok_pressed_ = false;
    std::int32_t test_id_ = 0;
    std::string test_name_;
    std::int32_t test_group_id_ = 0;
    std::string test_group_name_;
    std::string item_id_;
    bool item_trigger_ = false;
    std::int16_t expression_ = 0;
    Variant value_;
    std::int32_t client_handle_ = 0;
    bool edit_mode_ = false;
    bool all_read_ = false; ///< the host told everything that OK writes again
    Former former_;
    bool test_chosen_ = false;
    bool added_new_item_ = false;
    std::int32_t data_type_ = 0;
    LongArray server_handles_;
};

} // namespace brx
