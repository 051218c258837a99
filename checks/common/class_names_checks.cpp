#include "classes/ConfigurationSetup.h"
#include "classes/LeafSelect.h"
#include "classes/ServerAdd.h"
#include "classes/ServerInformation.h"
#include "classes/ServerSelect.h"
#include "classes/TestConfiguration.h"
#include "forms/one_form.h"

#include <gtest/gtest.h>

using namespace brx;
using namespace brx::checks;

namespace {

/// A screen that no dialog comes up on.
struct NoScreen : testing::Test {
    NoScreen() {
        engine.while_open = [](Form&) { throw Error(error::out_of_memory); };
    }

    FakeHost host;
    ScriptedEngine engine;
    Environment environment{engine, host, host, Locale{}};

    std::string place_of_report() {
        std::string places;
        for (const Report& each : host.reports) places += each.what.location + "\n";
        host.reports.clear();
        return places;
    }
};

} // namespace

TEST_F(NoScreen, EachClassReportsUnderItsOwnName) {
    EXPECT_FALSE(ServerSelect(environment).Show(host.servers));
    EXPECT_EQ(place_of_report(), "ServerSelect.Show\n");
    EXPECT_FALSE(ServerAdd(environment).Show(host.servers));
    EXPECT_EQ(place_of_report(), "ServerAdd.Show\n");
    EXPECT_FALSE(ServerInformation(environment).Show(host.connection));
    EXPECT_EQ(place_of_report(), "ServerInformation.Show\n");
    EXPECT_FALSE(LeafSelect(environment).Show(host.connection, host.group));
    EXPECT_EQ(place_of_report(), "LeafSelect.Show\n");
    EXPECT_FALSE(TestConfiguration(environment).Show(host.has_test(7, "Length")));
    EXPECT_EQ(place_of_report(), "TestConfiguration.Show\n");
    ConfigurationSetup(environment).Show(host.configuration);
    EXPECT_EQ(place_of_report(), "ConfigurationSetup.Show\n");
}
