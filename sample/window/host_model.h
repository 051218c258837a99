#pragma once

#include "window/chart.h"
#include "window/com.h"
#include "window/table.h"

#include <string>
#include <vector>

#include <OPCAutomation.h>
#include <brxOpcAuto6.h>
#include <brxSample.h>

namespace sample {

/// The host's objects as the window uses them. Positions count from 1; every call can throw a Failure.
class HostModel {
public:
    /// `database` is the file to use; empty for the usual one.
    explicit HostModel(const std::wstring& database);

    std::wstring database_file() const;
    /// The configured servers as the window shows them: name, node, state; pale when not connected.
    std::vector<TableLine> servers() const;
    long count() const;
    /// What the public dialogs are given.
    IDispatch* collection() const { return servers_.get(); }
    /// The automation server when it is connected, none otherwise.
    Ref<IDispatch> automation_server(long position) const;
    std::wstring state_text(long position) const;
    std::wstring display_text(long position) const;

    /// The item that was last chosen of the server; "" for none.
    std::wstring last_item(long position) const;
    void remember_item(long position, const std::wstring& item);

    /// The configurations of a server, by numbers from 1: name, number of tests, state.
    std::vector<TableLine> configurations(long position) const;
    /// The tests of a configuration: characteristic, item, how it is saved, trigger, value now or why there
    /// is none, which is an alarm. One whose item the server refused shows no item.
    std::vector<TableLine> tests(long position, long number) const;
    long configuration_count(long position) const;
    Ref<_hlxOPCConfiguration> configuration(long position, long number) const;
    Ref<_hlxOPCTest> test(long position, long number, long test) const;
    /// Gives the new one's number.
    long add_configuration(long position);
    void remove_configuration(long position, long number);
    /// What a dialog on it has kept since it was held.
    SettingsKept kept_settings(long position, long number) const;
    /// To be called when a dialog on it has closed. False when it had no tests and is removed.
    bool settle_configuration(long position, long number);
    std::wstring configuration_name(long position, long number) const;

    bool is_running(long position, long number) const;
    void run(long position, long number, bool running);
    /// Collects what is due; to be called several times a second.
    void collect();
    /// Until it is settled, nothing is collected in it.
    void hold_configuration(long position, long number);
    /// What the chart shows of a test.
    ChartContent collected(long position, long number, long test) const;

    bool connect(long position);
    void remove(long position);
    bool uses_wrapper() const;
    void use_wrapper(bool wrapper);
    bool wrapper_installed() const;

    void log(const std::wstring& text);
    /// The unexpected error that came last, with how many like it; "" for none.
    std::wstring error_text() const;
    /// The lines since the last call.
    std::vector<std::wstring> new_log_lines();

private:
    Ref<_hlxOPCServer> entry(long position) const;

    Ref<_Host> host_;
    Ref<IDispatch> servers_;
    Ref<_hlxOPCServers> collection_;
    long log_lines_read_ = 0;
};

} // namespace sample
