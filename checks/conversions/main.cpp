// Compares the conversions with the platform's: with the automation library in three locales, or, with
// --script, with the script engine in the user's locale.
//
//   brx_conversions [--script LOCALE] [--list] [--table]
//
// --script LOCALE says which locale the user is expected to have; where he has another one nothing can be
// compared.
// --list prints every difference, --table the table of known differences as it would have to be.

#include "com/system_locale.h"
#include "common/error.h"
#include "conversions/conversions.h"
#include "system/this_system.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace {

using namespace brx;
using namespace brx::conversions;

void compare_with_library(Comparison& comparison) {
    for (const ComparedLocale& where : compared_locales()) {
        compare_settings(comparison, where);
        compare_library(comparison, where);
        if (where.name != "fr-FR") compare_limits(comparison, where);
    }
    compare_numbers(comparison);
    compare_letters(comparison);
}

void compare_with_script(Comparison& comparison, const std::string& name) {
    const auto& locales = compared_locales();
    const auto known =
        std::find_if(locales.begin(), locales.end(), [&](const auto& l) { return l.name == name; });
    if (known == locales.end()) throw Error(error::invalid_procedure_call, "unknown locale " + name);
    if (GetUserDefaultLCID() != known->identifier) {
        comparison.skip("the user's locale is not " + name);
        return;
    }
    // As the product reads them, with what the user changed.
    const Locale settings = system_locale();
    const ComparedLocale where = {"script " + name, known->identifier, settings};
    compare_script(comparison, where, Script());
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const auto given = [&](const char* option) {
        return std::find(arguments.begin(), arguments.end(), option);
    };
    Comparison comparison(given("--list") != arguments.end(), checks::is_wine());
    const auto script = given("--script");
    try {
        if (script == arguments.end()) {
            compare_with_library(comparison);
        } else {
            compare_with_script(comparison, script + 1 == arguments.end() ? "" : script[1]);
        }
    } catch (const Error& error) {
        std::fprintf(stderr, "brx_conversions: %s\n", error.what());
        return 2;
    }
    if (given("--table") != arguments.end()) comparison.print_table();
    return comparison.finish() ? 0 : 1;
}
