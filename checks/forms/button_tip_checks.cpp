#include "configuration/dlgConfiguration.h"
#include "configuration/dlgDescriptorProperties.h"
#include "one_form.h"
#include "tests/dlgEvaluation.h"
#include "tests/dlgOPCTest.h"

#include <gtest/gtest.h>

#include <map>

using namespace brx;
using namespace brx::checks;

namespace {

std::map<std::string, std::string> tips_of(const Form& form) {
    std::map<std::string, std::string> tips;
    for (Control* control : form.controls())
        if (const auto* button = dynamic_cast<Button*>(control); button && button->caption() == "...")
            tips.emplace(button->name(), button->tip());
    return tips;
}
using Tips = std::map<std::string, std::string>;

} // namespace

TEST(ButtonTips, AButtonOfDotsSaysInWordsWhatItOpens) {
    FakeHost host;
    ScriptedEngine engine;
    Environment environment{engine, host, host, Locale{}};
    EXPECT_EQ(tips_of(dlgOPCTest(environment)), (Tips{{"bnTest", "Choose a test from the database"},
                                                      {"bnItem", "Browse the server for an item"}}));
    EXPECT_EQ(tips_of(dlgEvaluation(environment)), (Tips{{"bnItem", "Browse the server for an item"}}));
    EXPECT_EQ(tips_of(dlgDescriptorProperties(environment)),
              (Tips{{"bnGroup", "Browse the server for the group's item"},
                    {"bnItem", "Browse the server for an item"}}));
    EXPECT_EQ(tips_of(dlgConfiguration(environment)),
              (Tips{{"cmdSubgroupTrigger", "Set the trigger of subgroups"},
                    {"cmdPieceTrigger", "Set the trigger of pieces"}}));
}
