#pragma once

#include "common/model/object.h"

#include <cstdint>
#include <string>

namespace brx {

class hlxApplication;
class hlxOPCServers;
class hlxOPCServer;
class hlxOPCServerHolder;
using hlxApplicationPtr = std::shared_ptr<hlxApplication>;
using hlxOPCServersPtr = std::shared_ptr<hlxOPCServers>;
using hlxOPCServerPtr = std::shared_ptr<hlxOPCServer>;
using hlxOPCServerHolderPtr = std::shared_ptr<hlxOPCServerHolder>;

// The host's collection library, brxOpcAuto6. Numbers in brackets are positions in the automation interface.
// Positions into collections count from 1. Every call can fail with the host's own error.

/// The host's collection of configured OPC servers.
class hlxOPCServers : public Object {
public:
    virtual ObjectPtr Parent() = 0; ///< (1) the application object
    /// (2) Appends a new entry, connected when asked. Nothing when the connection failed: LastError then says
    /// why.
    virtual hlxOPCServerPtr Add(const std::string& server_name, const std::string& node, bool connect) = 0;
    virtual std::string LastError() = 0;                    ///< (3) the text of the last failure of Add
    virtual hlxOPCServerPtr Item(const Variant& index) = 0; ///< (4) by position
    virtual std::int32_t Count() = 0;                       ///< (5)
};

/// One configured OPC server.
class hlxOPCServer : public Object {
public:
    virtual std::string ServerName() = 0; ///< (1) program identifier
    virtual std::string Node() = 0;       ///< (2) computer name; "" for the local computer
    virtual ObjectPtr Parent() = 0;       ///< (5) the owning hlxOPCServers
    virtual ObjectPtr OPCServer() = 0;    ///< (8) the OPC automation server when connected, Nothing otherwise
};

/// What a configuration refers to its server by.
class hlxOPCServerHolder : public Object {
public:
    virtual hlxOPCServerPtr ServerEntry() = 0; ///< (1)
};

/// The host's application object.
class hlxApplication : public Object {
public:
    virtual ObjectPtr Database() = 0; ///< (9) the database connection (hlxDatabase)
};

} // namespace brx
