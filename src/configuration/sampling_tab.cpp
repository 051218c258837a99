#include "common/values/convert.h"
#include "configuration/dlgConfiguration.h"
#include "tests/dlgEvaluation.h"

#include <array>

namespace brx {

namespace {

/// What `&` makes of a value at the end of a text.
std::string appended(const Variant& value, const Locale& locale) {
    return std::holds_alternative<Null>(value) ? std::string() : to_text(value, locale);
}

} // namespace

void dlgConfiguration::load_sampling() {
    const Locale& locale = environment().locale;
    hlxOPCConfiguration& configuration = the(configuration_);
    const Date sync = configuration.SyncDateTime();
    dtSyncDate.set_value(to_date(short_date(sync, locale), locale));
    dtSyncTime.set_value(to_date(long_time(sync, locale), locale));
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
    static constexpr std::array texts = {" Always ", " = ", " > ", " >= ", " < ", " <= ", " <> "};
    return type >= 0 && type < static_cast<std::int16_t>(texts.size()) ? texts[static_cast<std::size_t>(type)]
                                                                       : "";
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
    const std::string operator_text = trigger.type == 0 ? "" : ConvertExpression(trigger.type);
    return trigger.item + operator_text + appended(trigger.value, environment().locale);
}

} // namespace brx
