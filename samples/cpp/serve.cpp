// A host with servers of its own: lets a person choose one of three. Ends with 0 when one was chosen.

#include <brxModel.h>
#include <brxOpcDlgs6.h>

#include <cstdio>
#include <string>
#include <vector>

namespace {

class Server : public brxModel::hlxOPCServer {
public:
    Server(const wchar_t* node, const wchar_t* name) : node_(node), name_(name) {}

    HRESULT STDMETHODCALLTYPE get_Node(BSTR* node) override { return brxModel::give(node, node_.c_str()); }
    HRESULT STDMETHODCALLTYPE get_ServerName(BSTR* name) override {
        return brxModel::give(name, name_.c_str());
    }

private:
    std::wstring node_;
    std::wstring name_;
};

class Servers : public brxModel::hlxOPCServers {
public:
    Servers() {
        servers_.push_back(new Server(L"", L"Mill.Server.1"));
        servers_.push_back(new Server(L"LINE2", L"Oven.Server.1"));
        servers_.push_back(new Server(L"LINE2", L"Scales.Server.2"));
    }
    ~Servers() override {
        for (Server* server : servers_) server->Release();
    }

    HRESULT STDMETHODCALLTYPE get_Count(LONG* count) override {
        *count = static_cast<LONG>(servers_.size());
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE get_Item(VARIANT index, _hlxOPCServer** server) override {
        VARIANT position;
        VariantInit(&position);
        if (FAILED(VariantChangeType(&position, &index, 0, VT_I4)) || position.lVal < 1 ||
            position.lVal > static_cast<LONG>(servers_.size()))
            return brxModel::failed(L"There is no such server.", DISP_E_BADINDEX, L"The C++ sample");
        return brxModel::give(server, servers_[static_cast<std::size_t>(position.lVal - 1)]);
    }

private:
    std::vector<Server*> servers_;
};

/// The position of the server that was chosen, from 1; 0 for none.
short choose(IDispatch* servers) {
    _ServerSelect* dialog = nullptr;
    if (FAILED(CoCreateInstance(CLSID_ServerSelect, nullptr, CLSCTX_INPROC_SERVER, IID__ServerSelect,
                                reinterpret_cast<void**>(&dialog))))
        return 0;
    VARIANT_BOOL chosen = VARIANT_FALSE;
    short position = 0;
    dialog->Show(&servers, &chosen);
    if (chosen != VARIANT_FALSE) dialog->get_ServerIndex(&position);
    dialog->Release();
    return position;
}

} // namespace

int main() {
    OleInitialize(nullptr);
    auto* const servers = new Servers;
    const short position = choose(servers);
    if (position != 0) std::printf("Server %d\n", position);
    servers->Release();
    OleUninitialize();
    return position != 0 ? 0 : 1;
}
