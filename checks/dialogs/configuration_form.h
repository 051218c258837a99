#pragma once

#include "configuration/dlgConfiguration.h"
#include "forms/one_form.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace brx::checks {

/// The configuration dialog with a test to list, driven through its controls.
struct ConfigurationForm : testing::Test {
    ConfigurationForm() {
        host.has_test(7, "Length")->fields.item_id = "Line1.Speed";
        form.set_configuration(host.configuration);
    }

    FakeHost host;
    ScriptedEngine engine;
    Environment environment{engine, host, host, Locale{}};
    dlgConfiguration form{environment};

    template <class Which> Which& find(const std::string& name) { return control_of<Which>(form, name); }
    TextBox& box(const std::string& name) { return find<TextBox>(name); }
    ListView& list(const std::string& name) { return find<ListView>(name); }
    void tick() { EXPECT_TRUE(find<Timer>("Timer1").tick()); }

    void while_open(const std::function<void()>& story) {
        engine.while_open = [=](Form& shown) {
            const ModalTurn waiting(&shown);
            story();
        };
        form.show_modal();
    }
    /// What is typed, or pasted, replaces the text.
    void enter(const std::string& name, const std::string& text) {
        const bool on_sampling = name == "txtSGInterval" || name == "txtPieceTimeInterval";
        EXPECT_TRUE(find<TabStrip>("TabStrip1").user_select(on_sampling ? 2 : 1));
        EXPECT_TRUE(box(name).user_text(text));
    }

    std::vector<std::string> red_boxes() {
        std::vector<std::string> red;
        for (const char* name :
             {"txtDeadband", "txtPieceTimeInterval", "txtSGInterval", "txtSubgroupSize", "txtUpdateRate"})
            if (box(name).back_color() != color::window) {
                EXPECT_EQ(box(name).back_color(), color::red);
                red.emplace_back(name);
            }
        return red;
    }
};

} // namespace brx::checks
