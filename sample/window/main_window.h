#pragma once

#include "window/chart.h"
#include "window/host_model.h"
#include "window/screen.h"
#include "window/table.h"

#include <optional>
#include <string>

namespace sample {

/// What the command line asks for.
struct Options {
    std::wstring database;       ///< "" for the usual file
    std::optional<bool> wrapper; ///< none: as the file remembers it
};

/// The host's window.
class MainWindow {
public:
    explicit MainWindow(Options options) : options_(std::move(options)) {}
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;

    /// Makes the window and opens the database file. False, after telling why, when the host cannot work.
    bool open(HINSTANCE program, int show_command);
    /// Runs until the window is closed.
    int run();

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
    LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam);
    LRESULT notified(LPARAM parameter);

    void create_controls();
    void focus_moved(WORD control, WORD notification);
    void use_font();
    void lay_out();
    void make_default(int button);
    /// Lets the lists, the commands and the last item follow what is selected.
    void show_selection();
    void refresh();
    /// The configurations of the selected server and the tests of the selected configuration.
    void show_details();
    void enable_commands();
    void show_error();
    void show_log();
    void collect();
    void show_chart();
    void show_run_command();

    void command(int id);
    void select_server();
    void add_server();
    void show_information();
    void browse_items();
    void new_configuration();
    void configure();
    void run_configuration();
    void edit_test();
    template <class Show> void hold_while(long position, long number, Show&& show);
    void show_configuration(long position, long number);
    bool settle(long position, long number);
    void connect();
    void remove();
    void use_wrapper(bool wrapper);
    void about();
    static std::wstring missing_file(const wchar_t* file, const Failure& failure);
    bool check_dialogs();
    void centre();
    bool start();
    int ask(const std::wstring& text, UINT style) const;
    /// The automation server; none, after telling that it is not connected.
    Ref<IDispatch> connected_server(long position, const wchar_t* purpose) const;

    HWND child(int id) const { return GetDlgItem(window_, id); }

    Options options_;
    HWND window_ = nullptr;
    HWND focus_ = nullptr;
    HACCEL keys_ = nullptr;
    UINT dpi_ = 96;
    int default_button_ = 0; ///< what Enter presses
    Font font_;
    Table servers_;
    Table configurations_;
    Table tests_;
    Chart chart_;
    long shown_server_ = 0;        ///< whose configurations are listed
    long shown_configuration_ = 0; ///< whose tests are listed
    bool shown_running_ = false;   ///< as the command says it
    std::wstring shown_error_;     ///< in the status bar
    bool showing_ = false;         ///< the lists are being filled
    std::optional<HostModel> model_;
    bool dialogs_found_ = false;
};

} // namespace sample
