#include "com/adapters.h"
#include "com/adapters/from_com_collection.h"
#include "com/adapters/from_com_configuration.h"
#include "com/adapters/from_com_database.h"
#include "com/adapters/from_com_opc.h"
#include "com/adapters/from_com_services.h"

namespace brx {

namespace {

/// An object of which nothing is known yet.
class ComObject final : public Object, public ComHolder {
public:
    explicit ComObject(com_ptr<IDispatch> object) : object_(std::move(object)) {}
    ObjectPtr view(const std::type_info& interface_type) override {
        return view_of(object_.get(), interface_type);
    }
    com_ptr<IDispatch> dispatch() const override { return object_; }

private:
    com_ptr<IDispatch> object_;
};

template <class... Binding>
ObjectPtr view_as(const BindingList<Binding...>*, const com_ptr<IUnknown>& object,
                  const std::type_info& type) {
    ObjectPtr view;
    const auto is_it = [&]<class Model, class Interface>(const brx::Binding<Model, Interface>*) {
        if (typeid(Model) != type) return false;
        view = from_com<Model>(object.as<Interface>());
        return true;
    };
    static_cast<void>((is_it(static_cast<const Binding*>(nullptr)) || ...));
    return view;
}

} // namespace

template <class Model> std::shared_ptr<Model> from_com(com_ptr<InterfaceOf<Model>> object) {
    if (!object) return nullptr;
    return std::make_shared<FromCom<Model>>(std::move(object));
}

template std::shared_ptr<OPCServer> from_com<OPCServer>(com_ptr<InterfaceOf<OPCServer>>);
template std::shared_ptr<OPCGroups> from_com<OPCGroups>(com_ptr<InterfaceOf<OPCGroups>>);
template std::shared_ptr<OPCGroup> from_com<OPCGroup>(com_ptr<InterfaceOf<OPCGroup>>);
template std::shared_ptr<OPCItems> from_com<OPCItems>(com_ptr<InterfaceOf<OPCItems>>);
template std::shared_ptr<OPCItem> from_com<OPCItem>(com_ptr<InterfaceOf<OPCItem>>);
template std::shared_ptr<OPCBrowser> from_com<OPCBrowser>(com_ptr<InterfaceOf<OPCBrowser>>);
template std::shared_ptr<hlxApplication> from_com<hlxApplication>(com_ptr<InterfaceOf<hlxApplication>>);
template std::shared_ptr<hlxOPCServers> from_com<hlxOPCServers>(com_ptr<InterfaceOf<hlxOPCServers>>);
template std::shared_ptr<hlxOPCServer> from_com<hlxOPCServer>(com_ptr<InterfaceOf<hlxOPCServer>>);
template std::shared_ptr<hlxOPCServerHolder>
    from_com<hlxOPCServerHolder>(com_ptr<InterfaceOf<hlxOPCServerHolder>>);
template std::shared_ptr<hlxOPCConfiguration>
    from_com<hlxOPCConfiguration>(com_ptr<InterfaceOf<hlxOPCConfiguration>>);
template std::shared_ptr<hlxOPCTests> from_com<hlxOPCTests>(com_ptr<InterfaceOf<hlxOPCTests>>);
template std::shared_ptr<hlxOPCTest> from_com<hlxOPCTest>(com_ptr<InterfaceOf<hlxOPCTest>>);
template std::shared_ptr<hlxOPCDescriptors>
    from_com<hlxOPCDescriptors>(com_ptr<InterfaceOf<hlxOPCDescriptors>>);
template std::shared_ptr<hlxOPCDescriptor> from_com<hlxOPCDescriptor>(com_ptr<InterfaceOf<hlxOPCDescriptor>>);
template std::shared_ptr<hlxDatabase> from_com<hlxDatabase>(com_ptr<InterfaceOf<hlxDatabase>>);
template std::shared_ptr<hlxTestData> from_com<hlxTestData>(com_ptr<InterfaceOf<hlxTestData>>);
template std::shared_ptr<hlxRecord> from_com<hlxRecord>(com_ptr<InterfaceOf<hlxRecord>>);
template std::shared_ptr<hlxSelection> from_com<hlxSelection>(com_ptr<InterfaceOf<hlxSelection>>);
template std::shared_ptr<hlxMessage> from_com<hlxMessage>(com_ptr<InterfaceOf<hlxMessage>>);
template std::shared_ptr<hlxHelp> from_com<hlxHelp>(com_ptr<InterfaceOf<hlxHelp>>);

ObjectPtr from_dispatch(com_ptr<IDispatch> object) {
    if (!object) return nullptr;
    return std::make_shared<ComObject>(std::move(object));
}

ObjectPtr view_of(IUnknown* object, const std::type_info& interface_type) {
    return view_as(static_cast<const Bindings*>(nullptr), com_ptr<IUnknown>(object), interface_type);
}

} // namespace brx
