#include "common/version.h"
#include "dll/com_error_libraries.h"
#include "dll/registry.h"
#include "forms/turn.h"
#include "server/debugger_output.h"
#include "server/dll.h"
#include "server/error_library.h"
#include "server/opened_windows.h"

#include <brxOpcDlgs6.h>
#include <gmock/gmock.h>
#include <hlxER01.h>

namespace brx::checks {

namespace {

using testing::ElementsAre;

constexpr GUID another_class = {0x6f0b5f6e, 0x1c8e, 0x4b43, {0x9c, 0x0a, 0x2e, 0x63, 0x5a, 0x5e, 0x0d, 0x11}};

class ReportTest : public testing::Test {
protected:
    /// What a host gets that passes an object to each public class in turn.
    void show_everywhere(IDispatch* object) {
        VARIANT_BOOL result = VARIANT_TRUE;
        EXPECT_EQ(dll.create<_ServerSelect>(CLSID_ServerSelect)->Show(&object, &result), S_OK);
        EXPECT_EQ(result, VARIANT_FALSE);
        result = VARIANT_TRUE;
        EXPECT_EQ(dll.create<_ServerAdd>(CLSID_ServerAdd)->Show(object, &result), S_OK);
        EXPECT_EQ(result, VARIANT_FALSE);
        result = VARIANT_TRUE;
        EXPECT_EQ(dll.create<_ServerInformation>(CLSID_ServerInformation)->Show(object, &result), S_OK);
        EXPECT_EQ(result, VARIANT_FALSE);
        result = VARIANT_TRUE;
        EXPECT_EQ(dll.create<_LeafSelect>(CLSID_LeafSelect)->Show(object, object, &result), S_OK);
        EXPECT_EQ(result, VARIANT_FALSE);
        result = VARIANT_TRUE;
        EXPECT_EQ(dll.create<_TestConfiguration>(CLSID_TestConfiguration)->Show(object, &result), S_OK);
        EXPECT_EQ(result, VARIANT_FALSE);
        EXPECT_EQ(dll.create<_ConfigurationSetup>(CLSID_ConfigurationSetup)->Show(object), S_OK);
    }

    void show_nothing() {
        VARIANT_BOOL result = VARIANT_TRUE;
        EXPECT_EQ(dll.create<_ServerAdd>(CLSID_ServerAdd)->Show(nullptr, &result), S_OK);
        EXPECT_EQ(result, VARIANT_FALSE);
    }

    Apartment apartment;
    Dll dll;
    OpenedWindows windows;
    DebuggerOutput debugger;
};

using Told = std::pair<std::wstring, std::wstring>;
const Told told_of_nothing = {L"brxOpcDlgs6",
                              L"Error 13: Type mismatch\r\n\r\nServerAdd.ResolvehlxOPCServers"};

/// For a report that the host takes.
const auto nothing_else = [] { ADD_FAILURE() << "The host did not take the report."; };

constexpr const wchar_t* another_class_text = L"{6F0B5F6E-1C8E-4B43-9C0A-2E635A5E0D11}";

std::vector<std::wstring> locations(const ErrorLibrary6& errors) {
    std::vector<std::wstring> found;
    for (const HeardReport& each : errors.heard) found.push_back(each.location());
    return found;
}

} // namespace

TEST_F(ReportTest, OneReportHasFiveValuesInTheirOrder) {
    ErrorLibrary6 errors;
    show_nothing();
    ASSERT_EQ(errors.heard.size(), 1u);
    EXPECT_THAT(errors.heard[0].kinds, ElementsAre(VT_I4, VT_BSTR, VT_BSTR, VT_BSTR, VT_BSTR));
    EXPECT_EQ(errors.heard[0].number, 13);
    EXPECT_THAT(errors.heard[0].texts,
                ElementsAre(L"Type mismatch", L"brxOpcDlgs6", L"ServerAdd.ResolvehlxOPCServers",
                            L"brxOpcDlgs6 " BRX_VERSION_TEXT));
    EXPECT_THAT(debugger.lines(), ElementsAre());
}

TEST_F(ReportTest, NothingIsReportedByEachClassAndOpensNoWindow) {
    ErrorLibrary6 errors;
    show_everywhere(nullptr);
    EXPECT_THAT(locations(errors),
                ElementsAre(L"ServerSelect.ResolvehlxOPCServers", L"ServerAdd.ResolvehlxOPCServers",
                            L"CommonTools.ResolveOPCServer", L"CommonTools.ResolveOPCServer",
                            L"CommonTools.ResolveOPCGroup", L"TestConfiguration.ResolvehlxOPCTest",
                            L"ConfigurationSetup.ResolveOPCConfiguration"));
    for (const HeardReport& each : errors.heard) EXPECT_EQ(each.number, 13);
    EXPECT_EQ(windows.count(), 0);
}

TEST_F(ReportTest, AnObjectOfAnotherKindIsReportedByEachClassAndOpensNoWindow) {
    ErrorLibrary6 errors;
    ScriptObject other;
    show_everywhere(&other);
    EXPECT_THAT(locations(errors),
                ElementsAre(L"ServerSelect.ResolvehlxOPCServers", L"ServerAdd.ResolvehlxOPCServers",
                            L"CommonTools.ResolveOPCServer", L"CommonTools.ResolveOPCServer",
                            L"CommonTools.ResolveOPCGroup", L"TestConfiguration.ResolvehlxOPCTest",
                            L"ConfigurationSetup.ResolveOPCConfiguration"));
    for (const HeardReport& each : errors.heard) EXPECT_EQ(each.number, 13);
    EXPECT_EQ(windows.count(), 0);
}

TEST_F(ReportTest, AnArgumentWithoutAReferenceIsNothing) {
    ErrorLibrary6 errors;
    VARIANT_BOOL result = VARIANT_TRUE;
    EXPECT_EQ(dll.create<_ServerSelect>(CLSID_ServerSelect)->Show(nullptr, &result), S_OK);
    EXPECT_EQ(result, VARIANT_FALSE);
    EXPECT_THAT(locations(errors), ElementsAre(L"ServerSelect.ResolvehlxOPCServers"));
}

TEST_F(ReportTest, ShowWorksWithoutARoomForItsResult) {
    ErrorLibrary6 errors;
    EXPECT_EQ(dll.create<_ServerInformation>(CLSID_ServerInformation)->Show(nullptr, nullptr), S_OK);
    EXPECT_EQ(errors.heard.size(), 1u);
}

TEST_F(ReportTest, ServerIndexStaysWhenNothingWasChosen) {
    ErrorLibrary6 errors;
    const auto object = dll.create<_ServerAdd>(CLSID_ServerAdd);
    object->put_ServerIndex(3);
    VARIANT_BOOL result = VARIANT_TRUE;
    object->Show(nullptr, &result);
    short index = 0;
    EXPECT_EQ(object->get_ServerIndex(&index), S_OK);
    EXPECT_EQ(index, 3);
}

TEST_F(ReportTest, WithoutAnErrorLibraryAMessageBoxTellsAndOneLineGoesToTheDebugger) {
    windows.close_at_once();
    show_nothing();
    EXPECT_THAT(
        debugger.lines(),
        ElementsAre(
            L"brxOpcDlgs6 " BRX_VERSION_TEXT L": error 13 in ServerAdd.ResolvehlxOPCServers: Type mismatch "
            L"(brxOpcDlgs6)\n"));
    EXPECT_THAT(windows.messages(), ElementsAre(told_of_nothing));
    EXPECT_EQ(windows.count(), 1);
}

TEST_F(ReportTest, EachShowTellsAgain) {
    windows.close_at_once();
    show_nothing();
    show_nothing();
    EXPECT_EQ(windows.messages().size(), 2u);
    EXPECT_EQ(debugger.lines().size(), 2u) << testing::PrintToString(debugger.lines());
}

TEST_F(ReportTest, AnErrorLibraryThatFailsIsReplacedByMessageBoxAndDebugger) {
    ErrorLibrary6 errors;
    errors.while_shown = [] { return E_FAIL; };
    windows.close_at_once();
    show_nothing();
    EXPECT_EQ(errors.heard.size(), 1u);
    EXPECT_EQ(debugger.lines().size(), 1u);
    EXPECT_THAT(windows.messages(), ElementsAre(told_of_nothing));
}

TEST_F(ReportTest, AClassWithoutShowIsReplacedByMessageBoxAndDebugger) {
    ScriptObject shy;
    const ClassForProcess offered(another_class, [&] { return com_ptr<IDispatch>(&shy); });
    RegistryChange name(HKEY_LOCAL_MACHINE);
    name.write({L"Software\\Classes\\brxError6.Error\\CLSID", L""}, another_class_text);
    windows.close_at_once();
    show_nothing();
    EXPECT_EQ(debugger.lines().size(), 1u);
    EXPECT_THAT(windows.messages(), ElementsAre(told_of_nothing));
}

TEST_F(ReportTest, TheRegisteredNameComesBeforeThePublishedIdentifier) {
    ErrorLibrary6 published;
    ErrorLibrary6 named(another_class);
    RegistryChange name(HKEY_LOCAL_MACHINE);
    name.write({L"Software\\Classes\\brxError6.Error\\CLSID", L""}, another_class_text);
    show_nothing();
    EXPECT_EQ(named.heard.size(), 1u);
    EXPECT_EQ(published.heard.size(), 0u);
}

TEST_F(ReportTest, AnErrorWhileAReportIsShownGoesToTheDebuggerAlone) {
    ErrorLibrary6 errors;
    errors.while_shown = [&] {
        show_nothing();
        return S_OK;
    };
    show_nothing();
    EXPECT_EQ(errors.heard.size(), 1u);
    EXPECT_EQ(debugger.lines().size(), 1u);
    EXPECT_EQ(windows.count(), 0);
}

TEST_F(ReportTest, TheNextErrorIsReportedToTheHostAgain) {
    ErrorLibrary6 errors;
    show_nothing();
    show_nothing();
    EXPECT_EQ(errors.heard.size(), 2u);
    EXPECT_EQ(debugger.lines().size(), 0u);
}

TEST_F(ReportTest, WhatTheThreadKnewOfErrorsStays) {
    ErrorLibrary6 errors;
    errors.while_shown = [] {
        SetErrorInfo(0, nullptr);
        SetLastError(1);
        return S_OK;
    };
    com_ptr<ICreateErrorInfo> created;
    ASSERT_EQ(CreateErrorInfo(created.out()), S_OK);
    const auto before = created.as<IErrorInfo>();
    SetErrorInfo(0, before.get());
    SetLastError(4711);
    ComErrorLibraries().Show(ErrorLibrary::brxError6, {5, "d", "s", "m.p", "a"}, nothing_else);
    EXPECT_EQ(GetLastError(), 4711u);
    com_ptr<IErrorInfo> after;
    GetErrorInfo(0, after.out());
    EXPECT_EQ(after.get(), before.get());
    EXPECT_EQ(errors.heard.size(), 1u);
}

TEST_F(ReportTest, WhatTheThreadKnewOfErrorsStaysWhereSomethingElseIsDone) {
    com_ptr<ICreateErrorInfo> created;
    ASSERT_EQ(CreateErrorInfo(created.out()), S_OK);
    const auto before = created.as<IErrorInfo>();
    SetErrorInfo(0, before.get());
    SetLastError(4711);
    int times = 0;
    ComErrorLibraries().Show(ErrorLibrary::hlxER01, {5, "d", "s", "m.p", "a"}, [&] {
        ++times;
        EXPECT_EQ(debugger.lines().size(), 1u) << "The line comes first.";
        EXPECT_FALSE(turn::is_code_running());
        SetErrorInfo(0, nullptr);
        SetLastError(1);
    });
    EXPECT_EQ(GetLastError(), 4711u);
    com_ptr<IErrorInfo> after;
    GetErrorInfo(0, after.out());
    EXPECT_EQ(after.get(), before.get());
    EXPECT_EQ(times, 1);
}

TEST_F(ReportTest, TheOtherLibraryIsCalledByItsOwnName) {
    ErrorLibrary6 published;
    ErrorLibrary6 other(another_class);
    RegistryChange name(HKEY_LOCAL_MACHINE);
    name.write({L"Software\\Classes\\hlxER01.Error\\CLSID", L""}, another_class_text);
    ComErrorLibraries().Show(ErrorLibrary::hlxER01,
                             {-2147467259, "what", "who", "dlgConfiguration.Form_Load", "a"}, nothing_else);
    EXPECT_EQ(published.heard.size(), 0u);
    ASSERT_EQ(other.heard.size(), 1u);
    EXPECT_EQ(other.heard[0].number, -2147467259);
    EXPECT_THAT(other.heard[0].texts, ElementsAre(L"what", L"who", L"dlgConfiguration.Form_Load", L"a"));
}

TEST_F(ReportTest, BothLibrariesAreFoundByTheirPublishedIdentifiers) {
    ErrorLibrary6 six;
    ErrorLibrary6 other(CLSID_hlxER01_Error);
    ComErrorLibraries().Show(ErrorLibrary::brxError6, {5, "d", "s", "dlgServerAdd.bnOK_Click", "a"},
                             nothing_else);
    ComErrorLibraries().Show(ErrorLibrary::hlxER01, {5, "d", "s", "dlgConfiguration.Form_Load", "a"},
                             nothing_else);
    EXPECT_THAT(locations(six), ElementsAre(L"dlgServerAdd.bnOK_Click"));
    EXPECT_THAT(locations(other), ElementsAre(L"dlgConfiguration.Form_Load"));
}

TEST_F(ReportTest, ADebuggersLineIsOneLine) {
    ComErrorLibraries().Show(ErrorLibrary::hlxER01,
                             {6, "first\r\nsecond", "M\xC3\xBCller", "dlgX.bnOK_Click", "app"}, [] {});
    EXPECT_THAT(debugger.lines(),
                ElementsAre(L"app: error 6 in dlgX.bnOK_Click: first  second (M\u00FCller)\n"));
}

TEST_F(ReportTest, CodeRunsWhileAReportIsShown) {
    ErrorLibrary6 errors;
    bool code_ran = false;
    errors.while_shown = [&] {
        code_ran = turn::is_code_running();
        return S_OK;
    };
    ComErrorLibraries().Show(ErrorLibrary::brxError6, {5, "d", "s", "m.p", "a"}, nothing_else);
    EXPECT_TRUE(code_ran);
    EXPECT_FALSE(turn::is_code_running());
}

} // namespace brx::checks
