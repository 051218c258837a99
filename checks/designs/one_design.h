#pragma once

#include "designs/design_text.h"
#include "forms/one_form.h"

#include <string>

namespace brx::checks {

/// The design of a dialog that nobody has shown yet.
template <class Dialog> std::string design_of() {
    FakeHost host;
    ScriptedEngine engine;
    Environment environment(engine, host, host, Locale{});
    const Dialog dialog(environment);
    return design_text(dialog);
}

} // namespace brx::checks
