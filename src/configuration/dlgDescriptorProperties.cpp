#include "configuration/dlgDescriptorProperties.h"

#include "classes/LeafSelect.h"
#include "common/group_items.h"
#include "common/values/text.h"
#include "configuration/descriptor_types.h"

namespace brx {

dlgDescriptorProperties::dlgDescriptorProperties(Environment& environment)
    : Form(environment,
           {.name = "dlgDescriptorProperties", .caption = "Descriptor Properties", .size = {381, 139}}),
      tools_(environment.errors) {}

void dlgDescriptorProperties::Form_Load() {
    trap("Form_Load", [&] {
        ok_pressed_ = false;
        set_caption(caption() + " - " + DescriptorTypeName(type_));
        txtGroup.set_text(group_name_);
        txtItem.set_text(item_name_);
        if (!descriptor_type::is_item_only(type_)) return;
        for (Control* control : std::initializer_list<Control*>{&lblGroup, &txtGroup, &bnGroup, &bnSelect})
            control->set_enabled(false);
    });
}

void dlgDescriptorProperties::Form_Unload() {
    database_ = nullptr;
    configuration_ = nullptr;
}

void dlgDescriptorProperties::txtGroup_Change() {
    trap("txtGroup_Change", [&] { allow_confirming(); });
}

void dlgDescriptorProperties::txtItem_Change() {
    trap("txtItem_Change", [&] { allow_confirming(); });
}

void dlgDescriptorProperties::allow_confirming() {
    const bool has_item = !trim(txtItem.text()).empty();
    const bool has_group = !trim(txtGroup.text()).empty();
    bnOK.set_enabled(has_item && (has_group || descriptor_type::is_item_only(type_)));
}

/// The identifier in a reference; a text that is none comes back without the blanks around it.
void dlgDescriptorProperties::ParceItem(const std::string& text, std::string& result) {
    trap("ParceItem", [&] {
        result = trim(text);
        const std::size_t opening = text.find("(%");
        if (opening == std::string::npos) return;
        // Found in the given text, cut from the group's: every caller gives the group's text.
        const std::string group = txtGroup.text();
        const std::string rest = opening + 2 < group.size() ? group.substr(opening + 2) : std::string();
        const std::size_t closing = rest.find(')');
        if (closing != std::string::npos) result = rest.substr(0, closing);
    });
}

void dlgDescriptorProperties::bnGroup_Click() {
    trap("bnGroup_Click", [&] { browse_into(txtGroup); });
}

void dlgDescriptorProperties::bnItem_Click() {
    trap("bnItem_Click", [&] { browse_into(txtItem); });
}

/// The item's button starts from the group's text too.
void dlgDescriptorProperties::browse_into(TextBox& box) {
    std::string item_id;
    bool ok = false;
    ParceItem(txtGroup.text(), item_id);
    SelectOPCItem(item_id, ok);
    if (ok) box.set_text("(%" + item_id + ")");
}

void dlgDescriptorProperties::SelectOPCItem(std::string& item_id, bool& ok) {
    trap("SelectOPCItem", [&] {
        ok = false;
        hlxOPCConfiguration& configuration = the(configuration_);
        const ObjectPtr server = connection_of(configuration);
        const OPCGroupPtr group = tools_.ResolveOPCGroup(configuration.OPCGroup());
        if (!server || !group) {
            show_message({.text = "Server is disconnected or does not exist.",
                          .style = message::exclamation,
                          .title = "Server Error"});
            return;
        }
        LeafSelect browser(environment());
        browser.set_ItemID(item_id);
        if (!browser.Show(server, group)) return;
        const std::string chosen = browser.ItemID();
        bool added = false;
        AddOPCItem(server, group, chosen, added);
        if (!added) return;
        item_id = chosen;
        ok = true;
    });
}

void dlgDescriptorProperties::AddOPCItem(const ObjectPtr& server, const OPCGroupPtr& group,
                                         const std::string& item_id, bool& ok) {
    trap("AddOPCItem", [&] {
        ok = false;
        const OPCItemsPtr items = the(group).OPCItems();
        if (!holds_item(the(items), item_id)) {
            const AddedItems added =
                items->AddItems({{item_id}}, LongArray{{0}}, ShortArray{{0}}, std::nullopt);
            const std::int32_t error = added.Errors.at(1);
            if (error != 0) {
                tell_refusal(server, error, item_id, [&](const std::string& text) {
                    show_message({.text = text, .style = message::critical});
                });
                return;
            }
        }
        ok = true;
    });
}

void dlgDescriptorProperties::bnSelect_Click() {
    trap("bnSelect_Click", [&] {
        switch (type_) {
        case descriptor_type::part:
            return SelectPart();
        case descriptor_type::process:
            return SelectProcess();
        case descriptor_type::job:
            return SelectJob();
        case descriptor_type::shift:
            return SelectShift();
        case descriptor_type::user_defined_subgroup:
        case descriptor_type::user_defined_piece:
            return SelectDescriptor();
        }
    });
}

void dlgDescriptorProperties::bnOK_Click() {
    trap("bnOK_Click", [&] {
        item_name_ = txtItem.text();
        group_name_ = txtGroup.text();
        ok_pressed_ = true;
        unload();
    });
}

void dlgDescriptorProperties::bnCancel_Click() {
    trap("bnCancel_Click", [&] { unload(); });
}

} // namespace brx
