#include "sample/windows/objects_stage.h"

#include "adapters/to_com.h"
#include "common/values/utf16.h"
#include "common/version.h"

#include <gmock/gmock.h>

namespace brx::checks {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr auto failed = static_cast<std::int32_t>(0x8000'4005);

class SampleObjects : public ObjectsCheck {
protected:
    com_ptr<IDispatch> entry(std::int32_t position) {
        return get_object(servers().get(), "Item", {position});
    }
    std::string last_error() { return std::get<std::string>(get(servers().get(), "LastError")); }
    com_ptr<IDispatch> added(const std::string& name, const std::string& node) {
        const Variant result = call(servers().get(), "Add", {name, node, true});
        const auto* const object = std::get_if<ObjectPtr>(&result);
        return object ? dispatch_of(*object) : nullptr;
    }
};

TEST_F(SampleObjects, EveryClassIsFoundByItsNameInTheManifest) {
    for (const wchar_t* name :
         {L"brxSample.Host", L"brxOpcAuto6.hlxOPCServer", L"brxError6.Error", L"hlxER01.Error",
          L"brxOpcDlgs6.ServerSelect", L"brxOpcDlgs6.ServerAdd", L"brxOpcDlgs6.ServerInformation",
          L"brxOpcDlgs6.LeafSelect", L"brxOpcAuto6.hlxHelp"})
        EXPECT_TRUE(create_by_name(name)) << std::string(name, name + wcslen(name));
}

TEST_F(SampleObjects, TheFirstUseOfTheServersMakesTheFileAndConnectsWhatCanBe) {
    EXPECT_FALSE(std::filesystem::exists(folder.file(L"host.db")));
    EXPECT_EQ(get(servers().get(), "Count"), Variant(std::int32_t{3}));
    EXPECT_TRUE(std::filesystem::exists(folder.file(L"host.db")));
    EXPECT_EQ(get(entry(2).get(), "ServerName"), Variant(std::string("Simulation.Filling.1")));
    EXPECT_EQ(get(entry(2).get(), "Node"), Variant(std::string("LINE1")));
    EXPECT_TRUE(get_object(entry(2).get(), "OPCServer"));
    EXPECT_FALSE(get_object(entry(3).get(), "OPCServer"));
    EXPECT_EQ(get(host.get(), "StateText", {std::int32_t{1}}), Variant(std::string("Running")));
    EXPECT_EQ(get(host.get(), "StateText", {std::int32_t{3}}),
              Variant(std::string("Not connected: Server execution failed (0x80080005)")));
}

TEST_F(SampleObjects, ServersAddedAreThereAfterARestart) {
    EXPECT_TRUE(added("Simulation.Climate.1", "LAB"));
    host = create_by_name(L"brxSample.Host");
    put(host.get(), "DatabaseFile", folder.name_of(L"host.db"));
    EXPECT_EQ(get(servers().get(), "Count"), Variant(std::int32_t{4}));
    EXPECT_EQ(get(host.get(), "StateText", {std::int32_t{4}}), Variant(std::string("Test")));
    call(host.get(), "Remove", {std::int32_t{4}});
    EXPECT_EQ(get(servers().get(), "Count"), Variant(std::int32_t{3}));
}

TEST_F(SampleObjects, AFailedAddGivesNothingAndTheReason) {
    EXPECT_FALSE(added("Simulation.Kiln.1", "LAB"));
    EXPECT_EQ(last_error(), "Server execution failed (0x80080005)");
    EXPECT_EQ(get(servers().get(), "Count"), Variant(std::int32_t{3}));
}

TEST_F(SampleObjects, AServerIsFoundByTheTextThatTheDialogsShow) {
    const auto server = get_object(host.get(), "Server", {std::string("line1.simulation.filling.1")});
    ASSERT_TRUE(server);
    EXPECT_EQ(get(server.get(), "ServerName"), Variant(std::string("Simulation.Filling.1")));
    EXPECT_EQ(get(server.get(), "ServerNode"), Variant(std::string("LINE1")));
    const Error unknown = error_of_getting(host.get(), "Server", {std::string("Nothing")});
    EXPECT_EQ(unknown.number(), error::element_not_found);
    EXPECT_EQ(unknown.description(), "No configured server is called Nothing.");
    const Error down = error_of_getting(host.get(), "Server", {std::string("LAB.Simulation.Kiln.1")});
    EXPECT_EQ(down.number(), failed);
    EXPECT_THAT(down.description(), HasSubstr("Server execution failed"));
}

TEST_F(SampleObjects, AGroupIsAddedToAServerAndRemovedAgain) {
    const auto server = get_object(host.get(), "Server", {std::string("Simulation.Packing.1")});
    const auto groups = get_object(server.get(), "OPCGroups");
    EXPECT_EQ(get(groups.get(), "Count"), Variant(std::int32_t{1})); // that of the configuration
    const Variant added = call(groups.get(), "Add", {std::string("Weights")});
    const auto group = dispatch_of(std::get<ObjectPtr>(added));
    EXPECT_EQ(get(group.get(), "Name"), Variant(std::string("Weights")));
    EXPECT_EQ(get(groups.get(), "Count"), Variant(std::int32_t{2}));
    call(groups.get(), "Remove", {std::string("Weights")});
    EXPECT_EQ(get(groups.get(), "Count"), Variant(std::int32_t{1}));
    EXPECT_EQ(error_of_getting(group.get(), "Name").number(), failed);
}

TEST_F(SampleObjects, TheItemThatWasChosenLastIsThereAfterARestart) {
    EXPECT_EQ(get(host.get(), "LastItem", {std::int32_t{2}}), Variant(std::string()));
    invoke(host.get(), "LastItem", DISPATCH_PROPERTYPUT, {std::int32_t{2}, std::string("Bottle.Weight")});
    host = create_by_name(L"brxSample.Host");
    put(host.get(), "DatabaseFile", folder.name_of(L"host.db"));
    EXPECT_EQ(get(host.get(), "LastItem", {std::int32_t{2}}), Variant(std::string("Bottle.Weight")));
    EXPECT_EQ(get(host.get(), "LastItem", {std::int32_t{1}}), Variant(std::string()));
}

TEST_F(SampleObjects, ConnectingAgainTellsWhetherItWorked) {
    EXPECT_EQ(call(host.get(), "Connect", {std::int32_t{1}}), Variant(true));
    EXPECT_EQ(call(host.get(), "Connect", {std::int32_t{3}}), Variant(false));
}

TEST_F(SampleObjects, AFreshEntryListsTheServersOfANode) {
    const auto fresh = create_by_name(L"brxOpcAuto6.hlxOPCServer");
    EXPECT_EQ(get(fresh.get(), "ServerName"), Variant(std::string()));
    EXPECT_FALSE(get_object(fresh.get(), "Parent"));
    const auto server = get_object(fresh.get(), "OPCServer");
    const Variant lab = call(server.get(), "GetOPCServers", {std::string("LAB")});
    EXPECT_THAT(std::get<StringArray>(lab).elements,
                ElementsAre("Simulation.Balance.1", "Simulation.Climate.1", "Simulation.Kiln.1"));
    EXPECT_EQ(std::get<StringArray>(lab).lower_bound, 1);
    EXPECT_EQ(std::get<StringArray>(call(server.get(), "GetOPCServers")).elements.size(), 3U);
    EXPECT_TRUE(
        std::get<StringArray>(call(server.get(), "GetOPCServers", {std::string("OFFICE")})).elements.empty());
    EXPECT_EQ(error_of_getting(server.get(), "StartTime").number(), failed);
}

TEST_F(SampleObjects, TheParentsLeadFromAServerToTheDatabase) {
    const auto collection = get_object(entry(1).get(), "Parent");
    const auto application = get_object(collection.get(), "Parent");
    EXPECT_TRUE(get_object(application.get(), "Database"));
}

TEST_F(SampleObjects, ADamagedDatabaseIsToldInWords) {
    write_file(folder.file(L"host.db"), std::string(5000, '?'));
    EXPECT_THAT(error_of_getting(host.get(), "Servers").description(), HasSubstr("it is not a database"));
}

TEST_F(SampleObjects, TheUsualDatabaseLiesWithTheUsersData) {
    put(host.get(), "DatabaseFile", std::string());
    EXPECT_THAT(std::get<std::string>(get(host.get(), "DatabaseFile")), HasSubstr("\\brxSample\\host.db"));
}

TEST_F(SampleObjects, TheLogIsSharedByAllObjects) {
    call(host.get(), "Log", {std::string("something happened")});
    const auto other = create_by_name(L"brxSample.Host");
    EXPECT_EQ(get(other.get(), "LogLine", {get(other.get(), "LogCount")}),
              Variant(std::string("something happened")));
    EXPECT_EQ(get(other.get(), "LogLine", {std::int32_t{-1}}), Variant(std::string()));
}

TEST_F(SampleObjects, NothingIsLeftWhenAllReferencesAreGone) {
    const auto can_unload = reinterpret_cast<HRESULT(STDAPICALLTYPE*)()>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"brxSample.dll"), "DllCanUnloadNow")));
    ASSERT_NE(can_unload, nullptr);
    {
        const auto server = get_object(host.get(), "Server", {std::string("Simulation.Packing.1")});
        const auto browser = call(server.get(), "CreateBrowser");
        call(dispatch_of(std::get<ObjectPtr>(browser)).get(), "ShowBranches");
    }
    EXPECT_EQ(can_unload(), S_FALSE);
    host = nullptr;
    EXPECT_EQ(can_unload(), S_OK);
}

/// The message box in front, read and pressed away by a timer while it waits.
TEST_F(SampleObjects, TheHelpFileIsTheOneNextToTheObjectsOrInAFolderAroundThem) {
    const com_ptr<IDispatch> help = create_by_name(L"brxOpcAuto6.hlxHelp");
    std::filesystem::path around = host_program();
    for (int i = 0; i < 3; ++i) {
        around = around.parent_path();
        const std::filesystem::path file = around / L"brxOpcDlgs6.chm";
        EXPECT_EQ(get(help.get(), "HelpFile"), Variant(std::string()));
        write_file(file, "pages");
        EXPECT_EQ(get(help.get(), "HelpFile"), Variant(utf8_of(std::wstring_view(file.native()))));
        std::filesystem::remove(file);
    }
}

std::string box_text;
void CALLBACK press_ok(HWND, UINT, UINT_PTR timer, DWORD) {
    const HWND box = FindWindowW(L"#32770", L"Unexpected Error");
    if (!box || GetWindowThreadProcessId(box, nullptr) != GetCurrentThreadId()) return;
    KillTimer(nullptr, timer);
    std::array<wchar_t, 1000> text{};
    GetDlgItemTextW(box, 0xFFFF, text.data(), static_cast<int>(text.size()));
    for (const wchar_t* c = text.data(); *c; ++c) box_text += static_cast<char>(*c);
    PostMessageW(box, WM_COMMAND, IDOK, 0);
}

TEST_F(SampleObjects, AnErrorIsShownAndLogged) {
    for (const wchar_t* name : {L"brxError6.Error", L"hlxER01.Error"}) {
        box_text.clear();
        SetTimer(nullptr, 0, 50, press_ok);
        call(create_by_name(name).get(), "Show",
             {std::int32_t{13}, std::string("Type mismatch"), std::string("brxOpcDlgs6"),
              std::string("dlgServerAdd.bnOK_Click"), std::string("brxOpcDlgs6 " BRX_VERSION_TEXT)});
        EXPECT_THAT(box_text, HasSubstr("Type mismatch"));
        EXPECT_THAT(box_text, HasSubstr("dlgServerAdd.bnOK_Click"));
        EXPECT_THAT(box_text, HasSubstr("brxOpcDlgs6 " BRX_VERSION_TEXT));
        EXPECT_EQ(get(host.get(), "LogLine", {get(host.get(), "LogCount")}),
                  Variant(std::string("Error 13 in dlgServerAdd.bnOK_Click: Type mismatch")));
    }
}

} // namespace

} // namespace brx::checks
