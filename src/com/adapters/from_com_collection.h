#pragma once

#include "com/adapters/com_model.h"

namespace brx {

template <> class FromCom<hlxApplication> final : public ComModel<hlxApplication> {
public:
    using ComModel::ComModel;
    ObjectPtr Database() override { return call<ObjectPtr>(&Interface::get_Database)(); }
};

template <> class FromCom<hlxOPCServers> final : public ComModel<hlxOPCServers> {
public:
    using ComModel::ComModel;
    ObjectPtr Parent() override { return call<ObjectPtr>(&Interface::get_Parent)(); }
    hlxOPCServerPtr Add(const std::string& server_name, const std::string& node, bool connect) override {
        return call<hlxOPCServerPtr>(&Interface::Add)(server_name, node, connect);
    }
    std::string LastError() override { return call<std::string>(&Interface::get_LastError)(); }
    hlxOPCServerPtr Item(const Variant& index) override {
        return call<hlxOPCServerPtr>(&Interface::get_Item)(index);
    }
    std::int32_t Count() override { return call<std::int32_t>(&Interface::get_Count)(); }
};

template <> class FromCom<hlxOPCServer> final : public ComModel<hlxOPCServer> {
public:
    using ComModel::ComModel;
    std::string ServerName() override { return call<std::string>(&Interface::get_ServerName)(); }
    std::string Node() override { return call<std::string>(&Interface::get_Node)(); }
    ObjectPtr Parent() override { return call<ObjectPtr>(&Interface::get_Parent)(); }
    ObjectPtr OPCServer() override { return call<ObjectPtr>(&Interface::get_OPCServer)(); }
};

template <> class FromCom<hlxOPCServerHolder> final : public ComModel<hlxOPCServerHolder> {
public:
    using ComModel::ComModel;
    hlxOPCServerPtr ServerEntry() override { return call<hlxOPCServerPtr>(&Interface::get_ServerEntry)(); }
};

} // namespace brx
