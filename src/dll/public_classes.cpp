#include "dll/public_classes.h"

#include "classes/ConfigurationSetup.h"
#include "classes/LeafSelect.h"
#include "classes/ServerAdd.h"
#include "classes/ServerInformation.h"
#include "classes/ServerSelect.h"
#include "classes/TestConfiguration.h"
#include "com/com_object.h"
#include "dll/public_object.h"
#include "dll/show.h"

#include "brxOpcDlgs6.h"

#include <algorithm>
#include <array>

namespace brx {

namespace {

ObjectPtr object_of(IDispatch* argument) { return from_dispatch(com_ptr<IDispatch>(argument)); }

/// A public class that keeps the position of a server between calls.
template <class Interface, class Coclass> class ServerIndexObject : public PublicObject<Interface, Coclass> {
public:
    HRESULT STDMETHODCALLTYPE get_ServerIndex(short* result) override {
        return this->read(server_index_, result);
    }
    HRESULT STDMETHODCALLTYPE put_ServerIndex(short value) override {
        server_index_ = value;
        return S_OK;
    }

protected:
    /// Shows `Dialog`; what it found is kept when the user confirmed.
    template <class Dialog> bool show_and_keep(Environment& environment, IDispatch* servers) {
        Dialog dialog(environment);
        if (!dialog.Show(object_of(servers))) return false;
        server_index_ = dialog.ServerIndex;
        return true;
    }

private:
    short server_index_ = 0;
};

class ServerSelectObject final : public ServerIndexObject<_ServerSelect, ::ServerSelect> {
public:
    HRESULT STDMETHODCALLTYPE Show(IDispatch** hlxOPCServers, VARIANT_BOOL* result) override {
        return show(self(), "ServerSelect", result, [&](Environment& environment) {
            return show_and_keep<ServerSelect>(environment, hlxOPCServers ? *hlxOPCServers : nullptr);
        });
    }
};

class ServerAddObject final : public ServerIndexObject<_ServerAdd, ::ServerAdd> {
public:
    HRESULT STDMETHODCALLTYPE Show(IDispatch* hlxOPCServers, VARIANT_BOOL* result) override {
        return show(self(), "ServerAdd", result, [&](Environment& environment) {
            return show_and_keep<ServerAdd>(environment, hlxOPCServers);
        });
    }
};

class ServerInformationObject final : public PublicObject<_ServerInformation, ::ServerInformation> {
public:
    HRESULT STDMETHODCALLTYPE Show(IDispatch* OPCServer, VARIANT_BOOL* result) override {
        return show(self(), "ServerInformation", result, [&](Environment& environment) {
            return ServerInformation(environment).Show(object_of(OPCServer));
        });
    }
};

class LeafSelectObject final : public PublicObject<_LeafSelect, ::LeafSelect> {
public:
    HRESULT STDMETHODCALLTYPE Show(IDispatch* OPCServer, IDispatch* OPCGroup, VARIANT_BOOL* result) override {
        return show(self(), "LeafSelect", result, [&](Environment& environment) {
            LeafSelect dialog(environment);
            dialog.set_ItemID(item_id_);
            if (!dialog.Show(object_of(OPCServer), object_of(OPCGroup))) return false;
            item_id_ = dialog.ItemID();
            return true;
        });
    }
    HRESULT STDMETHODCALLTYPE get_ItemID(BSTR* result) override { return read(item_id_, result); }
    HRESULT STDMETHODCALLTYPE put_ItemID(BSTR value) override {
        return guard(IID__LeafSelect, [&] { item_id_ = text_of(value); });
    }

private:
    std::string item_id_;
};

class TestConfigurationObject final : public PublicObject<_TestConfiguration, ::TestConfiguration> {
public:
    HRESULT STDMETHODCALLTYPE Show(IDispatch* hlxOPCTest, VARIANT_BOOL* result) override {
        return show(self(), "TestConfiguration", result, [&](Environment& environment) {
            return TestConfiguration(environment).Show(object_of(hlxOPCTest));
        });
    }
};

class ConfigurationSetupObject final : public PublicObject<_ConfigurationSetup, ::ConfigurationSetup> {
public:
    HRESULT STDMETHODCALLTYPE Show(IDispatch* hlxOPCConfiguration) override {
        return show(self(), "ConfigurationSetup", nullptr, [&](Environment& environment) {
            ConfigurationSetup(environment).Show(object_of(hlxOPCConfiguration));
            return true;
        });
    }
};

template <class Object> com_ptr<IDispatch> create() { return make_com<Object>(); }

constexpr auto classes = std::to_array<PublicClass>({
    {CLSID_ServerSelect, create<ServerSelectObject>},
    {CLSID_ServerAdd, create<ServerAddObject>},
    {CLSID_ServerInformation, create<ServerInformationObject>},
    {CLSID_LeafSelect, create<LeafSelectObject>},
    {CLSID_TestConfiguration, create<TestConfigurationObject>},
    {CLSID_ConfigurationSetup, create<ConfigurationSetupObject>},
});

} // namespace

std::span<const PublicClass> public_classes() { return classes; }

const PublicClass* find_public_class(REFCLSID clsid) {
    const auto found = std::find_if(classes.begin(), classes.end(),
                                    [&](const PublicClass& each) { return each.clsid == clsid; });
    return found == classes.end() ? nullptr : &*found;
}

} // namespace brx
