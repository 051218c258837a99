#include "servers/dlgServerInformation.h"

#include "common/common_tools.h"
#include "common/values/convert.h"
#include "forms/setup_form.h"

namespace brx {

dlgServerInformation::dlgServerInformation(Environment& environment)
    : Form(environment,
           {.name = "dlgServerInformation", .caption = "Server Information", .size = {400, 223}}) {}

void dlgServerInformation::Form_Load() {
    trap("Form_Load", [&] {
        if (!server_) return;
        work().waits_for("Reading the status of the server");
        const std::string node = server_->ServerNode();
        set_caption(server_display_text(node, server_->ServerName()));
        ShowTimes([] { return true; });
        const std::string major = to_text(server_->MajorVersion(), environment().locale);
        Version.set_text(major + "." + to_text(server_->MinorVersion(), environment().locale));
        Vendor.set_text(server_->VendorInfo());
        SetupForm(*this, 198);
    });
}

void dlgServerInformation::Timer1_Timer() {
    trap("Timer1_Timer", [&] {
        tick_.begin();
        if (server_) ShowTimes([&] { return tick_.takes_step(work()); });
    });
}

void dlgServerInformation::bnOK_Click() {
    trap("bnOK_Click", [&] { unload(); });
}

/// Passes its errors on.
void dlgServerInformation::ShowTimes(const std::function<bool()>& now) {
    const Locale& locale = environment().locale;
    if (now()) Start.set_text(to_text(server_->StartTime(), locale));
    if (now()) Current.set_text(to_text(server_->CurrentTime(), locale));
    if (now()) Last.set_text(to_text(server_->LastUpdateTime(), locale));
}

} // namespace brx
