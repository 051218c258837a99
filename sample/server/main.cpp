#include "com/failure.h"
#include "dll/class_factory.h"
#include "plant/plant.h"
#include "server/calls.h"
#include "server/kept_interfaces.h"
#include "server/many_items.h"
#include "server/options.h"
#include "server/published.h"
#include "server/registration.h"
#include "server/window.h"

#include <windows.h>

#include <objbase.h>
#include <shellapi.h>

#include <memory>
#include <vector>

namespace brx::server {

namespace {

constexpr const wchar_t* title = L"OPC Sample Server";
constexpr UINT_PTR lifetime_timer = 2;
constexpr UINT lifetime_period = 100; // milliseconds
constexpr int patience = 300;         // periods that a client may take to create its first object

std::shared_ptr<plant::Plant> the_plant;

com_ptr<IDispatch> create_server() { return new_server(*the_plant); }

const PublicClass offered_class{server_class, create_server};

std::vector<std::wstring> arguments() {
    int count = 0;
    const std::unique_ptr<LPWSTR, decltype(&LocalFree)> texts(CommandLineToArgvW(GetCommandLineW(), &count),
                                                              LocalFree);
    return texts ? std::vector<std::wstring>(texts.get() + 1, texts.get() + count)
                 : std::vector<std::wstring>();
}

/// One that the system started ends when its clients have let go of everything.
class Lifetime {
public:
    Lifetime(const Window& window, bool until_released) : window_(window), counts_(until_released) {}

    bool is_over() {
        if (!counts_) return false;
        const bool used = window_.objects_in_use() > 0;
        was_used_ = was_used_ || used;
        waited_ = used ? 0 : waited_ + 1;
        return waited_ > (was_used_ ? 1 : patience);
    }

private:
    const Window& window_;
    bool counts_;
    bool was_used_ = false;
    int waited_ = 0;
};

void serve_messages(Window& window, bool until_released) {
    Lifetime lifetime(window, until_released);
    SetTimer(window.handle(), lifetime_timer, lifetime_period, nullptr);
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (message.message == WM_TIMER && message.wParam == lifetime_timer && lifetime.is_over())
            DestroyWindow(window.handle());
        if (IsDialogMessageW(window.handle(), &message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

/// The published ones and the system's own that clients ask their objects for.
std::vector<IID> called_interfaces() {
    std::vector<IID> interfaces = published_interfaces();
    for (const IID& iid : {IID_IDispatch, IID_IEnumVARIANT, IID_ISupportErrorInfo}) interfaces.push_back(iid);
    return interfaces;
}

int serve(HINSTANCE program, int show_command, const Options& options) {
    publish_plant_objects();
    the_plant =
        std::make_shared<plant::Plant>(plant_with(options.items), std::make_shared<plant::SystemClock>());
    const com_ptr<Calls> calls = make_com<Calls>(options.switches, options.log);
    const com_ptr<IClassFactory> factory = class_factory_of(offered_class);
    const KeptInterfaces kept(called_interfaces());
    Window window(*calls.get(), ModuleLock::count());
    // Nobody asked for one that the system started: it comes up at the edge and takes nobody's keys.
    if (!window.open(program, options.until_released ? SW_SHOWMINNOACTIVE : show_command)) return 1;
    calls->window = window.handle();
    check(CoRegisterMessageFilter(calls.get(), nullptr));
    check(CoRegisterClassObject(server_class, factory.get(), CLSCTX_LOCAL_SERVER, REGCLS_MULTIPLEUSE,
                                &calls->offered));
    window.says_that_it_serves();
    serve_messages(window, options.until_released);
    CoRevokeClassObject(calls->offered);
    CoRegisterMessageFilter(nullptr, nullptr);
    the_plant = nullptr;
    return 0;
}

int run(HINSTANCE program, int show_command) {
    const auto options = options_from(arguments());
    if (!options) {
        MessageBoxW(nullptr, usage, title, MB_OK | MB_ICONINFORMATION);
        return 2;
    }
    try {
        if (options->deed == Options::Deed::serve) return serve(program, show_command, *options);
        HKEY root = options->for_user ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
        check(options->deed == Options::Deed::install ? install(root) : uninstall(root));
        return 0;
    } catch (const Error& error) {
        MessageBoxW(nullptr, wide(error.description()).c_str(), title, MB_OK | MB_ICONERROR);
        return 1;
    }
}

} // namespace

} // namespace brx::server

int WINAPI wWinMain(HINSTANCE program, HINSTANCE, LPWSTR, int show_command) {
    if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) return 1;
    const int status = brx::server::run(program, show_command);
    CoUninitialize();
    return status;
}
