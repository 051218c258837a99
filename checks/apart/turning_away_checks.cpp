#include "server/calls.h"
#include "win32/com_ptr.h"
#include "win32/counted.h"

#include <gtest/gtest.h>

// What the server program answers when the system asks whether a call may come in. Wine tells clients nothing
// of a call that is turned away, so here nobody stands between.

namespace brx::checks {

namespace {

class IncomingCalls : public testing::Test {
protected:
    void turn_away(unsigned tries) {
        calls_ = make_com<server::Calls>(server::Switches{.turn_away = tries}, std::filesystem::path());
    }
    DWORD answer(const IID& iid = IID_IDispatch) {
        INTERFACEINFO call{nullptr, iid, 6};
        return calls_->HandleInComingCall(CALLTYPE_TOPLEVEL, nullptr, 0, &call);
    }
    unsigned answered() const { return calls_->answered(); }
    unsigned turned_away() const { return calls_->turned_away(); }

private:
    com_ptr<server::Calls> calls_;
};

TEST_F(IncomingCalls, AreEachTurnedAwaySoManyTimesAndThenAnswered) {
    turn_away(2);
    for (unsigned call = 1; call <= 3; ++call) {
        EXPECT_EQ(answer(), static_cast<DWORD>(SERVERCALL_RETRYLATER));
        EXPECT_EQ(answer(), static_cast<DWORD>(SERVERCALL_RETRYLATER));
        EXPECT_EQ(answered(), call - 1);
        EXPECT_EQ(answer(), static_cast<DWORD>(SERVERCALL_ISHANDLED));
        EXPECT_EQ(answered(), call);
        EXPECT_EQ(turned_away(), 2 * call);
    }
}

TEST_F(IncomingCalls, AreAnsweredAtOnceWhenNoneIsToBeTurnedAway) {
    turn_away(0);
    EXPECT_EQ(answer(), static_cast<DWORD>(SERVERCALL_ISHANDLED));
    EXPECT_EQ(answered(), 1U);
    EXPECT_EQ(turned_away(), 0U);
}

TEST_F(IncomingCalls, OfTheSystemItselfAreNeitherTurnedAwayNorCounted) {
    turn_away(2);
    EXPECT_EQ(answer(IID_IClassFactory), static_cast<DWORD>(SERVERCALL_ISHANDLED));
    EXPECT_EQ(answered(), 0U);
    EXPECT_EQ(turned_away(), 0U);
}

} // namespace

} // namespace brx::checks
