#include "window/main_window.h"

#include "window/item_group.h"
#include "window/resource.h"

#include <brxOpcDlgs6.h>
#include <commctrl.h>

#include <array>

namespace sample {

namespace {

std::wstring clock_text() {
    std::array<wchar_t, 64> text{};
    GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, 0, nullptr, nullptr, text.data(),
                    static_cast<int>(text.size()));
    return text.data();
}

} // namespace

std::wstring MainWindow::missing_file(const wchar_t* file, const Failure& failure) {
    return std::wstring(file) +
           L" could not be loaded.\n\nIt must be in the folder of brxSampleHost.exe, and both for "
           L"programs of the same bits.\n\n" +
           failure.description;
}

bool MainWindow::check_dialogs() {
    try {
        static_cast<void>(create<_ServerSelect>(L"brxOpcDlgs6.ServerSelect"));
        return true;
    } catch (const Failure& failure) {
        ask(missing_file(L"brxOpcDlgs6.dll", failure), MB_OK | MB_ICONWARNING);
        return false;
    }
}

void MainWindow::command(int id) {
    if (!model_) return;
    switch (id) {
    case ID_SELECT:
        select_server();
        break;
    case ID_ADD:
        add_server();
        break;
    case ID_INFORMATION:
        show_information();
        break;
    case ID_BROWSE:
        browse_items();
        break;
    case ID_NEW_CONFIGURATION:
        new_configuration();
        break;
    case ID_CONFIGURE:
        configure();
        break;
    case ID_EDIT_TEST:
        edit_test();
        break;
    case ID_RUN:
        run_configuration();
        break;
    case ID_CONNECT:
        connect();
        break;
    case ID_REMOVE:
        remove();
        break;
    case ID_EXIT:
        SendMessageW(window_, WM_CLOSE, 0, 0);
        return;
    case ID_PLANT:
        use_wrapper(false);
        break;
    case ID_WRAPPER:
        use_wrapper(true);
        break;
    case ID_ABOUT:
        about();
        break;
    default:
        return;
    }
    refresh();
    show_selection();
}

void MainWindow::select_server() {
    if (!dialogs_found_) return;
    const auto dialog = create<_ServerSelect>(L"brxOpcDlgs6.ServerSelect");
    VARIANT_BOOL chosen = VARIANT_FALSE;
    IDispatch* servers = model_->collection();
    check(dialog->Show(&servers, &chosen));
    refresh();
    if (chosen == VARIANT_FALSE) {
        model_->log(L"Select server: nothing chosen.");
        return;
    }
    short position = 0;
    check(dialog->get_ServerIndex(&position));
    servers_.select(position);
    model_->log(L"Select server: number " + std::to_wstring(position) + L", " +
                model_->display_text(position) + L".");
}

void MainWindow::add_server() {
    if (!dialogs_found_) return;
    const auto dialog = create<_ServerAdd>(L"brxOpcDlgs6.ServerAdd");
    VARIANT_BOOL added = VARIANT_FALSE;
    check(dialog->Show(model_->collection(), &added));
    refresh();
    if (added == VARIANT_FALSE) {
        model_->log(L"Add server: nothing added.");
        return;
    }
    short position = 0;
    check(dialog->get_ServerIndex(&position));
    servers_.select(position);
    model_->log(L"Add server: number " + std::to_wstring(position) + L", " + model_->display_text(position) +
                L".");
}

Ref<IDispatch> MainWindow::connected_server(long position, const wchar_t* purpose) const {
    auto server = model_->automation_server(position);
    if (!server)
        ask(model_->display_text(position) + L"\n\n" + model_->state_text(position) +
                L"\n\nConnect it again to " + purpose + L".",
            MB_OK | MB_ICONINFORMATION);
    return server;
}

void MainWindow::show_information() {
    const long position = servers_.selected();
    if (!dialogs_found_ || position == 0) return;
    const auto server = connected_server(position, L"see its information");
    if (!server) return;
    const auto dialog = create<_ServerInformation>(L"brxOpcDlgs6.ServerInformation");
    VARIANT_BOOL shown = VARIANT_FALSE;
    check(dialog->Show(server.get(), &shown));
    model_->log(L"Server information: " + model_->display_text(position) +
                (shown != VARIANT_FALSE ? L" shown." : L" could not be shown."));
}

void MainWindow::browse_items() {
    const long position = servers_.selected();
    if (!dialogs_found_ || position == 0) return;
    const auto server = connected_server(position, L"browse its items");
    if (!server) return;
    const auto dialog = create<_LeafSelect>(L"brxOpcDlgs6.LeafSelect");
    check(dialog->put_ItemID(Text(model_->last_item(position)).get()));
    VARIANT_BOOL chosen = VARIANT_FALSE;
    {
        const ItemGroup group(server);
        check(dialog->Show(server.get(), group.get(), &chosen));
    }
    if (chosen == VARIANT_FALSE) {
        model_->log(L"Browse items: nothing chosen.");
        return;
    }
    Text item;
    check(dialog->get_ItemID(item.out()));
    model_->log(L"Browse items: " + item.text() + L" of " + model_->display_text(position) + L".");
    model_->remember_item(position, item.text());
}

void MainWindow::connect() {
    const long position = servers_.selected();
    if (position == 0) return;
    SetCursor(LoadCursorW(nullptr, IDC_WAIT));
    if (model_->connect(position)) return;
    refresh();
    ask(model_->display_text(position) + L"\n\n" + model_->state_text(position), MB_OK | MB_ICONEXCLAMATION);
}

void MainWindow::remove() {
    const long position = servers_.selected();
    if (position == 0) return;
    if (ask(L"Remove " + model_->display_text(position) + L" from the configured servers?",
            MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2) == IDYES)
        model_->remove(position);
}

void MainWindow::use_wrapper(bool wrapper) {
    SetCursor(LoadCursorW(nullptr, IDC_WAIT));
    model_->use_wrapper(wrapper);
}

void MainWindow::about() {
    ask(L"OPC Collection Sample Host\n\nA small host of the brxOpcDlgs6 dialogs. It keeps its configured "
        L"servers "
        L"and collection configurations in the database file\n" +
            model_->database_file() +
            L"\nand shows the dialogs through COM, like any other host.\n\nThe simulated plant has servers "
            L"on this "
            L"computer and on the nodes LINE1, LAB, WAREHOUSE (slow), OFFICE (none), GATEWAY (refuses) and "
            L"TESTBENCH (hard to browse).",
        MB_OK | MB_ICONINFORMATION);
}

int MainWindow::ask(const std::wstring& text, UINT style) const {
    return MessageBoxW(window_, text.c_str(), L"OPC Collection Sample Host", style);
}

void MainWindow::show_log() {
    const HWND log = child(ID_LOG);
    for (const std::wstring& line : model_->new_log_lines()) {
        const int end = GetWindowTextLengthW(log);
        const std::wstring text = (end > 0 ? L"\r\n" : L"") + clock_text() + L"   " + line;
        SendMessageW(log, EM_SETSEL, static_cast<WPARAM>(end), end);
        SendMessageW(log, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(text.c_str()));
    }
}

} // namespace sample
