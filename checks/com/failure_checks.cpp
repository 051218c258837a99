#include "com/failure.h"

#include "com/bstr.h"
#include "com/describe.h"
#include "win32/com_ptr.h"
#include "win32/counted.h"

#include <gtest/gtest.h>

namespace brx::checks {

namespace {

/// An object that may or may not promise error information.
class Promising final : public Counted<ISupportErrorInfo> {
public:
    explicit Promising(const IID* promised) : promised_(promised) {}
    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        const bool known = iid == __uuidof(IUnknown) || (promised_ && iid == __uuidof(ISupportErrorInfo));
        *object = known ? this : nullptr;
        if (known) AddRef();
        return known ? S_OK : E_NOINTERFACE;
    }
    STDMETHODIMP InterfaceSupportsErrorInfo(REFIID iid) override {
        return iid == *promised_ ? S_OK : S_FALSE;
    }

private:
    const IID* promised_;
};

const IID& one = __uuidof(IDispatch);
const IID& other = __uuidof(IEnumVARIANT);

void leave(const std::string& description, const std::string& source) {
    raise(Error(1, description, source), one);
}

std::string failed(HRESULT code, const IID* promised, const IID& called) {
    const auto object = make_com<Promising>(promised);
    return outcome([&] { return check(code, object.get(), called), Variant(); });
}

bool error_information_left() {
    com_ptr<IErrorInfo> information;
    return GetErrorInfo(0, information.out()) == S_OK;
}

std::string sent_and_received(const Error& error) {
    const auto object = make_com<Promising>(&one);
    const HRESULT code = guard(one, [&] { throw error; });
    return outcome([&] { return check(code, object.get(), one), Variant(); });
}

TEST(FailureTest, CarriesRunTimeErrorNumbersInTheLowWord) {
    EXPECT_EQ(error_of(static_cast<HRESULT>(0x800A000D)).number(), 13);
    EXPECT_EQ(error_of(static_cast<HRESULT>(0x800A8B12)).number(), 35602);
    EXPECT_EQ(error_of(static_cast<HRESULT>(0x800AFFFF)).number(), 65535);
    EXPECT_EQ(error_of(static_cast<HRESULT>(0x800A0000)).number(), static_cast<HRESULT>(0x800A0000));
}

TEST(FailureTest, KeepsEveryOtherCode) {
    for (const HRESULT code :
         {E_FAIL, DISP_E_TYPEMISMATCH, DISP_E_OVERFLOW, E_OUTOFMEMORY, E_INVALIDARG, CO_E_CLASSSTRING,
          static_cast<HRESULT>(0xC0040007), static_cast<HRESULT>(0x80040201)})
        EXPECT_EQ(error_of(code).number(), code);
}

TEST(FailureTest, FallsBackOnTheSystemsText) {
    EXPECT_EQ(error_of(static_cast<HRESULT>(0x800A000D)).description(), error_text(13));
    const std::string denied = error_of(E_ACCESSDENIED).description();
    EXPECT_NE(denied.find("denied"), std::string::npos) << denied;
    EXPECT_NE(denied.back(), '\n');
    const std::string unavailable = error_of(static_cast<HRESULT>(0x800706BA)).description();
    EXPECT_NE(unavailable.find("unavailable"), std::string::npos) << unavailable;
    EXPECT_EQ(error_of(static_cast<HRESULT>(0xC0040007)).description(),
              "Application-defined or object-defined error");
    EXPECT_EQ(error_of(E_FAIL).source(), component_name);
    EXPECT_EQ(error_of(E_FAIL, "d", "s").description(), "d");
    EXPECT_EQ(error_of(E_FAIL, "d", "s").source(), "s");
}

TEST(FailureTest, ThrowsForFailuresOnly) {
    for (const HRESULT success : {S_OK, S_FALSE, static_cast<HRESULT>(0x0004000D)}) {
        EXPECT_NO_THROW(check(success));
        EXPECT_NO_THROW(check(success, nullptr, one));
    }
    EXPECT_THROW(check(E_FAIL), Error);
    EXPECT_THROW(check(E_FAIL, nullptr, one), Error);
}

TEST(FailureTest, ReadsTheErrorInformationOfAnObjectThatPromisesIt) {
    leave("The server is busy", "Host.Servers");
    EXPECT_EQ(failed(static_cast<HRESULT>(0x80040201), &one, one),
              "error -2147220991 | The server is busy | Host.Servers");
    EXPECT_FALSE(error_information_left());
}

TEST(FailureTest, DoesNotTakeSomebodyElsesErrorInformation) {
    const std::string bare = describe(error_of(E_INVALIDARG));
    leave("old", "somebody");
    EXPECT_EQ(failed(E_INVALIDARG, nullptr, one), bare);
    EXPECT_FALSE(error_information_left());
    leave("old", "somebody");
    EXPECT_EQ(failed(E_INVALIDARG, &other, one), bare);
    EXPECT_FALSE(error_information_left());
    EXPECT_EQ(failed(E_INVALIDARG, &one, one), bare);
}

TEST(FailureTest, FillsInWhatTheErrorInformationLacks) {
    leave("", "");
    EXPECT_EQ(failed(E_FAIL, &one, one), describe(error_of(E_FAIL)));
}

TEST(FailureTest, CodesNumbersForAHost) {
    EXPECT_EQ(code_of(Error(13)), static_cast<HRESULT>(0x800A000D));
    EXPECT_EQ(code_of(Error(65535)), static_cast<HRESULT>(0x800AFFFF));
    EXPECT_EQ(code_of(Error(-1073479673)), static_cast<HRESULT>(0xC0040007));
    EXPECT_EQ(code_of(Error(0)), E_FAIL);
    EXPECT_EQ(code_of(Error(65536)), E_FAIL);
}

TEST(FailureTest, BringsErrorsThroughUnchanged) {
    for (const Error& error : {Error(1, "first", "a"),
                               Error(13,
                                     "Typ \xC3\xBC"
                                     "berall",
                                     "Host.Servers"),
                               Error(65535, "last", "b"), Error(-2147220991, "Refused\r\nagain", "Host"),
                               Error(E_OUTOFMEMORY, "none left", "c")})
        EXPECT_EQ(sent_and_received(error), describe(error));
}

TEST(FailureTest, TurnsEveryExceptionIntoAFailureCode) {
    EXPECT_EQ(guard(one, [] {}), S_OK);
    EXPECT_EQ(guard(one, [] { throw std::bad_alloc(); }), E_OUTOFMEMORY);
    EXPECT_EQ(guard(one, [] { throw std::runtime_error("what"); }), static_cast<HRESULT>(0x800A0033));
    com_ptr<IErrorInfo> information;
    ASSERT_EQ(GetErrorInfo(0, information.out()), S_OK);
    Bstr description;
    information->GetDescription(description.out());
    EXPECT_EQ(description.text(), "what");
    GUID raised_by{};
    information->GetGUID(&raised_by);
    EXPECT_EQ(raised_by, one);
    EXPECT_EQ(guard(one, [] { throw 5; }), static_cast<HRESULT>(0x800A0033));
    SetErrorInfo(0, nullptr);
}

} // namespace

} // namespace brx::checks
