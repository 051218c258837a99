#pragma once

#include "random/chance.h"
#include "random/deed.h"
#include "random/known_controls.h"
#include "screen.h"

#include <string>
#include <vector>

namespace brx::checks {

/// Where the deeds come from: by chance, but with an eye on the screen, so that most of them are possible.
class Source {
public:
    Source(std::uint64_t seed, std::string of_class) : chance_(seed), class_(std::move(of_class)) {}

    /// The first ones of a sitting, `begins` in front.
    Deeds beginning();
    /// How many it has besides.
    int length() { return chance_.between(20, 120); }
    /// The next one, before this screen.
    Deed next(Screen& screen, bool is_showing);

private:
    Deed of_the_host();
    Deed change();
    Deed in_a_call(Deed deed);
    Deed showing();
    Deed before_a_message(const Message& message);
    Deed before_a_form(Screen& screen, const std::string& form);
    /// Something to be done with it, as it looks.
    Deed at(const KnownControl& control, const Sight& sight);
    Deed with_keys();

    Chance chance_;
    std::string class_;
    // What this sitting's host is like.
    bool fails_ = false;
    bool is_strange_ = false;
    bool changes_ = false;
    bool is_hurried_ = false; ///< the person does things while it works
    Deeds waiting_;           ///< the next ones, the last one first
};

} // namespace brx::checks
