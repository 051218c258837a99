#pragma once

#include "window/com.h"

#include <string>
#include <vector>

#include <OPCAutomation.h>
#include <brxOpcAuto6.h>
#include <brxSample.h>

namespace sample {

/// One configured server as the window shows it.
struct ServerLine {
    std::wstring name;
    std::wstring node;
    std::wstring state;
    bool operator==(const ServerLine&) const = default;
};

/// The host's objects as the window uses them. Positions count from 1; every call can throw a Failure.
class HostModel {
public:
    /// `database` is the file to use; empty for the usual one.
    explicit HostModel(const std::wstring& database);

    std::wstring database_file() const;
    std::vector<ServerLine> servers() const;
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

    bool connect(long position);
    void remove(long position);
    bool uses_wrapper() const;
    void use_wrapper(bool wrapper);
    bool wrapper_installed() const;

    void log(const std::wstring& text);
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
