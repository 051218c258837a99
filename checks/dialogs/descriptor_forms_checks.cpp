#include "configuration/dlgDescriptorProperties.h"
#include "forms/one_form.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

using namespace brx;
using namespace brx::checks;

// What the properties of a descriptor are labelled with.

namespace {

using Captions = std::map<std::string, std::string>;

/// Of the labels and buttons.
Captions captions_of(const Form& form) {
    Captions captions;
    for (const Control* control : form.controls()) {
        if (const auto* label = dynamic_cast<const Label*>(control))
            captions[control->name()] = label->caption();
        if (const auto* button = dynamic_cast<const Button*>(control))
            captions[control->name()] = button->caption();
    }
    return captions;
}

struct DescriptorForms : testing::Test {
    FakeHost host;
    ScriptedEngine engine;
    Environment environment{engine, host, host, Locale{}};
};

} // namespace

TEST_F(DescriptorForms, ThePropertiesHaveTheirCaptions) {
    const dlgDescriptorProperties form(environment);
    EXPECT_EQ(form.caption(), "Descriptor Properties");
    EXPECT_EQ(captions_of(form), (Captions{{"bnCancel", "&Cancel"},
                                           {"bnGroup", "..."},
                                           {"bnItem", "..."},
                                           {"bnOK", "OK"},
                                           {"bnSelect", "&C. Select from Database..."},
                                           {"lblGeneral", "&B. Item:"},
                                           {"lblGroup", "&A. Group:"}}));
}
