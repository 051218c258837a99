#include "common/values/convert.h"
#include "configuration/dlgConfiguration.h"

namespace brx {

void dlgConfiguration::load_general() {
    const Locale& locale = environment().locale;
    hlxOPCConfiguration& configuration = the(configuration_);
    work().waits_for("Reading the configuration");
    const hlxOPCServerPtr entry = the(configuration.Server()).ServerEntry();
    const std::string node = the(entry).Node();
    txtServer.set_text(server_display_text(node, entry->ServerName()));
    txtName.set_text(configuration.Name());
    txtSubgroupSize.set_text(to_text(configuration.SubgroupSize(), locale));
    txtUpdateRate.set_text(to_text(configuration.UpdateRate(), locale));
    txtDeadband.set_text(to_text(configuration.DeadBand(), locale));
    chkActive.set_value(configuration.Active() ? 1 : 0);
}

/// Backspace, signs and separators go too; whoever needs them pastes.
void dlgConfiguration::discard_all_but_digits(std::int32_t& key_ascii) {
    if (key_ascii < '0' || key_ascii > '9') key_ascii = 0;
}

void dlgConfiguration::color_by(const TextBox& number, TextBox& box) {
    const double value = val(number.text());
    box.set_back_color(value >= 0 && value <= 30000 ? color::window : color::red);
}

// All fields but the update rate take their colour from the subgroup interval, each when its own text
// changes.

void dlgConfiguration::txtDeadband_Change() {
    trap("txtDeadband_Change", [&] { color_by(txtSGInterval, txtDeadband); });
}

void dlgConfiguration::txtDeadband_KeyPress(std::int32_t& key_ascii) {
    trap("txtDeadband_KeyPress", [&] { discard_all_but_digits(key_ascii); });
}

void dlgConfiguration::txtSubgroupSize_Change() {
    trap("txtSubgroupSize_Change", [&] { color_by(txtSGInterval, txtSubgroupSize); });
}

void dlgConfiguration::txtSubgroupSize_KeyPress(std::int32_t& key_ascii) {
    trap("txtSubgroupSize_KeyPress", [&] { discard_all_but_digits(key_ascii); });
}

void dlgConfiguration::txtUpdateRate_Change() {
    trap("txtUpdateRate_Change", [&] { color_by(txtUpdateRate, txtUpdateRate); });
}

void dlgConfiguration::txtUpdateRate_KeyPress(std::int32_t& key_ascii) {
    trap("txtUpdateRate_KeyPress", [&] { discard_all_but_digits(key_ascii); });
}

} // namespace brx
