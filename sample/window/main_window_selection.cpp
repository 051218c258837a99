#include "window/main_window.h"

#include "window/resource.h"

#include <commctrl.h>

#include <filesystem>

// What the window shows follows what is selected in it.

namespace sample {

namespace {

/// True for as long as this lives, also when something fails meanwhile.
class During {
public:
    explicit During(bool& flag) : flag_(flag) { flag_ = true; }
    During(const During&) = delete;
    During& operator=(const During&) = delete;
    ~During() { flag_ = false; }

private:
    bool& flag_;
};

} // namespace

void MainWindow::refresh() {
    if (!model_) return;
    {
        const During filling(showing_);
        servers_.show(model_->servers());
    }
    show_details();
    show_log();
    show_error();
}

void MainWindow::show_error() {
    const std::wstring text = model_->error_text();
    if (text == shown_error_) return;
    shown_error_ = text;
    SendMessageW(child(ID_STATUS), SB_SETTEXTW, 1, reinterpret_cast<LPARAM>((L" " + text).c_str()));
}

void MainWindow::show_details() {
    if (!model_) return;
    const During filling(showing_);
    const long server = servers_.selected();
    configurations_.show(server != 0 ? model_->configurations(server) : std::vector<TableLine>());
    if (server != shown_server_) {
        configurations_.select(1);
        shown_configuration_ = 0;
    }
    const long configuration = configurations_.selected();
    const bool had_tests = tests_.count() != 0; // a new configuration gets its first while it is shown
    tests_.show(configuration != 0 ? model_->tests(server, configuration) : std::vector<TableLine>());
    if (server != shown_server_ || configuration != shown_configuration_ || !had_tests) tests_.select(1);
    shown_server_ = server;
    shown_configuration_ = configuration;
    show_chart();
}

void MainWindow::show_selection() {
    show_details();
    enable_commands();
    if (!model_) return;
    const long position = servers_.selected();
    const bool wrapper = model_->uses_wrapper();
    CheckMenuRadioItem(GetMenu(window_), ID_PLANT, ID_WRAPPER, wrapper ? ID_WRAPPER : ID_PLANT, MF_BYCOMMAND);
    SetWindowTextW(child(ID_ITEM), position != 0 ? model_->last_item(position).c_str() : L"");
    const HWND status = child(ID_STATUS);
    SendMessageW(status, SB_SETTEXTW, 0,
                 reinterpret_cast<LPARAM>(
                     (L" " + std::filesystem::path(model_->database_file()).filename().wstring()).c_str()));
    SendMessageW(status, SB_SETTEXTW, 2,
                 reinterpret_cast<LPARAM>(wrapper ? L" OPC automation wrapper" : L" Simulated plant"));
}

void MainWindow::enable_commands() {
    const HMENU menu = GetMenu(window_);
    const auto enable = [&](int id, bool enabled) {
        EnableWindow(child(id), enabled);
        EnableMenuItem(menu, static_cast<UINT>(id), enabled ? UINT{MF_ENABLED} : UINT{MF_GRAYED});
    };
    const bool server = servers_.selected() != 0;
    const bool configuration = configurations_.selected() != 0;
    enable(ID_SELECT, dialogs_found_);
    enable(ID_ADD, dialogs_found_);
    enable(ID_INFORMATION, dialogs_found_ && server);
    enable(ID_BROWSE, dialogs_found_ && server);
    enable(ID_CONNECT, server);
    enable(ID_REMOVE, server);
    enable(ID_NEW_CONFIGURATION, dialogs_found_ && server);
    enable(ID_CONFIGURE, dialogs_found_ && configuration);
    enable(ID_EDIT_TEST, dialogs_found_ && tests_.selected() != 0);
    show_run_command();
    enable(ID_RUN, configuration && tests_.count() != 0);
}

} // namespace sample
