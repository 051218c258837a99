#include "random/known_controls.h"

#include "browse/dlgItemSelect.h"
#include "configuration/dlgConfiguration.h"
#include "configuration/dlgDescriptorProperties.h"
#include "configuration/dlgDescriptorType.h"
#include "host/fake_host.h"
#include "servers/dlgServerAdd.h"
#include "servers/dlgServerInformation.h"
#include "servers/dlgServerSelect.h"
#include "tests/dlgEvaluation.h"
#include "tests/dlgOPCTest.h"

#include <map>

namespace brx::checks {

namespace {

/// No form is shown on it.
class NoScreen : public FormEngine {
public:
    void show_modal(Form&) override {}
    void repaint(Form&) override {}
    void hourglass(Form&, bool) override {}
    std::int32_t message_box(const Message&) override { return message::ok; }
    HelpOutcome show_help(const std::string&, std::int32_t) override { return HelpOutcome::missing; }
};

using Controls = std::map<std::string, std::vector<KnownControl>>;

template <class Dialog> void add_controls(Environment& environment, Controls& all) {
    const auto dialog = std::make_unique<Dialog>(environment);
    for (const Control* control : dialog->controls())
        all[dialog->name()].push_back({control->name(), control->kind()});
}

const Controls& known_controls() {
    static const Controls known = [] {
        FakeHost host;
        NoScreen engine;
        Environment environment(engine, host, host, Locale{});
        Controls all;
        add_controls<dlgServerSelect>(environment, all);
        add_controls<dlgServerAdd>(environment, all);
        add_controls<dlgServerInformation>(environment, all);
        add_controls<dlgItemSelect>(environment, all);
        add_controls<dlgConfiguration>(environment, all);
        add_controls<dlgDescriptorType>(environment, all);
        add_controls<dlgDescriptorProperties>(environment, all);
        add_controls<dlgOPCTest>(environment, all);
        add_controls<dlgEvaluation>(environment, all);
        return all;
    }();
    return known;
}

} // namespace

const std::vector<KnownControl>& controls_on(const std::string& form) {
    static const std::vector<KnownControl> none;
    const auto found = known_controls().find(form);
    return found == known_controls().end() ? none : found->second;
}

std::vector<std::string> all_forms() {
    std::vector<std::string> names;
    for (const auto& [name, controls] : known_controls()) names.push_back(name);
    return names;
}

} // namespace brx::checks
