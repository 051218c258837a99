#pragma once

#include "common/model/factory.h"
#include "common/values/locale.h"
#include "forms/engine.h"
#include "forms/error_reports.h"
#include "forms/services.h"

#include <string>
#include <utility>

namespace brx {

/// Everything around the dialogs: where they run, where they report, what the host supplies, how the user
/// writes numbers and dates.
struct Environment {
    Environment(FormEngine& on, ErrorLibraries& to, ObjectFactory& from, Locale user_locale)
        : engine(on),
          objects(from),
          services(from, on),
          errors(to, services),
          locale(std::move(user_locale)) {}
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

    FormEngine& engine;
    ObjectFactory& objects;
    Services services;
    ErrorReports errors;
    Locale locale;
    std::string help_file; ///< opened by F1; "" as long as no dialog has asked the host for it
};

} // namespace brx
