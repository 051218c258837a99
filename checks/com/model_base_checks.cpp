#include "com/adapters/from_com.h"
#include "com/describe.h"
#include "com/failure.h"
#include "com/late_bound.h"
#include "com/round_trip.h"
#include "win32/counted.h"

#include <brxError6.h>
#include <brxModel.h>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

// The base that the kit gives the makers of hosts.

namespace brx::checks {

namespace {

template <class... Class> constexpr bool all_can_be_made = !(std::is_abstract_v<Class> || ...);
static_assert(
    all_can_be_made<brxModel::IOPCAutoServer, brxModel::OPCBrowser, brxModel::IOPCGroups, brxModel::IOPCGroup,
                    brxModel::OPCItems, brxModel::OPCItem, brxModel::hlxApplication, brxModel::hlxOPCServers,
                    brxModel::hlxOPCServer, brxModel::hlxOPCServerHolder, brxModel::hlxOPCConfiguration,
                    brxModel::hlxOPCTests, brxModel::hlxOPCTest, brxModel::hlxOPCDescriptors,
                    brxModel::hlxOPCDescriptor, brxModel::hlxListTools, brxModel::hlxMessage,
                    brxModel::hlxFocus, brxModel::hlxBusyCursor, brxModel::hlxHelp, brxModel::hlxDatabase,
                    brxModel::hlxTestData, brxModel::hlxRecord, brxModel::hlxSelection>);

constexpr const char* last_error_missing =
    "error -2147467263 | hlxOPCServers::get_LastError is not implemented. | brxModel";

/// Has two servers and says when it is gone.
class TwoServers final : public brxModel::hlxOPCServers {
public:
    explicit TwoServers(bool& gone) : gone_(gone) {}
    ~TwoServers() override { gone_ = true; }
    STDMETHODIMP get_Count(LONG* count) override { return *count = 2, S_OK; }
    STDMETHODIMP get_Item(VARIANT, _hlxOPCServer** server) override {
        *server = nullptr;
        return brxModel::failed(L"It is being cleaned.", DISP_E_BADINDEX, L"The line");
    }

private:
    bool& gone_;
};

class PlainObject final : public brxModel::Object<IDispatch> {};

class UpTo final : public brxModel::Enumeration {
public:
    explicit UpTo(LONG last, LONG broken = 0) : last_(last), broken_(broken) {}

private:
    HRESULT next(VARIANT* element) override {
        if (reached_ == last_) return S_FALSE;
        if (++reached_ == broken_) return E_FAIL;
        *element = OwnedVariant(Variant(std::string("Line ") + std::to_string(reached_))).detach();
        return S_OK;
    }

    LONG last_;
    LONG broken_;
    LONG reached_ = 0;
};

class NotedReports final : public brxModel::ErrorReports {
public:
    static inline std::vector<std::wstring> noted;

private:
    void Show(LONG number, const wchar_t* description, const wchar_t* source, const wchar_t* location,
              const wchar_t* application) override {
        noted.push_back(std::to_wstring(number) + L" | " + description + L" | " + source + L" | " + location +
                        L" | " + application);
    }
};

class ModelBaseTest : public AdapterTest {
protected:
    bool gone = false;
    com_ptr<TwoServers> servers = make_com<TwoServers>(gone);
};

TEST_F(ModelBaseTest, AnswerWhatNobodyWroteWithErrorInformation) {
    const auto model = from_com<hlxOPCServers>(servers);
    EXPECT_EQ(model->Count(), 2);
    EXPECT_EQ(outcome([&] { return Variant(model->LastError()); }), last_error_missing);
    EXPECT_EQ(outcome([&] { return ObjectPtr(model->Item(std::int32_t{1})); }),
              describe(Error(DISP_E_BADINDEX, "It is being cleaned.", "The line")));
}

TEST_F(ModelBaseTest, ServeLateCallersByTheTypeLibrary) {
    EXPECT_EQ(outcome([&] { return invoke(servers.get(), "Count", DISPATCH_PROPERTYGET, {}); }), "long 2");
    EXPECT_EQ(outcome([&] { return invoke(servers.get(), "LastError", DISPATCH_PROPERTYGET, {}); }),
              last_error_missing);
}

TEST_F(ModelBaseTest, ServeNoLateCallerWithoutATypeLibrary) {
    const auto plain = make_com<PlainObject>();
    UINT count = 1;
    EXPECT_EQ(plain->GetTypeInfoCount(&count), S_OK);
    EXPECT_EQ(count, 0u);
    com_ptr<ITypeInfo> info;
    EXPECT_EQ(plain->GetTypeInfo(0, 0, info.out()), DISP_E_BADINDEX);
    EXPECT_EQ(outcome([&] { return invoke(plain.get(), "Count", DISPATCH_PROPERTYGET, {}); }),
              describe(error_of(E_NOTIMPL)));
}

TEST_F(ModelBaseTest, KnowItsInterfacesAndNoOthers) {
    const com_ptr<IUnknown> identity = servers.as<IUnknown>();
    EXPECT_EQ(servers.as<IDispatch>().as<IUnknown>().get(), identity.get());
    EXPECT_EQ(servers.as<ISupportErrorInfo>().as<_hlxOPCServers>().as<IUnknown>().get(), identity.get());
    void* unknown = this;
    EXPECT_EQ(servers->QueryInterface(__uuidof(_hlxOPCServer), &unknown), E_NOINTERFACE);
    EXPECT_EQ(unknown, nullptr);
}

TEST_F(ModelBaseTest, BeginWithOneReferenceAndEndWithTheLast) {
    EXPECT_EQ(servers->AddRef(), 2u);
    EXPECT_EQ(servers->Release(), 1u);
    EXPECT_FALSE(gone);
    EXPECT_EQ(servers.detach()->Release(), 0u);
    EXPECT_TRUE(gone);
}

TEST_F(ModelBaseTest, EnumerateOnceToTheEnd) {
    const com_ptr<IEnumVARIANT> lines = make_com<UpTo>(4);
    std::array<VARIANT, 3> raw{};
    ULONG fetched = 0;
    EXPECT_EQ(lines->Skip(1), S_OK);
    EXPECT_EQ(lines->Next(2, raw.data(), &fetched), S_OK);
    EXPECT_EQ(fetched, 2u);
    EXPECT_EQ(describe(value_of(raw[1])), "text Line 3");
    for (VARIANT& each : raw) VariantClear(&each);
    EXPECT_EQ(lines->Next(3, raw.data(), &fetched), S_FALSE);
    EXPECT_EQ(fetched, 1u);
    EXPECT_EQ(describe(value_of(raw[0])), "text Line 4");
    VariantClear(raw.data());
    EXPECT_EQ(lines->Next(1, raw.data(), nullptr), S_FALSE);
    EXPECT_EQ(lines->Skip(1), S_FALSE);
    EXPECT_EQ(lines->Reset(), E_NOTIMPL);
    SetErrorInfo(0, nullptr);
}

TEST_F(ModelBaseTest, GiveNoElementWhenOneFails) {
    const com_ptr<IEnumVARIANT> lines = make_com<UpTo>(4, 3);
    std::array<VARIANT, 4> raw{};
    ULONG fetched = 4;
    EXPECT_EQ(lines->Next(4, raw.data(), &fetched), E_FAIL);
    EXPECT_EQ(fetched, 0u);
    for (const VARIANT& each : raw) EXPECT_EQ(V_VT(&each), VT_EMPTY);
}

TEST_F(ModelBaseTest, OfferAnErrorClassThatIsCalledByName) {
    NotedReports::noted.clear();
    DWORD cookie = 0;
    ASSERT_EQ(brxModel::offer<NotedReports>(CLSID_Error, &cookie), S_OK);
    {
        com_ptr<IDispatch> reports;
        void* made = nullptr;
        ASSERT_EQ(CoCreateInstance(CLSID_Error, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, &made), S_OK);
        reports = com_ptr<IDispatch>::adopt(static_cast<IDispatch*>(made));
        const std::vector<Variant> all{std::int32_t{91}, std::string("not set"), std::string("host"),
                                       std::string("here"), std::string("brxOpcDlgs6")};
        invoke(reports.get(), "Show", DISPATCH_METHOD, all);
        EXPECT_EQ(NotedReports::noted,
                  std::vector<std::wstring>{L"91 | not set | host | here | brxOpcDlgs6"});
        EXPECT_EQ(outcome([&] { return invoke(reports.get(), "Hide", DISPATCH_METHOD, all); }),
                  describe(error_of(DISP_E_UNKNOWNNAME)));
        EXPECT_EQ(outcome([&] { return invoke(reports.get(), "Show", DISPATCH_METHOD, {all[1]}); }),
                  describe(error_of(DISP_E_BADPARAMCOUNT)));
        EXPECT_EQ(outcome([&] {
                      return invoke(reports.get(), "Show", DISPATCH_METHOD,
                                    {all[1], all[1], all[1], all[1], all[1]});
                  }),
                  describe(error_of(DISP_E_TYPEMISMATCH)));
    }
    EXPECT_EQ(CoRevokeClassObject(cookie), S_OK);
    EXPECT_EQ(NotedReports::noted.size(), 1u);
}

TEST_F(ModelBaseTest, GiveATextOnThatCameAsOne) {
    BSTR came = SysAllocString(L"Line 1");
    BSTR given = nullptr;
    EXPECT_EQ(brxModel::give(&given, came), S_OK);
    EXPECT_NE(given, came);
    EXPECT_STREQ(given, L"Line 1");
    SysFreeString(given);
    SysFreeString(came);
}

} // namespace

} // namespace brx::checks
