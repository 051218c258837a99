#pragma once

#include "adapters/model_com.h"

namespace brx {

template <> class ToCom<hlxApplication> final : public ModelCom<hlxApplication, brxModel::hlxApplication> {
public:
    using ModelCom::ModelCom;
    STDMETHODIMP get_Database(IDispatch** result) override { return give(result, &Model::Database); }
};

template <> class ToCom<hlxOPCServers> final : public ModelCom<hlxOPCServers, brxModel::hlxOPCServers> {
public:
    using ModelCom::ModelCom;
    STDMETHODIMP get_Parent(IDispatch** result) override { return give(result, &Model::Parent); }
    STDMETHODIMP Add(BSTR server_name, BSTR node, VARIANT_BOOL connect, _hlxOPCServer** result) override {
        return give(result, &Model::Add, server_name, node, connect);
    }
    STDMETHODIMP get_LastError(BSTR* result) override { return give(result, &Model::LastError); }
    STDMETHODIMP get_Item(VARIANT index, _hlxOPCServer** result) override {
        return give(result, &Model::Item, index);
    }
    STDMETHODIMP get_Count(LONG* result) override { return give(result, &Model::Count); }
};

template <> class ToCom<hlxOPCServer> final : public ModelCom<hlxOPCServer, brxModel::hlxOPCServer> {
public:
    using ModelCom::ModelCom;
    STDMETHODIMP get_ServerName(BSTR* result) override { return give(result, &Model::ServerName); }
    STDMETHODIMP get_Node(BSTR* result) override { return give(result, &Model::Node); }
    STDMETHODIMP get_Parent(IDispatch** result) override { return give(result, &Model::Parent); }
    STDMETHODIMP get_OPCServer(IDispatch** result) override { return give(result, &Model::OPCServer); }
};

template <>
class ToCom<hlxOPCServerHolder> final : public ModelCom<hlxOPCServerHolder, brxModel::hlxOPCServerHolder> {
public:
    using ModelCom::ModelCom;
    STDMETHODIMP get_ServerEntry(_hlxOPCServer** result) override {
        return give(result, &Model::ServerEntry);
    }
};

} // namespace brx
