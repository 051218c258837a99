#include "adding.h"
#include "testing.h"

#include "com/failure.h"
#include "com/owned_variant.h"

#include <oleauto.h>

// Values of kinds that hosts have and the dialogs do not know.

using namespace brx;
using namespace brx::checks;

namespace {

void shows_and_stores_the_text(Play& its, const VARIANT& value, const std::string& text) {
    const auto test = a_bound_test(its, static_cast<std::int16_t>(V_VT(&value)));
    test->fields.value = value_of(value);
    Testing testing(its, test);
    EXPECT_EQ(its.person.reads("txtValue"), text);
    its.person.presses("bnOK");
    EXPECT_TRUE(testing.result());
    EXPECT_EQ(testing.fields().value, Variant(text));
}

} // namespace

SCENARIO(TestDialog, AByteHasItsText) {
    VARIANT small{};
    V_VT(&small) = VT_UI1;
    V_UI1(&small) = 200;
    shows_and_stores_the_text(its, small, "200");
}

SCENARIO(TestDialog, ADecimalHasItsText) {
    VARIANT decimal{};
    check(VarDecFromR8(-12.5, &V_DECIMAL(&decimal)));
    V_VT(&decimal) = VT_DECIMAL;
    shows_and_stores_the_text(its, decimal, "-12.5");
}

SCENARIO(TestDialog, A64BitIntegerHasItsText) {
    VARIANT number{};
    V_VT(&number) = VT_I8;
    V_I8(&number) = -5'000'000'000;
    shows_and_stores_the_text(its, number, "-5000000000");
}

SCENARIO(AddingAServer, ServersToldInVariantsAreListed) {
    OwnedSafeArray found;
    *found.out() = SafeArrayCreateVector(VT_VARIANT, 1, 2);
    LONG position = 0;
    for (const char* name : {"Sim", "Sim.2"}) {
        const OwnedVariant text{Variant(std::string(name))};
        ++position;
        check(SafeArrayPutElement(found.get(), &position, const_cast<VARIANT*>(&text.get())));
    }
    const OwnedVariant answer(std::move(found));
    for (const char* node : {"", "PC7"}) its.host.enumerator->registered[node] = value_of(answer.get());
    Adding dialog(its);
    EXPECT_EQ(its.person.lines_of("lstOPCServers"), (Lines{"Sim", "Sim.2"}));
    dialog.lists_node("PC7");
    its.person.picks("lstOPCServers", "Sim.2");
    its.person.presses("bnOK");
    EXPECT_TRUE(dialog.add.result());
    EXPECT_EQ(its.host.servers->additions(), (std::vector<Addition>{{"Sim.2", "PC7", true}}));
}
