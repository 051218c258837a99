#include "server/dialog_thread.h"
#include "server/host_test.h"
#include "server/opened_windows.h"

#include "desk/hands.h"

#include <filesystem>

namespace brx::checks {

namespace {

/// Shows a selection of servers on the present thread: the position of the one chosen, 0 for none.
short choose_a_server(const Dll& dll, const std::vector<std::string>& names) {
    FakeHost model;
    for (const std::string& name : names) model.servers->has(name);
    const auto object = dll.create<_ServerSelect>(CLSID_ServerSelect);
    IDispatch* servers = to_com<hlxOPCServers>(model.servers).detach();
    VARIANT_BOOL chosen = VARIANT_FALSE;
    EXPECT_EQ(object->Show(&servers, &chosen), S_OK);
    servers->Release();
    short position = 0;
    if (chosen != VARIANT_FALSE) object->get_ServerIndex(&position);
    return position;
}

void choose(HWND dialog, int lines_down) {
    const HWND box = find_control(dialog, "cboServer");
    for (int i = 0; i < lines_down; ++i) press_down(box, {.key = VK_DOWN});
    EXPECT_TRUE(Hands::eventually([&] { return takes_input(find_control(dialog, "bnOK")); }));
    PostMessageW(find_control(dialog, "bnOK"), BM_CLICK, 0, 0);
}

} // namespace

TEST(LeavingTest, NoThreadAndNoWindowIsLeftWhenTheDllGoes) {
    int before = 0;
    for (int i = 0; i < 3; ++i) {
        {
            const Dll dll;
            DialogThread other([&] {
                const Apartment own;
                choose_a_server(dll, {});
            });
            PostMessageW(other.dialog("dlgServerSelect"), WM_CLOSE, 0, 0);
            EXPECT_TRUE(Hands::eventually([&] { return other.ended(); }));
            EXPECT_TRUE(dll.can_unload());
        }
        EXPECT_EQ(GetModuleHandleW(L"brxOpcDlgs6.dll"), nullptr);
        EXPECT_TRUE(windows_of(GetCurrentThreadId()).empty());
        if (i == 0) before = threads_of_this_process(); // the system has its own from the first time on
        EXPECT_EQ(threads_of_this_process(), before);
    }
}

TEST(LeavingTest, AThreadThatIsToldToQuitEndsAndTheDllGoes) {
    int exit_code = 0;
    {
        const Dll dll;
        DialogThread other([&] {
            const Apartment own;
            choose_a_server(dll, {});
            MSG message{};
            while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
            exit_code = static_cast<int>(message.wParam);
        });
        ASSERT_TRUE(other.dialog("dlgServerSelect"));
        PostThreadMessageW(other.id(), WM_QUIT, 9, 0);
        EXPECT_TRUE(Hands::eventually([&] { return other.ended(); }));
        EXPECT_TRUE(dll.can_unload());
    }
    EXPECT_EQ(exit_code, 9);
    EXPECT_EQ(GetModuleHandleW(L"brxOpcDlgs6.dll"), nullptr);
}

TEST(LeavingTest, AThreadThatAHostEndsInACallOfADialogsDoesNoHarmToTheOthers) {
    const Apartment apartment;
    for (const DWORD after : {DWORD{0}, DWORD{1'300}}) { // also while the window is open that tells of it
        const int before = threads_of_this_process();
        const Dll dll;
        FakeHost model;
        DialogThread other([&] {
            const Apartment own;
            model.calls.during("hlxOPCServers.Count", [&] {
                Sleep(after);
                other.ends_here();
            });
            IDispatch* servers = to_com<hlxOPCServers>(model.servers).detach();
            VARIANT_BOOL chosen = VARIANT_FALSE;
            dll.create<_ServerSelect>(CLSID_ServerSelect)->Show(&servers, &chosen);
        });
        EXPECT_TRUE(Hands::eventually([&] { return other.ended(); }));
        EXPECT_TRUE(Hands::eventually([&] { return threads_of_this_process() == before; }));
        EXPECT_FALSE(dll.can_unload()) << "What that thread had is nobody's now.";
        OpenedWindows windows;
        windows.close_at_once();
        EXPECT_EQ(choose_a_server(dll, {}), 0);
        EXPECT_EQ(windows.count(), 1);
    }
}

TEST(ThreadsTest, DialogsOfSeveralThreadsAreOpenAtOnceAndKnowNothingOfEachOther) {
    const Dll dll;
    short first_chosen = -1;
    short second_chosen = -1;
    DialogThread first([&] {
        const Apartment own;
        first_chosen = choose_a_server(dll, {"Matrix", "Plant"});
    });
    DialogThread second([&] {
        const Apartment own;
        second_chosen = choose_a_server(dll, {"Kepler", "Newton", "Simulator"});
    });
    const HWND one = first.dialog("dlgServerSelect");
    const HWND other = second.dialog("dlgServerSelect");
    ASSERT_TRUE(one && other);
    EXPECT_TRUE(IsWindowEnabled(one));
    EXPECT_TRUE(IsWindowEnabled(other));
    EXPECT_FALSE(dll.can_unload());
    choose(one, 2);
    EXPECT_TRUE(Hands::eventually([&] { return first.ended(); }));
    EXPECT_FALSE(dll.can_unload());
    EXPECT_TRUE(IsWindowEnabled(other));
    choose(other, 3);
    EXPECT_TRUE(Hands::eventually([&] { return second.ended(); }));
    EXPECT_EQ(first_chosen, 2);
    EXPECT_EQ(second_chosen, 3);
    EXPECT_TRUE(dll.can_unload());
}

TEST(ThreadsTest, ADialogWorksOnAThreadOfAMultithreadedApartmentWhichHasNoFilter) {
    const Dll dll;
    short chosen = -1;
    HRESULT filter = S_OK;
    DialogThread free([&] {
        CoInitializeEx(nullptr, COINIT_MULTITHREADED);
        chosen = choose_a_server(dll, {"Matrix", "Plant"});
        filter = CoRegisterMessageFilter(nullptr, nullptr);
        CoUninitialize();
    });
    const HWND dialog = free.dialog("dlgServerSelect");
    ASSERT_TRUE(dialog);
    choose(dialog, 2);
    EXPECT_TRUE(Hands::eventually([&] { return free.ended(); }));
    EXPECT_EQ(chosen, 2);
    EXPECT_TRUE(FAILED(filter));
    EXPECT_TRUE(dll.can_unload());
}

TEST(ThreadsTest, ARegisteredClassGivesAMultithreadedApartmentItsDialogsOnAThreadOfTheSystems) {
    // A copy by another name: Wine keeps what it has marshalled between apartments, and so the file.
    const auto copy = std::filesystem::temp_directory_path() / L"brxInAnotherApartment.dll";
    std::filesystem::copy_file(dll_path(), copy, std::filesystem::copy_options::overwrite_existing);
    const Dll dll(copy);
    ASSERT_EQ(dll.register_for_machine(), S_OK);
    HRESULT created = E_FAIL;
    HRESULT shown = E_FAIL;
    VARIANT_BOOL result = VARIANT_TRUE;
    DialogThread free([&] {
        CoInitializeEx(nullptr, COINIT_MULTITHREADED);
        {
            com_ptr<_ServerAdd> object;
            created = CoCreateInstance(CLSID_ServerAdd, nullptr, CLSCTX_INPROC_SERVER, IID__ServerAdd,
                                       reinterpret_cast<void**>(object.out()));
            if (object) shown = object->Show(nullptr, &result);
        }
        CoUninitialize();
    });
    HWND box = nullptr;
    EXPECT_TRUE(Hands::eventually([&] {
        box = FindWindowW(L"#32770", L"brxOpcDlgs6");
        return box != nullptr || free.ended();
    }));
    EXPECT_NE(GetWindowThreadProcessId(box, nullptr), free.id());
    PostMessageW(box, WM_CLOSE, 0, 0);
    EXPECT_TRUE(Hands::eventually([&] { return free.ended(); }));
    EXPECT_EQ(created, S_OK);
    EXPECT_EQ(shown, S_OK);
    EXPECT_EQ(result, VARIANT_FALSE);
    EXPECT_EQ(dll.unregister_for_machine(), S_OK);
}

} // namespace brx::checks
