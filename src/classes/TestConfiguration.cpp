#include "classes/TestConfiguration.h"

#include "tests/dlgOPCTest.h"

namespace brx {

namespace {

constexpr std::int32_t item_not_shown = 2; ///< the state of a test whose item is not shown at first

}

bool TestConfiguration::Show(const ObjectPtr& hlxOPCTest) {
    bool confirmed = false;
    trap("Show", [&] {
        dlgOPCTest form(environment_);
        const hlxOPCTestPtr test = ResolvehlxOPCTest(hlxOPCTest);
        if (!test) return;
        form.set_test(test);
        form.set_database(database_of(test));
        form.set_TestOPCItemID(test->State() == item_not_shown ? std::string() : test->ItemText());
        form.show_modal();
        confirmed = form.OKPressed();
    });
    return confirmed;
}

/// Up the host's model: tests, configuration, server, servers, application.
hlxDatabasePtr TestConfiguration::database_of(const hlxOPCTestPtr& test) const {
    const hlxOPCConfigurationPtr configuration = the(test->Parent()).Parent();
    const hlxOPCServerPtr entry = the(the(configuration).Server()).ServerEntry();
    const auto servers = resolve<hlxOPCServers>(the(entry).Parent());
    const auto application = resolve<hlxApplication>(servers->Parent());
    return tools_.ResolveDatabase(application->Database());
}

hlxOPCTestPtr TestConfiguration::ResolvehlxOPCTest(const ObjectPtr& object) const {
    brx::hlxOPCTestPtr test;
    trap("ResolvehlxOPCTest", [&] { test = resolve<brx::hlxOPCTest>(object); });
    return test;
}

} // namespace brx
