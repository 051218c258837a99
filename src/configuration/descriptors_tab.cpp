#include "common/call_gate.h"
#include "common/write_back.h"
#include "configuration/dlgConfiguration.h"

#include <algorithm>
#include <string>

namespace brx {

namespace {

/// As far as the descriptor can be read, its row tells of it.
template <class Row> void fill(Row& row, hlxOPCDescriptor& descriptor) {
    const std::int32_t type = descriptor.Type();
    row.set_text(DescriptorTypeName(type));
    row.set_text(1, descriptor.GroupName());
    row.set_text(2, descriptor.ItemName());
    row.set_tag(type);
}

} // namespace

/// Rows and descriptors have the same positions.
void dlgConfiguration::ConfigureDescriptors() {
    descriptors_.list([&](ListedObjects::Drafts& rows) {
        work().go_on_with("Reading the descriptors of " + txtName.text());
        const auto descriptors = the(the(configuration_).Descriptors()).NewEnum();
        while (const hlxOPCDescriptorPtr descriptor = descriptors->Next()) {
            ListedObjects::draft(rows, [&](RowDraft& row) { fill(row, *descriptor); });
            work().expect_no_stop();
        }
    });
}

void dlgConfiguration::UpdateDescriptorItem(ListRow& row, hlxOPCDescriptor& descriptor) {
    fill(row, descriptor);
}

void dlgConfiguration::lvwDescriptors_DblClick() {
    trap(ErrorLibrary::brxError6, "lvwDescriptors_DblClick", [&] {
        if (lvwDescriptors.selected() != 0) bnEditDesc_Click();
    });
}

void dlgConfiguration::bnAddDesc_Click() {
    trap(ErrorLibrary::brxError6, "bnAddDesc_Click", [&] {
        const hlxOPCDescriptorsPtr descriptors = the(configuration_).Descriptors();
        if (!type_dialog_) type_dialog_.emplace(environment());
        type_dialog_->set_Descriptors(descriptors);
        type_dialog_->show_modal();
        if (!type_dialog_->OKPressed()) return;
        const std::int32_t type = type_dialog_->DescriptorType();
        hlxOPCDescriptors& owner = the(descriptors);
        hlxOPCDescriptorPtr descriptor;
        descriptors_.add(
            [&] {
                descriptor = owner.Add(type);
                the(descriptor);
            },
            [&] { ConfigureDescriptors(); });
        bool confirmed = false;
        try {
            confirmed = EditDescriptorType(*descriptor);
        } catch (...) {
            // A descriptor that nobody could finish is none.
            attempt([&] { take_back(owner, *descriptor); });
            throw;
        }
        if (!confirmed) return take_back(owner, *descriptor);
        // A row behind others than the host's own would not have the descriptor's position.
        if (!descriptors_.is_whole()) {
            ConfigureDescriptors();
            return descriptors_.select(lvwDescriptors.count());
        }
        ListRow& row = lvwDescriptors.add("", DescriptorTypeName(type));
        descriptors_.select(lvwDescriptors.count());
        show_names(row);
        UpdateDescriptorItem(row, *descriptor);
    });
}

void dlgConfiguration::take_back(hlxOPCDescriptors& descriptors, hlxOPCDescriptor& descriptor) {
    const call_gate::Undoing undoing;
    const auto remove = [&] {
        const std::int32_t position = descriptor.Index();
        descriptors.Remove(position);
    };
    descriptors_.take_away(remove, [&] { ConfigureDescriptors(); });
}

void dlgConfiguration::bnEditDesc_Click() {
    trap(ErrorLibrary::brxError6, "bnEditDesc_Click", [&] {
        const int position = descriptors_.chosen();
        if (position == 0) return;
        const hlxOPCDescriptorPtr descriptor =
            the(the(configuration_).Descriptors()).Item(std::int32_t{position});
        if (!EditDescriptorType(the(descriptor))) return;
        ListRow& row = lvwDescriptors.row(position);
        show_names(row);
        UpdateDescriptorItem(row, *descriptor);
    });
}

/// The names that were confirmed, in case that the host cannot tell what it made of them.
void dlgConfiguration::show_names(ListRow& row) {
    row.set_text(1, properties_dialog_->DescriptorGroupName());
    row.set_text(2, properties_dialog_->DescriptorItemName());
}

/// True when the person confirmed; the descriptor has its new names then.
bool dlgConfiguration::EditDescriptorType(hlxOPCDescriptor& descriptor) {
    if (!properties_dialog_) properties_dialog_.emplace(environment());
    properties_dialog_->set_Database(tools_.database_of(configuration_));
    properties_dialog_->set_Configuration(configuration_);
    properties_dialog_->set_DescriptorType(descriptor.Type());
    const std::string item_before = descriptor.ItemName();
    properties_dialog_->set_DescriptorItemName(item_before);
    const std::string group_before = descriptor.GroupName();
    properties_dialog_->set_DescriptorGroupName(group_before);
    properties_dialog_->show_modal();
    if (!properties_dialog_->OKPressed()) return false;
    WriteBack names;
    names.replace(descriptor, &hlxOPCDescriptor::set_ItemName, item_before,
                  properties_dialog_->DescriptorItemName());
    names.replace(descriptor, &hlxOPCDescriptor::set_GroupName, group_before,
                  properties_dialog_->DescriptorGroupName());
    names.keep();
    return true;
}

void dlgConfiguration::bnRemoveDesc_Click() {
    trap(ErrorLibrary::brxError6, "bnRemoveDesc_Click", [&] {
        const int position = descriptors_.chosen();
        if (position == 0) return;
        const hlxOPCDescriptorsPtr descriptors = the(configuration_).Descriptors();
        descriptors_.take_away([&] { the(descriptors).Remove(position); }, [&] { ConfigureDescriptors(); });
        lvwDescriptors.remove(position);
        const int next = std::min(position, lvwDescriptors.count());
        if (next > 0) lvwDescriptors.select(next);
    });
}

} // namespace brx
