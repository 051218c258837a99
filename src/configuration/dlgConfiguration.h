#pragma once

#include "common/common_tools.h"
#include "configuration/dlgDescriptorProperties.h"
#include "configuration/dlgDescriptorType.h"
#include "configuration/listed_objects.h"
#include "forms/button.h"
#include "forms/check_box.h"
#include "forms/date_picker.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/list_control.h"
#include "forms/list_view.h"
#include "forms/parted_tick.h"
#include "forms/tab_strip.h"
#include "forms/text_box.h"
#include "forms/timer.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace brx {

/// Edits one collection configuration: general settings and tests, sampling, descriptors; and watches its
/// server. Each tab has a source file of its own.
class dlgConfiguration : public Form {
public:
    explicit dlgConfiguration(Environment& environment);

    /// The configuration to edit.
    void set_configuration(const hlxOPCConfigurationPtr& configuration) { configuration_ = configuration; }

    /// Two numbers of the form, as automation long integers. Whoever shows it gives them their meaning; today
    /// they are 0.
    Variant first_value() const { return first_value_; }
    Variant second_value() const { return second_value_; }

private:
    static constexpr Anchor wide = Anchor::stretch_width;
    static constexpr Anchor large = Anchor::stretch_width | Anchor::stretch_height;
    static constexpr Anchor low = Anchor::right | Anchor::bottom;
    static constexpr Place page = {15, 36, 522, 347}; ///< of each tab: 220 twips from the left
    static constexpr Place table_frame = {11, 11, 500, 325};

    // clang-format off
    TabStrip   TabStrip1 {*this, "TabStrip1", {.place = {11, 11, 530, 376}, .captions = {"&1. General", "&2. Sampling",
                                               "&3. Descriptors", "&4. Server Information"}, .tab = 51,
                                               .accessible_name = "Pages of the configuration", .anchor = large,
                                               .Click = [this] { TabStrip1_Click(); }}};
    Panel      frmTab0   {*this, "frmTab(0)", {.place = page, .anchor = large}};
    Panel      frmTab1   {*this, "frmTab(1)", {.place = page, .visible = false, .anchor = large}};
    Panel      frmTab2   {*this, "frmTab(2)", {.place = page, .visible = false, .anchor = large}};
    Panel      frmTab3   {*this, "frmTab(3)", {.place = page, .visible = false, .anchor = large}};
    Button     bnClose   {*this, "bnClose",   {.place = {466, 398, 75, 23}, .caption = "&Close", .tab = 50, .is_default = true, .closes = true,
                                               .anchor = low, .Click = [this] { bnClose_Click(); }}};

    Label      lblName        {frmTab0, "lblName",         {.place = {11, 15, 120, 15}, .caption = "&A. Name:", .tab = 1}};
    TextBox    txtName        {frmTab0, "txtName",         {.place = {135, 11, 376, 23}, .tab = 2, .anchor = wide}};
    Label      lblServer      {frmTab0, "lblServer",       {.place = {11, 45, 120, 15}, .caption = "OPC Server:", .tab = 3}};
    TextBox    txtServer      {frmTab0, "txtServer",       {.place = {135, 41, 376, 23}, .tab = 4, .display_only = true, .anchor = wide}};
    Label      lblUpdateRate  {frmTab0, "lblUpdateRate",   {.place = {11, 75, 120, 15}, .caption = "&B. Update Rate:", .tab = 5}};
    TextBox    txtUpdateRate  {frmTab0, "txtUpdateRate",   {.place = {135, 71, 100, 23}, .tab = 6,
                                                            .Change = [this] { txtUpdateRate_Change(); },
                                                            .KeyPress = [this](auto& key) { txtUpdateRate_KeyPress(key); }}};
    Label      lblDeadband    {frmTab0, "lblDeadband",     {.place = {275, 75, 132, 15}, .caption = "&C. Dead Band (%FS):", .tab = 7}};
    TextBox    txtDeadband    {frmTab0, "txtDeadband",     {.place = {411, 71, 100, 23}, .tab = 8,
                                                            .Change = [this] { txtDeadband_Change(); },
                                                            .KeyPress = [this](auto& key) { txtDeadband_KeyPress(key); }}};
    CheckBox   chkActive      {frmTab0, "chkActive",       {.place = {135, 104, 100, 17}, .caption = "&D. Active", .tab = 9}};
    Label      lblSubgroupSize{frmTab0, "lblSubgroupSize", {.place = {275, 105, 132, 15}, .caption = "&E. Subgroup Size:", .tab = 10}};
    TextBox    txtSubgroupSize{frmTab0, "txtSubgroupSize", {.place = {411, 101, 100, 23}, .tab = 11,
                                                            .Change = [this] { txtSubgroupSize_Change(); },
                                                            .KeyPress = [this](auto& key) { txtSubgroupSize_KeyPress(key); }}};
    Frame      frmTests       {frmTab0, "frmTests",        {.place = {11, 131, 500, 205}, .caption = "&F. Tests", .tab = 12, .anchor = large}};
    ListView   lvwTest        {frmTests, "lvwTest",        {.place = {11, 20, 478, 144}, .tab = 13, .anchor = large,
                                                            .DblClick = [this] { lvwTest_DblClick(); }}};
    Label      lblTestsNotice{frmTests, "lblTestsNotice",  {.place = {11, 171, 232, 30}, .mnemonic = false, .anchor = Anchor::bottom}};
    Button     bnAdd          {frmTests, "bnAdd",          {.place = {250, 171, 75, 23}, .caption = "&G. Add...", .tab = 14,
                                                            .anchor = low, .Click = [this] { bnAdd_Click(); }}};
    Button     cmdEdit        {frmTests, "cmdEdit",        {.place = {332, 171, 75, 23}, .caption = "&H. Edit...", .tab = 15,
                                                            .anchor = low, .Click = [this] { cmdEdit_Click(); }}};
    Button     bnRemove       {frmTests, "bnRemove",       {.place = {414, 171, 75, 23}, .caption = "&I. Remove", .tab = 16,
                                                            .anchor = low, .Click = [this] { bnRemove_Click(); }}};

    Frame      frmSync        {frmTab1, "frmSync",     {.place = {11, 11, 500, 54}, .caption = "Synchronization Date/Time", .anchor = wide}};
    Label      lblSyncDate    {frmSync, "lblSyncDate", {.place = {11, 24, 80, 15}, .caption = "&A. Date:", .tab = 20}};
    DatePicker dtSyncDate     {frmSync, "dtSyncDate",  {.place = {95, 20, 140, 23}, .part = DatePart::date, .tab = 21}};
    Label      lblSyncTime    {frmSync, "lblSyncTime", {.place = {265, 24, 80, 15}, .caption = "&B. Time:", .tab = 22}};
    DatePicker dtSyncTime     {frmSync, "dtSyncTime",  {.place = {349, 20, 140, 23}, .part = DatePart::time, .tab = 23}};

    Frame      frmSubgroup       {frmTab1, "frmSubgroup",           {.place = {11, 76, 500, 84}, .caption = "Subgroup Sampling Period", .anchor = wide}};
    Label      lblSGInterval     {frmSubgroup, "lblSGInterval",     {.place = {11, 24, 80, 15}, .caption = "&C. Interval:", .tab = 24}};
    TextBox    txtSGInterval     {frmSubgroup, "txtSGInterval",     {.place = {95, 20, 140, 23}, .tab = 25,
                                                                     .Change = [this] { txtSGInterval_Change(); },
                                                                     .KeyPress = [this](auto& key) { txtSGInterval_KeyPress(key); }}};
    Label      lblSGTimeUnit     {frmSubgroup, "lblSGTimeUnit",     {.place = {265, 24, 80, 15}, .caption = "&D. Unit:", .tab = 26}};
    ComboBox   cboSGTimeUnit     {frmSubgroup, "cboSGTimeUnit",     {.place = {349, 20, 140, 23}, .tab = 27}};
    Label      lblSGEval         {frmSubgroup, "lblSGEval",         {.place = {11, 54, 80, 15}, .caption = "&E. Trigger:", .tab = 28}};
    TextBox    txtSGEval         {frmSubgroup, "txtSGEval",         {.place = {95, 50, 371, 23}, .tab = 29, .display_only = true, .anchor = wide}};
    Button     cmdSubgroupTrigger{frmSubgroup, "cmdSubgroupTrigger",{.place = {466, 50, 23, 23}, .caption = "...",
                                                                     .accessible_name = "Set the trigger of subgroups", .tab = 30,
                                                                     .anchor = Anchor::right,
                                                                     .Click = [this] { cmdSubgroupTrigger_Click(); }}};

    Frame      frmPiece            {frmTab1, "frmPiece",           {.place = {11, 171, 500, 84}, .caption = "Piece Sampling Period", .anchor = wide}};
    Label      lblPieceTimeInterval{frmPiece, "lblPieceTimeInterval",{.place = {11, 24, 80, 15}, .caption = "&F. Interval:", .tab = 31}};
    TextBox    txtPieceTimeInterval{frmPiece, "txtPieceTimeInterval",{.place = {95, 20, 140, 23}, .tab = 32,
                                                                    .Change = [this] { txtPieceTimeInterval_Change(); },
                                                                    .KeyPress = [this](auto& key) { txtPieceTimeInterval_KeyPress(key); }}};
    Label      lblPieceTimeUnit    {frmPiece, "lblPieceTimeUnit",  {.place = {265, 24, 80, 15}, .caption = "&G. Unit:", .tab = 33}};
    ComboBox   cboPieceTimeUnit    {frmPiece, "cboPieceTimeUnit",  {.place = {349, 20, 140, 23}, .tab = 34}};
    Label      lblPieceEval        {frmPiece, "lblPieceEval",      {.place = {11, 54, 80, 15}, .caption = "&H. Trigger:", .tab = 35}};
    TextBox    txtPieceEval        {frmPiece, "txtPieceEval",      {.place = {95, 50, 371, 23}, .tab = 36, .display_only = true, .anchor = wide}};
    Button     cmdPieceTrigger     {frmPiece, "cmdPieceTrigger",   {.place = {466, 50, 23, 23}, .caption = "...",
                                                                    .accessible_name = "Set the trigger of pieces", .tab = 37,
                                                                    .anchor = Anchor::right,
                                                                    .Click = [this] { cmdPieceTrigger_Click(); }}};

    Frame      frmDescriptors{frmTab2, "frmDescriptors",         {.place = table_frame, .caption = "&A. Descriptors", .tab = 40, .anchor = large}};
    ListView   lvwDescriptors{frmDescriptors, "lvwDescriptors",  {.place = {11, 20, 478, 264}, .tab = 41, .anchor = large,
                                                                  .DblClick = [this] { lvwDescriptors_DblClick(); }}};
    Label      lblDescriptorsNotice{frmDescriptors, "lblDescriptorsNotice", {.place = {11, 291, 232, 30}, .mnemonic = false, .anchor = Anchor::bottom}};
    Button     bnAddDesc     {frmDescriptors, "bnAddDesc",       {.place = {250, 291, 75, 23}, .caption = "&B. Add...", .tab = 42,
                                                                  .anchor = low, .Click = [this] { bnAddDesc_Click(); }}};
    Button     bnEditDesc    {frmDescriptors, "bnEditDesc",      {.place = {332, 291, 75, 23}, .caption = "&C. Edit...", .tab = 43,
                                                                  .anchor = low, .Click = [this] { bnEditDesc_Click(); }}};
    Button     bnRemoveDesc  {frmDescriptors, "bnRemoveDesc",    {.place = {414, 291, 75, 23}, .caption = "&D. Remove", .tab = 44,
                                                                  .anchor = low, .Click = [this] { bnRemoveDesc_Click(); }}};

    ListView   lvwServerInfo{frmTab3, "lvwServerInfo", {.place = table_frame, .tab = 45, .accessible_name = "Server Information", .anchor = large}};
    Timer      Timer1       {*this, "Timer1",          {.interval = 1000, .Timer = [this] { Timer1_Timer(); }}};
    // clang-format on

    // The form as a whole.
    void Form_Load() override;
    void set_up_columns();
    void Form_Unload() override;
    void TabStrip1_Click();
    void bnClose_Click();
    bool CheckNumerics();
    void FillProperties();
    void commit_without_triggers();
    bool is_numeric_text(const TextBox& box) const;
    bool refuse(const std::string& why, int tab, Control& at_fault);

    // General
    void load_general();
    static void discard_all_but_digits(std::int32_t& key_ascii);
    static void color_by(const TextBox& number, TextBox& box);
    void txtDeadband_Change();
    void txtDeadband_KeyPress(std::int32_t& key_ascii);
    void txtSubgroupSize_Change();
    void txtSubgroupSize_KeyPress(std::int32_t& key_ascii);
    void txtUpdateRate_Change();
    void txtUpdateRate_KeyPress(std::int32_t& key_ascii);

    // Sampling
    struct Trigger {
        std::int16_t type = 0;
        std::string item;
        Variant value;
    };
    void load_sampling();
    Date synchronisation() const;
    void txtPieceTimeInterval_Change();
    void txtPieceTimeInterval_KeyPress(std::int32_t& key_ascii);
    void txtSGInterval_Change();
    void txtSGInterval_KeyPress(std::int32_t& key_ascii);
    std::string shown_trigger(const Trigger& trigger) const;
    static std::string activated(const OPCGroupPtr& group, const std::string& trigger_item);
    std::string ConvertExpression(std::int16_t type) const;
    std::string SetTrigger(int kind);
    void cmdPieceTrigger_Click();
    void cmdSubgroupTrigger_Click();

    // Tests
    void AddToList();
    void bnAdd_Click();
    void cmdEdit_Click();
    void lvwTest_DblClick();
    void EditItem();
    void bnRemove_Click();
    void take_back(hlxOPCTest& test);
    bool is_without_tests() const;

    // Descriptors
    void ConfigureDescriptors();
    void UpdateDescriptorItem(ListRow& row, hlxOPCDescriptor& descriptor);
    void lvwDescriptors_DblClick();
    void bnAddDesc_Click();
    void bnEditDesc_Click();
    bool EditDescriptorType(hlxOPCDescriptor& descriptor);
    void show_names(ListRow& row);
    void bnRemoveDesc_Click();
    void take_back(hlxOPCDescriptors& descriptors, hlxOPCDescriptor& descriptor);

    // Server information
    void Timer1_Timer();
    void show_value(std::optional<Variant>& shown, const char* key, const char* caption,
                    const Variant& value);
    void show_group(std::int32_t n, const std::string& name);
    bool UpdateServerInfo(const std::string& key, const std::string& caption, const std::string& value);

    CommonTools tools_;
    hlxOPCConfigurationPtr configuration_;
    bool loaded_whole_ = false; ///< nothing that the configuration has is missing from the form
    ListedObjects tests_{"tests", lvwTest, lblTestsNotice, cmdEdit, bnRemove};
    ListedObjects descriptors_{"descriptors", lvwDescriptors, lblDescriptorsNotice, bnEditDesc, bnRemoveDesc};
    Trigger piece_trigger_;
    Trigger subgroup_trigger_;
    PartedTick tick_;
    std::array<std::optional<Variant>, 12> server_values_; ///< as the status shows them
    std::vector<std::optional<std::string>> groups_; ///< names of the server's, as the status shows them
    std::optional<dlgDescriptorType> type_dialog_;
    std::optional<dlgDescriptorProperties> properties_dialog_;
    std::int32_t first_value_ = 0;
    std::int32_t second_value_ = 0;
};

} // namespace brx
