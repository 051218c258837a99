#pragma once

#include "common/model/opc_automation.h"
#include "forms/button.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/parted_tick.h"
#include "forms/text_box.h"
#include "forms/timer.h"

#include <functional>

namespace brx {

/// Shows the status of one connected OPC server and keeps its times current.
class dlgServerInformation : public Form {
public:
    explicit dlgServerInformation(Environment& environment);

    void set_server(const OPCServerPtr& server) { server_ = server; }

private:
    // clang-format off
    Frame   Frame1 {*this,  "Frame1",  {.place = {11, 7, 378, 171}, .tab = 1}};
    Label   Label1 {Frame1, "Label1",  {.place = {11, 24, 113, 15}, .caption = "Start Time", .tab = 2}};
    TextBox Start  {Frame1, "Start",   {.place = {128, 20, 239, 23}, .tab = 3, .display_only = true}};
    Label   Label2 {Frame1, "Label2",  {.place = {11, 53, 113, 15}, .caption = "Current Time", .tab = 4}};
    TextBox Current{Frame1, "Current", {.place = {128, 49, 239, 23}, .tab = 5, .display_only = true}};
    Label   Label3 {Frame1, "Label3",  {.place = {11, 82, 113, 15}, .caption = "Last Update Time", .tab = 6}};
    TextBox Last   {Frame1, "Last",    {.place = {128, 78, 239, 23}, .tab = 7, .display_only = true}};
    Label   Label4 {Frame1, "Label4",  {.place = {11, 111, 113, 15}, .caption = "Version", .tab = 8}};
    TextBox Version{Frame1, "Version", {.place = {128, 107, 239, 23}, .tab = 9, .display_only = true}};
    Label   Label5 {Frame1, "Label5",  {.place = {11, 140, 113, 15}, .caption = "Vendor Information", .tab = 10}};
    TextBox Vendor {Frame1, "Vendor",  {.place = {128, 136, 239, 23}, .tab = 11, .display_only = true}};
    Button  bnOK   {*this,  "bnOK",    {.place = {314, 189, 75, 23}, .caption = "OK", .tab = 12, .is_default = true,
                                        .is_cancel = true, .Click = [this] { bnOK_Click(); }}};
    Timer   Timer1 {*this,  "Timer1",  {.interval = 1000, .Timer = [this] { Timer1_Timer(); }}};
    // clang-format on

    void Form_Load() override;
    void Form_Unload() override { server_ = nullptr; }
    void Timer1_Timer();
    void bnOK_Click();

    /// `now` says for each whether it is read now.
    void ShowTimes(const std::function<bool()>& now);

    PartedTick tick_;
    OPCServerPtr server_;
};

} // namespace brx
