#include "configuration/dlgDescriptorType.h"

#include "common/common_tools.h"
#include "configuration/descriptor_types.h"
#include "forms/list_tools.h"

#include <array>

namespace brx {

dlgDescriptorType::dlgDescriptorType(Environment& environment)
    : Form(environment, {.name = "dlgDescriptorType", .caption = "Descriptor Type", .size = {240, 205}}) {}

void dlgDescriptorType::Form_Load() {
    trap("Form_Load", [&] {
        ok_pressed_ = false;
        std::array<bool, descriptor_type::count> used{};
        const auto descriptors = the(descriptors_).NewEnum();
        while (const hlxOPCDescriptorPtr descriptor = descriptors->Next()) {
            const std::int32_t code = descriptor->Type();
            if (code >= 0 && code < descriptor_type::count) used[static_cast<std::size_t>(code)] = true;
        }
        const auto offer = [&](std::int16_t code) {
            hlxListTools::add(List1, DescriptorTypeName(code), code);
        };
        for (const std::int16_t code : descriptor_type::once_only)
            if (!used[static_cast<std::size_t>(code)]) offer(code);
        for (const std::int16_t code : descriptor_type::repeatable) offer(code);
        List1.select(0);
    });
}

void dlgDescriptorType::bnOK_Click() {
    trap("bnOK_Click", [&] {
        if (List1.selected() < 0) return; // only when the kinds could not be listed
        ok_pressed_ = true;
        descriptor_type_ = hlxListTools::selected_data(List1);
        unload();
    });
}

void dlgDescriptorType::List1_DblClick() {
    trap("List1_DblClick", [&] {
        if (List1.selected() >= 0) bnOK_Click();
    });
}

void dlgDescriptorType::bnCancel_Click() {
    trap("bnCancel_Click", [&] { unload(); });
}

} // namespace brx
