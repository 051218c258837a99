#pragma once

#include "common/model/factory.h"
#include "common/trap.h"
#include "common/values/locale.h"
#include "forms/engine.h"
#include "forms/services.h"

#include <string>
#include <utility>

namespace brx {

/// Everything around the dialogs: where they run, whom they report to, what the host supplies, how the user
/// writes numbers and dates.
struct Environment {
    Environment(FormEngine& on, ErrorReporter& to, ObjectFactory& from, Locale user_locale)
        : engine(on), errors(to), objects(from), services(from, on), locale(std::move(user_locale)) {}

    FormEngine& engine;
    ErrorReporter& errors;
    ObjectFactory& objects;
    Services services;
    Locale locale;
    std::string help_file; ///< opened by F1; each dialog sets it from the host's help service as it loads
};

} // namespace brx
