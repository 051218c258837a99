#pragma once

#include "forms/environment.h"
#include "forms/showing.h"

#include <utility>

namespace brx {

/// What the public classes have in common: what their dialogs run in, and a Show that keeps its errors.
class DialogClass : protected Module {
protected:
    DialogClass(const char* name, Environment& environment)
        : Module(name, environment.errors), environment_(environment) {}
    ~DialogClass() = default;

    /// Runs the body of Show under its trap, and as a showing.
    template <class Body> void run_show(Body&& body) const noexcept {
        const ShowingScope here;
        trap("Show", std::forward<Body>(body));
    }

    Environment& environment_;
};

} // namespace brx
