#pragma once

#include "configuring.h"

#include <string>

namespace brx::checks {

/// The properties of the configuration's only descriptor.
class Describing {
public:
    Describing(Play& its, const DescriptorFields& fields) : its_(its), around_(prepared(its, fields)) {
        around_.turns_to_descriptors();
        its.person.double_clicks("lvwDescriptors", its.person.line_of("lvwDescriptors", 0));
        its.person.is_at("dlgDescriptorProperties");
    }

    DescriptorFields fields() const { return its_.host.configuration->descriptors->entries[0]->fields; }
    void confirms() { leaves_by("bnOK"); }
    void cancels() { leaves_by("bnCancel"); }
    /// Chooses an item with one of the two browse buttons.
    void browses(const std::string& button, const std::string& item) {
        its_.person.presses(button);
        its_.person.is_at("dlgItemSelect");
        its_.person.enters("txtFullPath", item);
        its_.person.presses("bnOK");
    }

private:
    static Play& prepared(Play& its, const DescriptorFields& fields) {
        its.host.browser->root.has("Line1", {"Speed", "Force"});
        for (const char* item : {"Line1.Speed", "Line1.Force"}) its.host.group->items->answers[item] = 0;
        its.host.configuration->descriptors->has(fields);
        return its;
    }
    void leaves_by(const std::string& button) {
        its_.person.presses(button);
        its_.person.is_at("dlgConfiguration");
        around_.leaves();
    }

    Play& its_;
    Configuring around_;
};

} // namespace brx::checks
