#pragma once

#include "configuring.h"

#include <string>

namespace brx::checks {

/// The group has an item of each type whose values are converted, and one of text.
inline void items_of_each_type(Play& its) {
    FakeOPCItems& items = *its.host.group->items;
    items.data_types = {{"Short", 2}, {"Count", 3}, {"Single", 4}, {"Flag", 11}, {"Text", 8}};
    for (const char* item : {"Short", "Count", "Single", "Flag", "Text"}) items.has(item);
}

/// A configuration whose subgroups have this trigger.
inline void a_trigger(Play& its, const std::string& item, std::int16_t operator_code, const Variant& value) {
    a_filled_configuration(its);
    items_of_each_type(its);
    its.host.configuration->fields.subgroup_trigger_item = item;
    its.host.configuration->fields.subgroup_trigger_type = operator_code;
    its.host.configuration->fields.subgroup_trigger_value = value;
}

/// The trigger dialog of the subgroups.
class Triggering {
public:
    /// Opens it; what comes before it shows is for the story to look at.
    explicit Triggering(Play& its) : its_(its), dialog_(its) {
        dialog_.turns_to_sampling();
        its.person.presses("cmdSubgroupTrigger");
    }

    /// Takes the trigger, which the configuration keeps when it is closed.
    void confirms() {
        its_.person.presses("bnOK");
        its_.person.is_at("dlgConfiguration");
        dialog_.closes();
    }
    /// Leaves the trigger and the configuration as they were.
    void cancels() {
        its_.person.presses("bnCancel");
        its_.person.is_at("dlgConfiguration");
        dialog_.leaves();
    }
    Configuring& configuration() { return dialog_; }

    const std::string& item() { return dialog_.fields().subgroup_trigger_item; }
    std::int16_t operator_code() { return dialog_.fields().subgroup_trigger_type; }
    const Variant& value() { return dialog_.fields().subgroup_trigger_value; }

private:
    Play& its_;
    Configuring dialog_;
};

} // namespace brx::checks
