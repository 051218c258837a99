// What a screen reader says of the controls.

#include "desk/desk.h"
#include "desk/spoken.h"
#include "host/fake_host.h"
#include "pages.h"

#include "browse/dlgItemSelect.h"
#include "configuration/dlgConfiguration.h"
#include "configuration/dlgDescriptorProperties.h"
#include "configuration/dlgDescriptorType.h"
#include "forms/accessible_name.h"
#include "servers/dlgServerAdd.h"
#include "servers/dlgServerInformation.h"
#include "servers/dlgServerSelect.h"
#include "tests/dlgEvaluation.h"
#include "tests/dlgOPCTest.h"
#include "win32/module.h"

#include <oleacc.h>

namespace brx::checks {

namespace {

/// A dialog that was handed nothing tells so, and shows its controls all the same.
template <class Dialog> class EachDialogSpoken : public OnWindows {
protected:
    EachDialogSpoken() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
    ~EachDialogSpoken() override { CoUninitialize(); }

    Dialog form{environment};
};

using Dialogs =
    testing::Types<dlgServerSelect, dlgServerAdd, dlgServerInformation, dlgItemSelect, dlgConfiguration,
                   dlgDescriptorType, dlgDescriptorProperties, dlgOPCTest, dlgEvaluation>;
TYPED_TEST_SUITE(EachDialogSpoken, Dialogs);

} // namespace

TYPED_TEST(EachDialogSpoken, EveryControlThatTakesTheFocusIsCalledByItsName) {
    this->show(this->form, [&](Hands& hands) {
        const HWND window = hands.form(this->form.name());
        hands.run([&] {
            int controls = 0;
            for (const Control* control : this->form.controls()) {
                if (!control->focusable()) continue;
                ++controls;
                const HWND handle = find_control(window, control->name());
                EXPECT_NE(accessible_name_of(*control), "") << control->name();
                EXPECT_EQ(spoken_name_of(handle), accessible_name_of(*control)) << control->name();
            }
            EXPECT_GT(controls, 0);
        });
    });
    this->host.reports.clear(); // of what it was not handed
}

using SpokenTest = PagesTest;

TEST_F(SpokenTest, AButtonOfDotsIsOtherwiseTheSystemsButton) {
    dlgEvaluation form(environment);
    show(form, [&](Hands& hands) {
        const HWND dots = hands.control("dlgEvaluation", "bnItem");
        const HWND button = hands.control("dlgEvaluation", "bnCancel");
        hands.run([&] {
            EXPECT_EQ(spoken_of(dots).role, spoken_of(button).role);
            EXPECT_EQ(spoken_of(dots).action, spoken_of(button).action);
            EXPECT_EQ(spoken_of(dots).state, spoken_of(button).state);
        });
    });
    host.reports.clear();
}

TEST_F(SpokenTest, WhatAScreenReaderHoldsOutlivesTheDialogAndKeepsTheModule) {
    const long locks = ModuleLock::count();
    com_ptr<IAccessible> held;
    dlgEvaluation form(environment);
    show(form, [&](Hands& hands) {
        const HWND dots = hands.control("dlgEvaluation", "bnItem");
        hands.run([&] { held = accessible_of(dots); });
    });
    host.reports.clear();
    EXPECT_EQ(ModuleLock::count(), locks + 1);
    ASSERT_TRUE(held);
    BSTR name = nullptr;
    VARIANT self{};
    self.vt = VT_I4;
    EXPECT_EQ(held->get_accName(self, &name), S_OK);
    SysFreeString(name);
    LONG place = 0;
    EXPECT_TRUE(FAILED(held->accLocation(&place, &place, &place, &place, self)) || place == 0);
    held = nullptr;
    EXPECT_EQ(ModuleLock::count(), locks);
}

} // namespace brx::checks
