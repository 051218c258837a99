#pragma once

#include "scenario.h"

#include <string>
#include <vector>

namespace brx::checks {

/// The configuration dialog, open for the host's configuration.
class Configuring {
public:
    explicit Configuring(Play& its) : its_(its), setup_(*its.stage, "ConfigurationSetup") {
        setup_.show(its.host.configuration);
        its.person.is_at("dlgConfiguration");
    }

    ConfigurationFields& fields() { return its_.host.configuration->fields; }

    void turns_to(const std::string& tab) { its_.person.picks("TabStrip1", tab); }
    void turns_to_sampling() { turns_to("&2. Sampling"); }
    void turns_to_descriptors() { turns_to("&3. Descriptors"); }
    /// Closes with the button, which must work.
    void closes() {
        its_.person.presses("bnClose");
        its_.person.is_at("");
        setup_.result();
    }
    /// Closes with the window's own box.
    void leaves() {
        its_.person.closes_the_window();
        its_.person.is_at("");
        setup_.result();
    }

    /// Which of the tabs' containers show, from 0.
    std::vector<int> containers() {
        std::vector<int> shown;
        for (int i = 0; i < 4; ++i)
            if (its_.person.sees("frmTab(" + std::to_string(i) + ")").visible) shown.push_back(i);
        return shown;
    }

    /// What has been written to the configuration, in order.
    std::vector<std::string> writes() const {
        std::vector<std::string> writes = its_.host.calls.members();
        std::erase_if(writes, [](const std::string& member) { return !member.ends_with("="); });
        return writes;
    }

private:
    Play& its_;
    Showing setup_;
};

/// The configuration belongs to a server of the local computer without a connection.
inline void an_unconnected_server(Play& its, const std::string& server_name) {
    const auto entry = std::make_shared<FakeServer>(its.host.calls, server_name, "");
    entry->parent = its.host.servers;
    its.host.configuration->server->entry = entry;
}

/// Puts a text into a box of numbers, as only pasting can.
inline void pastes_into(Person& person, const std::string& box, const std::string& text) {
    person.replaces(box, "");
    person.pastes(text);
}

/// A configuration with a test, so that it can be closed, and something in every field.
inline Play& a_filled_configuration(Play& its) {
    its.host.group->items->has("Line1.Speed");
    its.host.group->items->has("Line1.Force");
    const auto test = its.host.has_test(7, "Length");
    test->fields.item_id = test->fields.item_text = "Line1.Speed";
    its.host.configuration->fields = {.subgroup_size = 5,
                                      .subgroup_trigger_item = "Line1.Speed",
                                      .subgroup_interval = 30,
                                      .subgroup_time_unit = 1,
                                      .piece_trigger_item = "Line1.Force",
                                      .piece_interval = 10,
                                      .piece_time_unit = 0,
                                      .sync_date_time = Date{46347.5625}, // 21 November 2026 13:30
                                      .subgroup_trigger_type = 1,
                                      .subgroup_trigger_value = std::int16_t{5},
                                      .piece_trigger_type = 4,
                                      .piece_trigger_value = 2.5,
                                      .name = "Line 1",
                                      .active = true,
                                      .dead_band = 0.1F,
                                      .update_rate = 1000};
    return its;
}

} // namespace brx::checks
