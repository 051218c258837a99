#include "sample/windows/fake_wrapper.h"

#include "com/bstr.h"
#include "com/owned_variant.h"
#include "sample/windows/fake_wrapper_objects.h"
#include "win32/com_ptr.h"
#include "win32/counted.h"

#include <brxModel.h>

namespace brx::checks {

namespace {

constexpr CLSID wrapper_class{0x5F0B3C44, 0x21D7, 0x4C4E, {0x9A, 0x30, 0x6C, 0x3B, 0x51, 0x77, 0x90, 0x12}};
constexpr const wchar_t* wrapper_class_text = L"{5F0B3C44-21D7-4C4E-9A30-6C3B51779012}";
constexpr const wchar_t* wrapper_key = L"Software\\Classes\\OPC.Automation";
/// Some systems look for names in the machine's classes only, and not everybody may write there.
const HKEY roots[] = {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE};

class FakeServer final : public brxModel::IOPCAutoServer {
public:
    ~FakeServer() override { groups_->RemoveAll(); }
    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        if (iid != __uuidof(ISupportErrorInfo)) return brxModel::IOPCAutoServer::QueryInterface(iid, object);
        *object = nullptr;
        return E_NOINTERFACE;
    }
    STDMETHODIMP get_LastUpdateTime(DATE* time) override { return *time = -109205, S_OK; }
    STDMETHODIMP get_ServerState(LONG* state) override {
        *state = server_.empty() ? 6 : 1;
        return S_OK;
    }
    STDMETHODIMP get_ServerName(BSTR* name) override { return *name = Bstr(server_).detach(), S_OK; }
    STDMETHODIMP get_ServerNode(BSTR* node) override { return *node = nullptr, S_OK; }
    STDMETHODIMP get_OPCGroups(IOPCGroups** groups) override {
        return *groups = com_ptr(groups_).detach(), S_OK;
    }
    STDMETHODIMP GetOPCServers(VARIANT, VARIANT* servers) override {
        const StringArray listed{{FakeWrapper::garbage, "Sim.1", "Sim.2"}, 0};
        return *servers = OwnedVariant(OwnedSafeArray(listed)).detach(), S_OK;
    }
    STDMETHODIMP CreateBrowser(::OPCBrowser** browser) override {
        return *browser = make_fake_browser().detach(), S_OK;
    }

    STDMETHODIMP Connect(BSTR program_id, VARIANT node) override {
        const std::string name = text_of(program_id);
        const std::string computer = V_VT(&node) == VT_BSTR ? text_of(V_BSTR(&node)) : "this computer";
        FakeWrapper::diary.push_back("connect " + name + " on " + computer);
        if (name == "Broken" || name == FakeWrapper::garbage) return static_cast<HRESULT>(0x80080005);
        server_ = name;
        return S_OK;
    }
    STDMETHODIMP Disconnect() override {
        FakeWrapper::diary.push_back("disconnect " + server_);
        server_.clear();
        return groups_->RemoveAll();
    }

private:
    std::string server_;
    com_ptr<IOPCGroups> groups_ = make_fake_groups(*this);
};

class FakeFactory final : public brxModel::Referenced<IClassFactory> {
public:
    STDMETHODIMP CreateInstance(IUnknown*, REFIID iid, void** object) override {
        return make_com<FakeServer>()->QueryInterface(iid, object);
    }
    STDMETHODIMP LockServer(BOOL) override { return S_OK; }
};

} // namespace

FakeWrapper::FakeWrapper() {
    diary.clear();
    items = {{"Filler.Head 1.Weight", {498.5}},
             {"Filler.Head 1.Volume", {499.5}},
             {"Filler.Head 1.Ready", {true}},
             {"Labeller.Batch", {std::string("B-1")}}};
    takes_subscriptions = tells_changes = answers = true;
    const std::wstring key = std::wstring(wrapper_key) + L"\\CLSID";
    const std::wstring text = wrapper_class_text;
    const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    for (HKEY root : roots) RegSetKeyValueW(root, key.c_str(), nullptr, REG_SZ, text.c_str(), size);
    const com_ptr<IClassFactory> factory = make_com<FakeFactory>();
    CoRegisterClassObject(wrapper_class, factory.get(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE,
                          &registered_);
}

FakeWrapper::~FakeWrapper() {
    CoRevokeClassObject(registered_);
    for (HKEY root : roots) RegDeleteTreeW(root, wrapper_key);
}

} // namespace brx::checks
