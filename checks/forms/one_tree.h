#pragma once

#include "one_form.h"
#include "rules/tree_form.h"

#include <gtest/gtest.h>

namespace brx::checks {

struct OneTree {
    FakeHost host;
    ScriptedEngine engine;
    Environment environment{engine, host, host, Locale{}};
    TreeForm form{environment};
    TreeView& tree = form.Tree;

    OneTree() { form.has_signs_at_the_root = false; }
    void while_open(const std::function<void()>& story) {
        engine.while_open = [&](Form&) { story(); };
        form.show_modal();
    }
    void add_food() { form.add_food(); }
    std::string selected() const { return tree.selected() ? tree.selected()->text() : "none"; }
};

} // namespace brx::checks
