#include "classes/TestConfiguration.h"

#include "tests/dlgOPCTest.h"

namespace brx {

bool TestConfiguration::Show(const ObjectPtr& hlxOPCTest) {
    bool confirmed = false;
    run_show([&] {
        dlgOPCTest form(environment_);
        const hlxOPCTestPtr test = ResolvehlxOPCTest(hlxOPCTest);
        if (!test) return;
        form.set_test(test);
        form.set_database(tools_.database_of(the(test->Parent()).Parent()));
        const std::int32_t state = test->State();
        form.set_TestState(state);
        form.set_TestOPCItemID(state == test_state::item_not_shown ? std::string() : test->ItemText());
        form.show_modal();
        confirmed = form.OKPressed();
    });
    return confirmed;
}

hlxOPCTestPtr TestConfiguration::ResolvehlxOPCTest(const ObjectPtr& object) const {
    brx::hlxOPCTestPtr test;
    trap("ResolvehlxOPCTest", [&] { test = resolve<brx::hlxOPCTest>(object); });
    return test;
}

} // namespace brx
