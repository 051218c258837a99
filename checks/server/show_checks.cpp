#include "adapters/to_com.h"
#include "host/fake_host.h"
#include "server/debugger_output.h"
#include "server/dll.h"
#include "server/error_library.h"
#include "server/opened_windows.h"

#include <brxOpcDlgs6.h>
#include <gtest/gtest.h>

namespace brx::checks {

namespace {

/// A host in this process whose objects are good ones, so that dialogs open; the user closes each at once.
class ShowTest : public testing::Test {
protected:
    ShowTest() { windows.close_at_once(); }

    Apartment apartment;
    FakeHost host;
    ErrorLibrary6 errors;
    Dll dll;
    OpenedWindows windows;
};

} // namespace

TEST_F(ShowTest, AClosedSelectionIsNoneAndKeepsTheIndex) {
    const auto object = dll.create<_ServerSelect>(CLSID_ServerSelect);
    object->put_ServerIndex(3);
    IDispatch* servers = to_com<hlxOPCServers>(host.servers).detach();
    VARIANT_BOOL result = VARIANT_TRUE;
    EXPECT_EQ(object->Show(&servers, &result), S_OK);
    EXPECT_EQ(result, VARIANT_FALSE);
    short index = 0;
    EXPECT_EQ(object->get_ServerIndex(&index), S_OK);
    EXPECT_EQ(index, 3);
    EXPECT_EQ(windows.count(), 1);
    EXPECT_EQ(servers->Release(), 0u) << "the collection is held";
    EXPECT_EQ(errors.heard.size(), 0u);
}

TEST_F(ShowTest, AClosedInformationIsTrue) {
    const auto object = dll.create<_ServerInformation>(CLSID_ServerInformation);
    const auto connection = to_com<OPCServer>(host.enumerator);
    VARIANT_BOOL result = VARIANT_FALSE;
    EXPECT_EQ(object->Show(connection.get(), &result), S_OK);
    EXPECT_EQ(result, VARIANT_TRUE);
    EXPECT_EQ(windows.count(), 1);
}

TEST_F(ShowTest, AClosedConfigurationIsNotHeld) {
    const auto object = dll.create<_ConfigurationSetup>(CLSID_ConfigurationSetup);
    IDispatch* configuration = to_com<hlxOPCConfiguration>(host.configuration).detach();
    EXPECT_EQ(object->Show(configuration), S_OK);
    EXPECT_EQ(windows.count(), 1);
    EXPECT_EQ(configuration->Release(), 0u) << "the configuration is held";
    EXPECT_EQ(errors.heard.size(), 0u);
}

TEST_F(ShowTest, AnObjectIsShownAnyNumberOfTimes) {
    const auto object = dll.create<_ServerInformation>(CLSID_ServerInformation);
    const auto connection = to_com<OPCServer>(host.enumerator);
    for (int i = 0; i < 3; ++i) {
        VARIANT_BOOL result = VARIANT_FALSE;
        EXPECT_EQ(object->Show(connection.get(), &result), S_OK);
        EXPECT_EQ(result, VARIANT_TRUE);
    }
    EXPECT_EQ(windows.count(), 3);
}

TEST(UnloadingTest, TheDllGoesAfterADialogAndComesBackForTheNext) {
    const Apartment apartment;
    FakeHost host;
    const auto connection = to_com<OPCServer>(host.enumerator);
    for (int i = 0; i < 3; ++i) {
        const Dll dll;
        OpenedWindows windows;
        windows.close_at_once();
        VARIANT_BOOL result = VARIANT_FALSE;
        dll.create<_ServerInformation>(CLSID_ServerInformation)->Show(connection.get(), &result);
        EXPECT_EQ(result, VARIANT_TRUE);
        EXPECT_TRUE(dll.can_unload());
    }
    EXPECT_EQ(GetModuleHandleW(L"brxOpcDlgs6.dll"), nullptr);
}

TEST(UnloadingTest, TheDllGoesBeforeTheThreadThatUsedIt) {
    struct Thread {
        static DWORD WINAPI run(void*) {
            const Apartment apartment;
            const Dll dll;
            OpenedWindows windows;
            windows.close_at_once(); // that tells of the error
            VARIANT_BOOL result = VARIANT_TRUE;
            dll.create<_ServerAdd>(CLSID_ServerAdd)->Show(nullptr, &result);
            return result == VARIANT_FALSE && dll.can_unload() ? 0 : 1;
        }
    };
    for (int i = 0; i < 3; ++i) {
        const HANDLE thread = CreateThread(nullptr, 0, &Thread::run, nullptr, 0, nullptr);
        ASSERT_EQ(WaitForSingleObject(thread, 10'000), WAIT_OBJECT_0);
        DWORD status = 1;
        GetExitCodeThread(thread, &status);
        CloseHandle(thread);
        EXPECT_EQ(status, 0u);
        EXPECT_EQ(GetModuleHandleW(L"brxOpcDlgs6.dll"), nullptr);
    }
}

} // namespace brx::checks
