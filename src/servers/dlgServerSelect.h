#pragma once

#include "common/model/collection.h"
#include "forms/button.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/list_control.h"

#include <cstdint>

namespace brx {

/// Lets a person pick one of the host's configured OPC servers, or add one first.
class dlgServerSelect : public Form {
public:
    explicit dlgServerSelect(Environment& environment);

    void set_servers(const hlxOPCServersPtr& servers) { servers_ = servers; }
    /// The position of the chosen server in the host's collection; 0 for none.
    std::int16_t selected_server_index() const { return selected_server_index_; }

private:
    // clang-format off
    Frame    Frame1    {*this,  "Frame1",     {.place = {11, 7, 378, 56}, .tab = 1}};
    Label    lblGeneral{Frame1, "lblGeneral", {.place = {11, 24, 72, 15}, .caption = "OPC Server:", .tab = 2}};
    ComboBox cboServer {Frame1, "cboServer",  {.place = {87, 20, 199, 23}, .tab = 3,
                                               .Click = [this] { cboServer_Click(); }}};
    Button   bnServer  {Frame1, "bnServer",   {.place = {293, 20, 75, 23}, .caption = "&Add...", .tab = 4,
                                               .Click = [this] { bnServer_Click(); }}};
    Button   bnOK      {*this,  "bnOK",       {.place = {232, 74, 75, 23}, .caption = "OK", .tab = 5,
                                               .enabled = false, .is_default = true,
                                               .Click = [this] { bnOK_Click(); }}};
    Button   bnCancel  {*this,  "bnCancel",   {.place = {314, 74, 75, 23}, .caption = "&Cancel", .tab = 6,
                                               .is_cancel = true, .Click = [this] { bnCancel_Click(); }}};
    // clang-format on

    void Form_Load() override;
    void Form_Unload() override { servers_ = nullptr; }
    void cboServer_Click();
    void bnServer_Click();
    void bnOK_Click();
    void bnCancel_Click();

    void BuildList();

    hlxOPCServersPtr servers_;
    std::int16_t selected_server_index_ = 0;
};

} // namespace brx
