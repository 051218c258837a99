#pragma once

#include "calls.h"
#include "help_file.h"

#include <string>

namespace brx::checks {

/// What an address space usually looks like.
inline void a_plant(Play& its) {
    FakeBranch& root = its.host.browser->root;
    root.leaves = {"Version"};
    FakeBranch& line = root.has("Line1", {"Running", "Speed"});
    line.has("Oven", {"Temperature", "Door"});
    line.has("Press", {"Force"});
    root.has("Line2", {"Count"});
    for (const char* item : {"Line1.Running", "Line1.Speed", "Line1.Oven.Temperature", "Line2.Count"})
        its.host.group->items->answers[item] = 0;
}

/// The item browser, open for the host's connected server.
class Browsing {
public:
    explicit Browsing(Play& its, const std::string& start = "")
        : its_(its), select_(*its.stage, "LeafSelect"), made_(its) {
        if (!start.empty()) select_.set_ItemID(start);
        show();
        its.person.is_at("dlgItemSelect");
    }
    void show() { select_.show(its_.host.connection, its_.host.group); }

    bool result() { return select_.result(); }
    std::string ItemID() { return select_.ItemID(); }

    /// The calls to the server, its browser and the group since the last time, in order.
    Calls calls() {
        Calls news = made_.since_then();
        for (const char* of_help : {"create hlxHelp", "hlxHelp.HelpFile"}) std::erase(news, of_help);
        return news;
    }

private:
    Play& its_;
    Showing select_;
    CallsMade made_;
};

} // namespace brx::checks
