#include "common/write_back.h"
#include "configuration/dlgConfiguration.h"

#include <algorithm>
#include <string>
#include <vector>

namespace brx {

namespace {

struct DescriptorRow {
    std::int32_t type = 0;
    std::string group;
    std::string item;
};

DescriptorRow read_row(hlxOPCDescriptor& descriptor) {
    DescriptorRow row;
    row.type = descriptor.Type();
    row.group = descriptor.GroupName();
    row.item = descriptor.ItemName();
    return row;
}

void show(const DescriptorRow& descriptor, ListRow& row) {
    row.set_text(DescriptorTypeName(descriptor.type));
    row.set_text(1, descriptor.group);
    row.set_text(2, descriptor.item);
    row.set_tag(descriptor.type);
}

} // namespace

void dlgConfiguration::ConfigureDescriptors() {
    lvwDescriptors.add_column("Type", twips(1500));
    lvwDescriptors.add_column("Group", twips(2300));
    lvwDescriptors.add_column("Item", twips(1500));
    list_descriptors();
}

/// Rows and descriptors have the same positions. All descriptors are read before the list changes: when one
/// cannot be read, the list stays as it is.
void dlgConfiguration::list_descriptors() {
    std::vector<DescriptorRow> rows;
    const auto descriptors = the(the(configuration_).Descriptors()).NewEnum();
    while (const hlxOPCDescriptorPtr descriptor = descriptors->Next()) rows.push_back(read_row(*descriptor));
    lvwDescriptors.clear();
    for (const DescriptorRow& row : rows) show(row, lvwDescriptors.add("", ""));
}

void dlgConfiguration::UpdateDescriptorItem(ListRow& row, hlxOPCDescriptor& descriptor) {
    show(read_row(descriptor), row);
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
        const hlxOPCDescriptorPtr descriptor = the(descriptors).Add(type_dialog_->DescriptorType());
        bool confirmed = false;
        try {
            confirmed = EditDescriptorType(the(descriptor));
        } catch (...) {
            // A descriptor that nobody could finish is none.
            attempt([&] { take_back(*descriptors, the(descriptor)); });
            throw;
        }
        if (!confirmed) return take_back(*descriptors, *descriptor);
        UpdateDescriptorItem(lvwDescriptors.add("", ""), *descriptor);
    });
}

/// When the host does not let it go, the list shows it: rows and descriptors must go on matching.
void dlgConfiguration::take_back(hlxOPCDescriptors& descriptors, hlxOPCDescriptor& descriptor) {
    try {
        descriptors.Remove(descriptor.Index());
    } catch (...) {
        attempt([&] { list_descriptors(); });
        throw;
    }
}

void dlgConfiguration::bnEditDesc_Click() {
    trap(ErrorLibrary::brxError6, "bnEditDesc_Click", [&] {
        const int position = lvwDescriptors.selected();
        if (position == 0) return;
        const hlxOPCDescriptorPtr descriptor =
            the(the(configuration_).Descriptors()).Item(std::int32_t{position});
        if (EditDescriptorType(the(descriptor)))
            UpdateDescriptorItem(lvwDescriptors.row(position), *descriptor);
    });
}

/// True when the person confirmed; the descriptor has its new names then.
bool dlgConfiguration::EditDescriptorType(hlxOPCDescriptor& descriptor) {
    if (!properties_dialog_) properties_dialog_.emplace(environment());
    properties_dialog_->set_Database(tools_.database_of(configuration_));
    properties_dialog_->set_Configuration(configuration_);
    properties_dialog_->set_DescriptorType(descriptor.Type());
    properties_dialog_->set_DescriptorItemName(descriptor.ItemName());
    properties_dialog_->set_DescriptorGroupName(descriptor.GroupName());
    properties_dialog_->show_modal();
    if (!properties_dialog_->OKPressed()) return false;
    WriteBack names;
    names.write(descriptor, &hlxOPCDescriptor::ItemName, &hlxOPCDescriptor::set_ItemName,
                properties_dialog_->DescriptorItemName());
    names.write(descriptor, &hlxOPCDescriptor::GroupName, &hlxOPCDescriptor::set_GroupName,
                properties_dialog_->DescriptorGroupName());
    names.keep();
    return true;
}

void dlgConfiguration::bnRemoveDesc_Click() {
    trap(ErrorLibrary::brxError6, "bnRemoveDesc_Click", [&] {
        const int position = lvwDescriptors.selected();
        if (position == 0) return;
        the(the(configuration_).Descriptors()).Remove(position);
        lvwDescriptors.remove(position);
        const int next = std::min(position, lvwDescriptors.count());
        if (next > 0) lvwDescriptors.select(next);
    });
}

} // namespace brx
