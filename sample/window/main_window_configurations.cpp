#include "window/main_window.h"

#include <brxOpcDlgs6.h>

// The commands on collection configurations and their tests.

namespace sample {

namespace {

/// Its dialog gives nothing back; the configuration knows what was written into it.
const wchar_t* outcome(SettingsKept kept) {
    switch (kept) {
    case AllSettings:
        return L" closed, and its settings are kept.";
    case SomeSettings:
        return L" left after an error: some of its settings are kept.";
    default:
        return L" left, and its settings are as they were.";
    }
}

} // namespace

/// While a dialog on a configuration is open, nothing is collected in it; then with what was changed.
template <class Show> void MainWindow::hold_while(long position, long number, Show&& show) {
    model_->hold_configuration(position, number);
    try {
        show();
    } catch (const Failure&) {
        model_->settle_configuration(position, number);
        throw;
    }
}

/// What a person changes in it is kept as it is changed, the rest when it closes.
void MainWindow::show_configuration(long position, long number) {
    const auto dialog = create<_ConfigurationSetup>(L"brxOpcDlgs6.ConfigurationSetup");
    hold_while(position, number, [&] { check(dialog->Show(model_->configuration(position, number).get())); });
}

/// The dialog has announced it: a configuration without tests is removed. False when it is.
bool MainWindow::settle(long position, long number) {
    const std::wstring name = model_->configuration_name(position, number);
    const SettingsKept kept = model_->kept_settings(position, number);
    const bool still_there = model_->settle_configuration(position, number);
    model_->log(L"Configure: " + name + (still_there ? outcome(kept) : L" has no tests and is removed."));
    return still_there;
}

void MainWindow::new_configuration() {
    const long position = servers_.selected();
    if (!dialogs_found_ || position == 0) return;
    const long former = configurations_.selected();
    const long number = model_->add_configuration(position);
    try {
        refresh();
        configurations_.select(number);
        show_configuration(position, number);
    } catch (const Failure&) {
        model_->remove_configuration(position, number);
        throw;
    }
    if (settle(position, number)) return;
    refresh();
    configurations_.select(former);
}

void MainWindow::configure() {
    const long position = servers_.selected();
    const long number = configurations_.selected();
    if (!dialogs_found_ || position == 0 || number == 0) return;
    show_configuration(position, number);
    settle(position, number);
}

void MainWindow::edit_test() {
    const long position = servers_.selected();
    const long number = configurations_.selected();
    const long test = tests_.selected();
    if (!dialogs_found_ || position == 0 || number == 0 || test == 0) return;
    const auto dialog = create<_TestConfiguration>(L"brxOpcDlgs6.TestConfiguration");
    const auto edited = model_->test(position, number, test);
    VARIANT_BOOL confirmed = VARIANT_FALSE;
    hold_while(position, number, [&] { check(dialog->Show(edited.get(), &confirmed)); });
    Text name;
    check(edited->get_CharacteristicName(name.out()));
    model_->log(L"Edit test: " + name.text() +
                (confirmed != VARIANT_FALSE ? L" changed." : L" not changed."));
    model_->settle_configuration(position, number);
}

} // namespace sample
