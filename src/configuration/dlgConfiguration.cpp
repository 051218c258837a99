#include "configuration/dlgConfiguration.h"

#include "common/values/convert.h"
#include "forms/focus.h"
#include "tests/operators.h"

#include <algorithm>
#include <initializer_list>
#include <tuple>
#include <utility>
#include <vector>

namespace brx {

dlgConfiguration::dlgConfiguration(Environment& environment)
    : Form(environment, {.name = "dlgConfiguration",
                         .caption = "Configuration Properties",
                         .size = {552, 432},
                         .resizable = true,
                         .errors = ErrorLibrary::hlxER01}),
      tools_(environment.errors) {}

void dlgConfiguration::Form_Load() {
    loaded_whole_ = true;
    tests_.start_afresh();
    descriptors_.start_afresh();
    groups_.clear();
    server_values_ = {};
    piece_trigger_ = subgroup_trigger_ = {};
    std::vector<Error> told;
    // What fails keeps nothing else from being loaded: every tab shows what can be had.
    const auto load = [&](const auto& part) {
        trap("Form_Load", [&] {
            try {
                part();
            } catch (...) {
                loaded_whole_ = false;
                const Error error = current_error();
                if (std::find(told.begin(), told.end(), error) != told.end()) return;
                told.push_back(error);
                throw;
            }
        });
    };
    load([&] {
        set_up_columns();
        load_general();
    });
    load([&] {
        work().go_on_with("Reading the sampling of " + txtName.text());
        load_sampling();
    });
    load([&] { ConfigureDescriptors(); });
    load([&] {
        frmTab0.set_visible(true); // in front, since no other one shows
        AddToList();
    });
    // Nobody should type what will not be committed.
    for (Control* field : std::initializer_list<Control*>{&txtName, &txtUpdateRate, &txtDeadband, &chkActive,
                                                          &txtSubgroupSize, &frmTab1})
        field->set_enabled(loaded_whole_);
}

/// Before anything that can fail: without its columns a list shows nothing.
void dlgConfiguration::set_up_columns() {
    lvwTest.add_column("Characteristic", twips(1500));
    lvwTest.add_column("OPC Item", twips(2300));
    lvwTest.add_column("OPC Server", twips(1500));
    lvwTest.add_column("Node", twips(1500));
    lvwDescriptors.add_column("Type", twips(1500));
    lvwDescriptors.add_column("Group", twips(2300));
    lvwDescriptors.add_column("Item", twips(1500));
    lvwServerInfo.add_column("Property", twips(2300));
    lvwServerInfo.add_column("Value", twips(4850));
}

void dlgConfiguration::Form_Unload() { configuration_ = nullptr; }

void dlgConfiguration::TabStrip1_Click() {
    trap("TabStrip1_Click", [&] {
        int tab = 0;
        for (Panel* frame : {&frmTab0, &frmTab1, &frmTab2, &frmTab3}) {
            const bool chosen = ++tab == TabStrip1.selected();
            Place place = frame->place();
            place.left = twips(chosen ? 220 : -20000);
            frame->set_place(place);
            frame->set_visible(chosen);
        }
    });
}

void dlgConfiguration::bnClose_Click() {
    trap("bnClose_Click", [&] {
        // What could not be read has been reported, and what stands in its place is not the host's.
        if (!loaded_whole_) return unload();
        if (is_without_tests()) {
            const Message question = {
                .text = "Without a Test Characteristic this Configuration will be removed.  "
                        "Are you sure you want to continue?",
                .style = message::question + message::ok_cancel,
                .title = "No Test Exists"};
            if (show_message(question) != message::ok) return;
            commit_without_triggers();
        } else {
            if (!CheckNumerics()) return;
            FillProperties();
        }
        unload();
    });
}

/// When that fails the form stays, and what it shows as triggers is still so.
void dlgConfiguration::commit_without_triggers() {
    const auto shown = std::pair(piece_trigger_.item, subgroup_trigger_.item);
    piece_trigger_.item.clear();
    subgroup_trigger_.item.clear();
    try {
        FillProperties();
    } catch (...) {
        std::tie(piece_trigger_.item, subgroup_trigger_.item) = shown;
        throw;
    }
}

bool dlgConfiguration::is_numeric_text(const TextBox& box) const {
    return is_numeric(box.text(), environment().locale);
}

/// Tells why the form cannot close yet, and goes to the field at fault.
bool dlgConfiguration::refuse(const std::string& why, int tab, Control& at_fault) {
    show_message({.text = "INVALID ENTRY!  " + why, .style = message::exclamation, .title = "Invalid Entry"});
    TabStrip1.select(tab);
    if (auto* box = dynamic_cast<TextBox*>(&at_fault))
        hlxFocus::select_text(*box);
    else
        at_fault.set_focus();
    return false;
}

bool dlgConfiguration::CheckNumerics() {
    constexpr int general = 1;
    constexpr int sampling = 2;
    if (txtPieceTimeInterval.text().empty()) {
        txtPieceTimeInterval.set_text("0");
    } else {
        if (!is_numeric_text(txtPieceTimeInterval))
            return refuse("Piece Interval must be a numeric value.", sampling, txtPieceTimeInterval);
        // It is the subgroup's unit that counts here.
        if (cboSGTimeUnit.selected() < 0)
            return refuse("A Piece Time Unit must be selected.", sampling, cboPieceTimeUnit);
    }
    if (txtSGInterval.text().empty()) {
        txtSGInterval.set_text("0");
    } else {
        if (!is_numeric_text(txtSGInterval))
            return refuse("Subgroup Interval must be a numeric value.", sampling, txtSGInterval);
        if (cboSGTimeUnit.selected() < 0)
            return refuse("A Subgroup Time Unit must be selected.", sampling, cboSGTimeUnit);
    }
    if (!txtSubgroupSize.text().empty() && !is_numeric_text(txtSubgroupSize))
        return refuse("Subgroup Size must be a numeric value.", general, txtSubgroupSize);
    if (!is_numeric_text(txtUpdateRate))
        return refuse("Update Rate must be a numeric value.", general, txtUpdateRate);
    if (!is_numeric_text(txtDeadband))
        return refuse("Dead Band must be a numeric value.", general, txtDeadband);
    return true;
}

void dlgConfiguration::FillProperties() {
    const auto whole_number = [](const TextBox& box) { return to_int32(val(box.text())); };
    const auto unit = [](const ComboBox& list) { return static_cast<std::int16_t>(list.selected()); };

    hlxOPCConfiguration& configuration = the(configuration_);
    work().waits_for("Storing " + txtName.text());
    const OPCGroupPtr group = tools_.ResolveOPCGroup(configuration.OPCGroup());
    configuration.set_Name(txtName.text());
    configuration.set_SubgroupSize(whole_number(txtSubgroupSize));
    configuration.set_UpdateRate(whole_number(txtUpdateRate));
    configuration.set_DeadBand(to_single(val(txtDeadband.text())));
    configuration.set_Active(chkActive.value() != 0);
    configuration.set_SyncDateTime(synchronisation());
    configuration.set_PieceInterval(whole_number(txtPieceTimeInterval));
    configuration.set_PieceTimeUnit(unit(cboPieceTimeUnit));
    configuration.set_PieceTriggerItem(activated(group, piece_trigger_.item));
    configuration.set_SubgroupInterval(whole_number(txtSGInterval));
    configuration.set_SubgroupTimeUnit(unit(cboSGTimeUnit));
    configuration.set_SubgroupTriggerItem(activated(group, subgroup_trigger_.item));
    configuration.set_SubgroupTriggerType(subgroup_trigger_.type);
    configuration.set_SubgroupTriggerValue(subgroup_trigger_.value);
    configuration.set_PieceTriggerType(piece_trigger_.type);
    configuration.set_PieceTriggerValue(piece_trigger_.value);
}

/// The identifier to store: that of an item of the group, active from now on, or "" for none.
std::string dlgConfiguration::activated(const OPCGroupPtr& group, const std::string& trigger_item) {
    if (trigger_item.empty() || is_no_item(trigger_item)) return {};
    the(the(the(group).OPCItems()).Item(trigger_item)).set_IsActive(true);
    return trigger_item;
}

} // namespace brx
