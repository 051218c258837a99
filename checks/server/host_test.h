#pragma once

#include "adapters/to_com.h"
#include "desk/desk.h"
#include "desk/native.h"
#include "host/fake_host.h"
#include "server/dll.h"
#include "server/error_library.h"

#include <brxOpcDlgs6.h>

#include <string>

namespace brx::checks {

class InApartment {
protected:
    Apartment apartment;
};

/// A host in this process with good objects and an error library, a person at its dialogs. The check's own
/// thread is the host's.
class HostTest : protected InApartment, public OnWindows {
protected:
    FakeHost model;
    ErrorLibrary6 errors;
    Dll dll;

    /// Whether a server was chosen.
    bool show_servers() const {
        VARIANT_BOOL result = VARIANT_TRUE;
        const auto object = dll.create<_ServerSelect>(CLSID_ServerSelect);
        IDispatch* servers = to_com<hlxOPCServers>(model.servers).detach();
        EXPECT_EQ(object->Show(&servers, &result), S_OK);
        servers->Release();
        return result != VARIANT_FALSE;
    }
    void show_information() const {
        const auto connection = to_com<OPCServer>(model.enumerator);
        VARIANT_BOOL result = VARIANT_FALSE;
        dll.create<_ServerInformation>(CLSID_ServerInformation)->Show(connection.get(), &result);
        EXPECT_EQ(result, VARIANT_TRUE);
    }
    void show_nothing() const {
        VARIANT_BOOL result = VARIANT_TRUE;
        EXPECT_EQ(dll.create<_ServerAdd>(CLSID_ServerAdd)->Show(nullptr, &result), S_OK);
        EXPECT_EQ(result, VARIANT_FALSE);
    }

    static void close(HWND window) { PostMessageW(window, WM_CLOSE, 0, 0); }
};

} // namespace brx::checks
