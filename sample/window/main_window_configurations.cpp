#include "window/main_window.h"

#include <brxOpcDlgs6.h>

// The commands on collection configurations and their tests.

namespace sample {

namespace {

/// Called by its name, so that this program also runs beside a component that has no such class yet.
constexpr const wchar_t* configuration_dialog = L"brxOpcDlgs6.ConfigurationSetup";

} // namespace

bool MainWindow::show_configuration(long position, long number) {
    Ref<IDispatch> dialog;
    try {
        dialog = create<IDispatch>(configuration_dialog);
    } catch (const Failure& failure) {
        if (!failure.no_object) throw;
        ask(std::wstring(L"This brxOpcDlgs6.dll has no dialog for configurations yet: the class ") +
                configuration_dialog + L" cannot be made.\n\n" + failure.description,
            MB_OK | MB_ICONINFORMATION);
        model_->log(L"Configure: there is no dialog for configurations.");
        return false;
    }
    call_show(*dialog.get(), model_->configuration(position, number).get());
    return true;
}

/// The dialog has announced it: a configuration without tests is removed.
void MainWindow::settle(long position, long number) {
    const std::wstring name = model_->configuration_name(position, number);
    const bool still_there = model_->settle_configuration(position, number);
    model_->log(L"Configure: " + name + (still_there ? L" closed." : L" has no tests and is removed."));
}

void MainWindow::new_configuration() {
    const long position = servers_.selected();
    if (!dialogs_found_ || position == 0) return;
    const long number = model_->add_configuration(position);
    if (!show_configuration(position, number)) {
        model_->remove_configuration(position, number);
        return;
    }
    settle(position, number);
    refresh();
    configurations_.select(number);
}

void MainWindow::configure() {
    const long position = servers_.selected();
    const long number = configurations_.selected();
    if (!dialogs_found_ || position == 0 || number == 0) return;
    if (show_configuration(position, number)) settle(position, number);
}

void MainWindow::edit_test() {
    const long position = servers_.selected();
    const long number = configurations_.selected();
    const long test = tests_.selected();
    if (!dialogs_found_ || position == 0 || number == 0 || test == 0) return;
    const auto dialog = create<_TestConfiguration>(L"brxOpcDlgs6.TestConfiguration");
    const auto edited = model_->test(position, number, test);
    VARIANT_BOOL confirmed = VARIANT_FALSE;
    check(dialog->Show(edited.get(), &confirmed));
    Text name;
    check(edited->get_CharacteristicName(name.out()));
    model_->log(L"Edit test: " + name.text() +
                (confirmed != VARIANT_FALSE ? L" changed." : L" not changed."));
    model_->settle_configuration(position, number);
}

} // namespace sample
