#pragma once

#include "common/model/configuration.h"
#include "forms/button.h"
#include "forms/list_control.h"

#include <cstdint>

namespace brx {

/// Chooses the kind of a new descriptor among those that the configuration may still get.
class dlgDescriptorType : public Form {
public:
    explicit dlgDescriptorType(Environment& environment);

    /// The descriptors that are there already.
    void set_Descriptors(const hlxOPCDescriptorsPtr& descriptors) { descriptors_ = descriptors; }
    /// The chosen type code, 0 to 8.
    std::int32_t DescriptorType() const { return descriptor_type_; }
    /// True only after OK.
    bool OKPressed() const { return ok_pressed_; }

private:
    // clang-format off
    ListBox List1   {*this, "List1",    {.place = {11, 11, 218, 149}, .tab = 1, .accessible_name = "Types of descriptors",
                                         .DblClick = [this] { List1_DblClick(); }}};
    Button  bnOK    {*this, "bnOK",     {.place = {72, 171, 75, 23}, .caption = "OK", .tab = 2, .is_default = true,
                                         .Click = [this] { bnOK_Click(); }}};
    Button  bnCancel{*this, "bnCancel", {.place = {154, 171, 75, 23}, .caption = "&Cancel", .tab = 3, .is_cancel = true,
                                         .Click = [this] { bnCancel_Click(); }}};
    // clang-format on

    void Form_Load() override;
    void Form_Unload() override { descriptors_ = nullptr; }
    void bnOK_Click();
    void List1_DblClick();
    void bnCancel_Click();

    hlxOPCDescriptorsPtr descriptors_;
    std::int32_t descriptor_type_ = 0;
    bool ok_pressed_ = false;
};

} // namespace brx
