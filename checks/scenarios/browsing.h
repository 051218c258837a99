#pragma once

#include "help_file.h"
#include "scenario.h"

#include <algorithm>
#include <string>
#include <vector>

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

/// Calls to the host, in order. With a failing host there may be fewer than a story counts on.
struct Calls : std::vector<std::string> {
    using vector::vector;
    std::string nth(std::size_t index) const { return index < size() ? (*this)[index] : std::string(); }
    Calls part(std::size_t from, std::size_t count) const {
        const std::size_t begin_at = std::min(from, size());
        const auto first = begin() + static_cast<std::ptrdiff_t>(begin_at);
        return Calls(first, first + static_cast<std::ptrdiff_t>(std::min(count, size() - begin_at)));
    }
    Calls last(std::size_t count) const { return part(size() - std::min(count, size()), count); }
};

/// The item browser, open for the host's connected server.
class Browsing {
public:
    explicit Browsing(Play& its, const std::string& start = "")
        : its_(its), select_(*its.stage, "LeafSelect") {
        if (!start.empty()) select_.set_ItemID(start);
        show();
        its.person.is_at("dlgItemSelect");
    }
    void show() { select_.show(its_.host.connection, its_.host.group); }

    bool result() { return select_.result(); }
    std::string ItemID() { return select_.ItemID(); }

    /// The calls to the server, its browser and the group since the last time, in order.
    Calls calls() {
        const std::vector<std::string> all = its_.host.calls.members();
        Calls news(all.begin() + static_cast<std::ptrdiff_t>(known_), all.end());
        known_ = all.size();
        std::erase(news, "hlxHelp.HelpFile");
        return news;
    }

private:
    Play& its_;
    Showing select_;
    std::size_t known_ = 0;
};

} // namespace brx::checks
