#include "server/debugger_output.h"
#include "server/host_test.h"
#include "server/opened_windows.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <regex>

namespace brx::checks {

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

/// What hosts' makers see of a component that they trace.
class TraceTest : public InApartment, public testing::Test {
protected:
    TraceTest() { std::filesystem::remove(file); }
    ~TraceTest() override {
        SetEnvironmentVariableW(L"BRX_TRACE", nullptr);
        std::filesystem::remove(file);
    }
    static void trace_to(const std::wstring& where) { SetEnvironmentVariableW(L"BRX_TRACE", where.c_str()); }

    /// The lines, without when and where they were written.
    std::vector<std::string> lines() const {
        static const std::regex head(R"(\d{4}-\d\d-\d\d \d\d:\d\d:\d\d\.\d{3} \d+\.\d+ (.*)\r)");
        std::vector<std::string> all;
        std::ifstream in(file, std::ios::binary);
        for (std::string line; std::getline(in, line);) {
            std::smatch parts;
            EXPECT_TRUE(std::regex_match(line, parts, head)) << line;
            all.push_back(parts[1]);
        }
        return all;
    }

    void show_nothing() const {
        VARIANT_BOOL result = VARIANT_TRUE;
        EXPECT_EQ(dll.create<_ServerAdd>(CLSID_ServerAdd)->Show(nullptr, &result), S_OK);
    }

    const std::filesystem::path file = std::filesystem::temp_directory_path() / L"brxTrace \x00FC.txt";
    FakeHost model;
    ErrorLibrary6 errors;
    Dll dll;
    OpenedWindows windows;
};

} // namespace

TEST_F(TraceTest, AFileTellsOfEachShowingAndEachReport) {
    trace_to(file.wstring());
    show_nothing();
    EXPECT_THAT(lines(),
                ElementsAre("ServerAdd.Show begins",
                            AllOf(HasSubstr("report to brxError6.Error: "),
                                  HasSubstr("error 13 in ServerAdd."), HasSubstr(": Type mismatch (")),
                            "ServerAdd.Show ends: False"));
}

TEST_F(TraceTest, ACallThatFailedIsToldWithItsObjectAndWhoMadeIt) {
    trace_to(file.wstring());
    model.calls.fail_on("hlxOPCServers.Count");
    windows.close_at_once();
    VARIANT_BOOL result = VARIANT_TRUE;
    IDispatch* servers = to_com<hlxOPCServers>(model.servers).detach();
    EXPECT_EQ(dll.create<_ServerSelect>(CLSID_ServerSelect)->Show(&servers, &result), S_OK);
    servers->Release();
    const std::vector<std::string> told = lines();
    ASSERT_EQ(told.size(), 4U);
    EXPECT_THAT(told[1], AllOf(HasSubstr("call of hlxOPCServers.Count failed: error "),
                               HasSubstr("The host failed"), EndsWith(", in dlgServerSelect.BuildList")));
    EXPECT_THAT(told[2], HasSubstr("report to brxError6.Error"));
}

TEST_F(TraceTest, AMessageBoxIsToldOnOneLineAndSoIsItsAnswer) {
    errors.while_shown = [] { return E_FAIL; }; // so that the person is told
    trace_to(file.wstring());
    windows.close_at_once();
    show_nothing();
    const std::vector<std::string> told = lines();
    ASSERT_EQ(told.size(), 5U);
    EXPECT_THAT(told[2], StartsWith("message box: brxOpcDlgs6: Error 13: Type mismatch    ServerAdd."));
    EXPECT_THAT(told[3], StartsWith("message box answered: ")); // by its close box
}

TEST_F(TraceTest, ADebuggerIsToldOnRequestAndWhereTheFileCannotBeWritten) {
    for (const wchar_t* to : {L"debugger", L"Z:\\no such folder\\trace.txt"}) {
        const DebuggerOutput debugger;
        trace_to(to);
        show_nothing();
        ASSERT_EQ(debugger.lines().size(), 3U);
        EXPECT_TRUE(debugger.lines().front().ends_with(L"ServerAdd.Show begins\r\n"));
    }
}

TEST_F(TraceTest, NothingIsWrittenWhenNobodyAskedForIt) {
    const DebuggerOutput debugger;
    trace_to(file.wstring());
    trace_to(L"");
    show_nothing();
    SetEnvironmentVariableW(L"BRX_TRACE", nullptr);
    show_nothing();
    EXPECT_FALSE(std::filesystem::exists(file));
    EXPECT_THAT(debugger.lines(), IsEmpty());
}

} // namespace brx::checks
