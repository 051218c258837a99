#include "random/cutter.h"

#include <algorithm>
#include <cstddef>

namespace brx::checks {

namespace {

using Judge = std::function<bool(const Deeds&)>;
using Offset = Deeds::difference_type;

/// Leaves out `length` deeds at a time wherever that can be done; whether it could be anywhere.
bool leave_out(Deeds& story, std::size_t length, const Judge& ends_the_same) {
    bool any = false;
    // From the end: what comes last led to the end, what comes before it hardly did.
    for (std::size_t end = story.size(); end > 0;) {
        const std::size_t begin = end - std::min(length, end);
        Deeds shorter = story;
        shorter.erase(shorter.begin() + static_cast<Offset>(begin),
                      shorter.begin() + static_cast<Offset>(end));
        if (ends_the_same(shorter)) {
            story = std::move(shorter);
            any = true;
        }
        end = std::min(begin, story.size());
    }
    return any;
}

void simplify(Deeds& story, const Judge& ends_the_same) {
    const auto try_with = [&](std::size_t position, auto&& edit) {
        Deeds simpler = story;
        edit(simpler[position]);
        if (simpler != story && ends_the_same(simpler)) story = std::move(simpler);
    };
    for (std::size_t i = 0; i < story.size(); ++i) {
        try_with(i, [](Deed& deed) { deed.text.clear(); });
        try_with(i, [](Deed& deed) { deed.text.resize(std::min<std::size_t>(deed.text.size(), 1)); });
        try_with(i, [](Deed& deed) {
            if (deed.verb == Verb::changes) deed.number = 0;
        });
    }
}

} // namespace

Deeds cut_down(Deeds story, const Judge& ends_the_same) {
    for (std::size_t length = std::max<std::size_t>(story.size() / 2, 1); length > 0; length /= 2)
        while (leave_out(story, length, ends_the_same) && length == 1) {
        }
    simplify(story, ends_the_same);
    return story;
}

} // namespace brx::checks
