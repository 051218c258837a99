#pragma once

#include "scenario.h"

namespace brx::checks {

/// The dialog is on the screen with the local computer's servers.
struct Adding {
    explicit Adding(Play& play) : its(play) { add.show(its.host.servers); }
    Play& its;
    Showing add{*its.stage, "ServerAdd"};

    void lists_node(const std::string& node) {
        its.person.enters("txtNode", node);
        its.person.presses("cmdRefreshList");
    }
    void cancels() {
        its.person.presses("bnCancel");
        EXPECT_FALSE(add.result());
    }
};

} // namespace brx::checks
