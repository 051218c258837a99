#include "common/values/calendar.h"
#include "common/values/convert.h"
#include "configuration/dlgConfiguration.h"
#include "tests/dlgEvaluation.h"

namespace brx {

namespace {

/// What `&` makes of a value at the end of a text.
std::string appended(const Variant& value, const Locale& locale) {
    return std::holds_alternative<Null>(value) ? std::string() : to_text(value, locale);
}

// What a picker keeps of a date-time: without its time, and without its day.
Date day_of(Date date) { return to_date(Moment{.day = to_moment(date).day, .second = 0}); }
Date time_of(Date date) { return to_date(Moment{.day = 0, .second = to_moment(date).second}); }

} // namespace

void dlgConfiguration::load_sampling() {
    const Locale& locale = environment().locale;
    hlxOPCConfiguration& configuration = the(configuration_);
    const Date sync = configuration.SyncDateTime();
    dtSyncDate.set_value(day_of(sync));
    dtSyncTime.set_value(time_of(sync));
    for (ComboBox* list : {&cboPieceTimeUnit, &cboSGTimeUnit})
        for (const char* unit : {"Seconds", "Minutes", "Hours", "Days", "Weeks", "Months", "Quarter", "Year"})
            list->add_line(unit);
    cboSGTimeUnit.select(configuration.SubgroupTimeUnit());
    cboPieceTimeUnit.select(configuration.PieceTimeUnit());
    txtSGInterval.set_text(to_text(configuration.SubgroupInterval(), locale));
    txtPieceTimeInterval.set_text(to_text(configuration.PieceInterval(), locale));

    const std::int16_t subgroup_type = configuration.SubgroupTriggerType();
    if (const std::string item = configuration.SubgroupTriggerItem(); !item.empty()) {
        subgroup_trigger_ = {subgroup_type, item, configuration.SubgroupTriggerValue()};
        txtSGEval.set_text(shown_trigger(subgroup_trigger_));
    }
    const std::int16_t piece_type = configuration.PieceTriggerType();
    if (const std::string item = configuration.PieceTriggerItem(); !item.empty()) {
        piece_trigger_ = {piece_type, item, configuration.PieceTriggerValue()};
        txtPieceEval.set_text(shown_trigger(piece_trigger_));
    }
}

std::string dlgConfiguration::shown_trigger(const Trigger& trigger) const {
    return trigger.item + ConvertExpression(trigger.type) + " " +
           appended(trigger.value, environment().locale);
}

std::string dlgConfiguration::ConvertExpression(std::int16_t type) const {
    return type == trigger_operator::always ? " Always " : operator_text(type);
}

void dlgConfiguration::txtPieceTimeInterval_Change() {
    trap("txtPieceTimeInterval_Change", [&] { color_by(txtSGInterval, txtPieceTimeInterval); });
}

void dlgConfiguration::txtPieceTimeInterval_KeyPress(std::int32_t& key_ascii) {
    trap("txtPieceTimeInterval_KeyPress", [&] { discard_all_but_digits(key_ascii); });
}

void dlgConfiguration::txtSGInterval_Change() {
    trap("txtSGInterval_Change", [&] { color_by(txtSGInterval, txtSGInterval); });
}

void dlgConfiguration::txtSGInterval_KeyPress(std::int32_t& key_ascii) {
    trap("txtSGInterval_KeyPress", [&] { discard_all_but_digits(key_ascii); });
}

void dlgConfiguration::cmdPieceTrigger_Click() {
    trap("cmdPieceTrigger_Click", [&] { txtPieceEval.set_text(SetTrigger(1)); });
}

void dlgConfiguration::cmdSubgroupTrigger_Click() {
    trap("cmdSubgroupTrigger_Click", [&] { txtSGEval.set_text(SetTrigger(0)); });
}

/// Lets a person set the trigger of pieces (1) or subgroups, and gives the text to show for it. "Always" has
/// no text here, and no blank parts operator and value, other than when the form loads.
std::string dlgConfiguration::SetTrigger(int kind) {
    Trigger& trigger = kind == 1 ? piece_trigger_ : subgroup_trigger_;
    dlgEvaluation dialog(environment());
    dialog.set_configuration(configuration_);
    dialog.set_TriggerExpression(trigger.type);
    dialog.set_TriggerOPCItemID(trigger.item);
    dialog.set_TriggerValue(trigger.value);
    dialog.show_modal();
    if (!dialog.OkClicked()) return (kind == 1 ? txtPieceEval : txtSGEval).text();
    trigger = {dialog.TriggerExpression(), dialog.TriggerOPCItemID(), dialog.TriggerValue()};
    return trigger.item + operator_text(trigger.type) + appended(trigger.value, environment().locale);
}

/// By way of their texts. Where the user's formats cannot be read back, as they are.
Date dlgConfiguration::synchronisation() const {
    const Locale& locale = environment().locale;
    const std::string text =
        short_date(dtSyncDate.value(), locale) + " " + long_time(dtSyncTime.value(), locale);
    if (const auto date = read_date(text, locale, current_year())) return *date;
    return to_date(
        Moment{.day = to_moment(dtSyncDate.value()).day, .second = to_moment(dtSyncTime.value()).second});
}

} // namespace brx
