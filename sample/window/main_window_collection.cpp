#include "window/main_window.h"

#include "window/resource.h"

// Running a configuration, and the chart of what it collects.

namespace sample {

void MainWindow::run_configuration() {
    const long position = servers_.selected();
    const long number = configurations_.selected();
    if (position == 0 || number == 0 || tests_.count() == 0) return;
    model_->run(position, number, !model_->is_running(position, number));
    collect();
}

void MainWindow::collect() {
    if (!model_) return;
    model_->collect();
    show_chart();
}

void MainWindow::show_chart() {
    const long test = tests_.selected();
    if (test == 0) {
        chart_.show({L"", {}, 0, L"Select a test to see what is collected of it."});
        return;
    }
    const long position = servers_.selected();
    const long number = configurations_.selected();
    ChartContent content = model_->collected(position, number, test);
    content.hint = model_->is_running(position, number) ? L"Nothing has come yet."
                                                        : L"Run collects the values of the configuration.";
    chart_.show(std::move(content));
}

/// The same button and command run a configuration and stop it.
void MainWindow::show_run_command() {
    const long position = servers_.selected();
    const long number = configurations_.selected();
    const bool running = position != 0 && number != 0 && model_->is_running(position, number);
    if (running == shown_running_) return;
    shown_running_ = running;
    SetWindowTextW(child(ID_RUN), running ? L"Stop &Running" : L"&Run");
    ModifyMenuW(GetMenu(window_), ID_RUN, MF_BYCOMMAND | MF_STRING, ID_RUN,
                running ? L"Stop &Running\tCtrl+R" : L"&Run\tCtrl+R");
}

} // namespace sample
