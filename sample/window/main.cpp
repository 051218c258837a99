#include "window/main_window.h"

#include <commctrl.h>
#include <shellapi.h>

#include <memory>
#include <optional>
#include <vector>

namespace sample {

namespace {

std::vector<std::wstring> arguments() {
    int count = 0;
    const std::unique_ptr<LPWSTR, decltype(&LocalFree)> texts(CommandLineToArgvW(GetCommandLineW(), &count),
                                                              LocalFree);
    return texts ? std::vector<std::wstring>(texts.get() + 1, texts.get() + count)
                 : std::vector<std::wstring>();
}

/// None when the command line cannot be understood.
std::optional<Options> options_from(const std::vector<std::wstring>& given) {
    Options options;
    for (const std::wstring& argument : given) {
        if (argument == L"--plant")
            options.wrapper = false;
        else if (argument == L"--wrapper")
            options.wrapper = true;
        else if (argument.rfind(L"--", 0) == 0 || !options.database.empty())
            return std::nullopt;
        else
            options.database = argument;
    }
    return options;
}

int run(HINSTANCE program, int show_command) {
    const auto options = options_from(arguments());
    if (!options) {
        MessageBoxW(
            nullptr,
            L"brxSampleHost [--plant | --wrapper] [FILE]\n\n"
            L"FILE is the database file; it is made with sample data when it is not there.\n\n"
            L"--plant takes the OPC servers from the simulated plant, --wrapper from the installed OPC "
            L"automation wrapper. Without either it is as the database file remembers it.",
            L"OPC Collection Sample Host", MB_OK | MB_ICONINFORMATION);
        return 2;
    }
    MainWindow window(*options);
    return window.open(program, show_command) ? window.run() : 1;
}

} // namespace

} // namespace sample

int WINAPI wWinMain(HINSTANCE program, HINSTANCE, LPWSTR, int show_command) {
    const INITCOMMONCONTROLSEX controls{sizeof controls,
                                        ICC_STANDARD_CLASSES | ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES};
    InitCommonControlsEx(&controls);
    if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) return 1;
    const int status = sample::run(program, show_command);
    CoUninitialize();
    return status;
}
