#include "apart/apart_suite.h"
#include "apart/waiting_watch.h"

namespace brx::checks {

namespace {

void browses_a_million_items(ApartPlay& play) {
    Play& its = play.its;
    Showing select(*its.stage, "LeafSelect");
    {
        const WaitingWatch watch(" of 1,000,000");
        select.show(play.connection(), play.group());
    }
    its.person.is_at("dlgItemSelect");
    EXPECT_TRUE(its.person.reads("lblNotice").starts_with("Reading was stopped at "));
    EXPECT_NE(its.person.reads("lblNotice").find(" of 1,000,000 items."), std::string::npos)
        << its.person.reads("lblNotice");
    its.person.enters("txtFullPath", "Tag 999999");
    its.person.presses("bnOK");
    EXPECT_TRUE(select.result());
    EXPECT_EQ(select.ItemID(), "Tag 999999");
}

} // namespace

class ApartWithManyItems : public Apart {};

TEST_F(ApartWithManyItems, AMillionItemsAreReadUntilThePersonPressesStopAndAnyCanBeTyped) {
    ApartPlay its(L"--items 1000000", "Simulation.Many.1");
    play(its, browses_a_million_items);
    EXPECT_LT(its.calls().size(), 500'000U);
    its.expect_clean_end();
}

} // namespace brx::checks
