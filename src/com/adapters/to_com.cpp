#include "com/adapters.h"
#include "com/adapters/to_com_collection.h"
#include "com/adapters/to_com_configuration.h"
#include "com/adapters/to_com_database.h"
#include "com/adapters/to_com_opc.h"
#include "com/adapters/to_com_services.h"

namespace brx {

namespace {

/// An object without any member.
class PlainCom final : public Dual<IDispatch> {
public:
    explicit PlainCom(ObjectPtr object) : object_(std::move(object)) {}
    STDMETHODIMP GetTypeInfoCount(UINT* count) override {
        if (!count) return E_POINTER;
        *count = 0;
        return S_OK;
    }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo** info) override {
        if (!info) return E_POINTER;
        *info = nullptr;
        return DISP_E_BADINDEX;
    }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT count, LCID, DISPID* ids) override {
        for (UINT i = 0; i < count; ++i) ids[i] = DISPID_UNKNOWN;
        return DISP_E_UNKNOWNNAME;
    }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        return DISP_E_MEMBERNOTFOUND;
    }

private:
    ObjectPtr object_;
};

template <class... Binding>
com_ptr<IDispatch> dispatch_of(const BindingList<Binding...>*, const ObjectPtr& object) {
    com_ptr<IDispatch> dispatch;
    const auto is_it = [&]<class Model, class Interface>(const brx::Binding<Model, Interface>*) {
        dispatch = to_com<Model>(std::dynamic_pointer_cast<Model>(object));
        return static_cast<bool>(dispatch);
    };
    static_cast<void>((is_it(static_cast<const Binding*>(nullptr)) || ...));
    return dispatch;
}

} // namespace

template <class Model> com_ptr<InterfaceOf<Model>> to_com(const std::shared_ptr<Model>& object) {
    if (!object) return nullptr;
    if (const auto held = std::dynamic_pointer_cast<ComHolder>(object))
        return held->dispatch().template as<InterfaceOf<Model>>();
    return make_com<ToCom<Model>>(object);
}

template com_ptr<InterfaceOf<OPCServer>> to_com<OPCServer>(const std::shared_ptr<OPCServer>&);
template com_ptr<InterfaceOf<OPCGroups>> to_com<OPCGroups>(const std::shared_ptr<OPCGroups>&);
template com_ptr<InterfaceOf<OPCGroup>> to_com<OPCGroup>(const std::shared_ptr<OPCGroup>&);
template com_ptr<InterfaceOf<OPCItems>> to_com<OPCItems>(const std::shared_ptr<OPCItems>&);
template com_ptr<InterfaceOf<OPCItem>> to_com<OPCItem>(const std::shared_ptr<OPCItem>&);
template com_ptr<InterfaceOf<OPCBrowser>> to_com<OPCBrowser>(const std::shared_ptr<OPCBrowser>&);
template com_ptr<InterfaceOf<hlxApplication>> to_com<hlxApplication>(const std::shared_ptr<hlxApplication>&);
template com_ptr<InterfaceOf<hlxOPCServers>> to_com<hlxOPCServers>(const std::shared_ptr<hlxOPCServers>&);
template com_ptr<InterfaceOf<hlxOPCServer>> to_com<hlxOPCServer>(const std::shared_ptr<hlxOPCServer>&);
template com_ptr<InterfaceOf<hlxOPCServerHolder>>
to_com<hlxOPCServerHolder>(const std::shared_ptr<hlxOPCServerHolder>&);
template com_ptr<InterfaceOf<hlxOPCConfiguration>>
to_com<hlxOPCConfiguration>(const std::shared_ptr<hlxOPCConfiguration>&);
template com_ptr<InterfaceOf<hlxOPCTests>> to_com<hlxOPCTests>(const std::shared_ptr<hlxOPCTests>&);
template com_ptr<InterfaceOf<hlxOPCTest>> to_com<hlxOPCTest>(const std::shared_ptr<hlxOPCTest>&);
template com_ptr<InterfaceOf<hlxOPCDescriptors>>
to_com<hlxOPCDescriptors>(const std::shared_ptr<hlxOPCDescriptors>&);
template com_ptr<InterfaceOf<hlxOPCDescriptor>>
to_com<hlxOPCDescriptor>(const std::shared_ptr<hlxOPCDescriptor>&);
template com_ptr<InterfaceOf<hlxDatabase>> to_com<hlxDatabase>(const std::shared_ptr<hlxDatabase>&);
template com_ptr<InterfaceOf<hlxTestData>> to_com<hlxTestData>(const std::shared_ptr<hlxTestData>&);
template com_ptr<InterfaceOf<hlxRecord>> to_com<hlxRecord>(const std::shared_ptr<hlxRecord>&);
template com_ptr<InterfaceOf<hlxSelection>> to_com<hlxSelection>(const std::shared_ptr<hlxSelection>&);
template com_ptr<InterfaceOf<hlxMessage>> to_com<hlxMessage>(const std::shared_ptr<hlxMessage>&);
template com_ptr<InterfaceOf<hlxHelp>> to_com<hlxHelp>(const std::shared_ptr<hlxHelp>&);

com_ptr<IDispatch> to_dispatch(const ObjectPtr& object) {
    if (!object) return nullptr;
    if (const auto held = std::dynamic_pointer_cast<ComHolder>(object)) return held->dispatch();
    if (auto dispatch = dispatch_of(static_cast<const Bindings*>(nullptr), object)) return dispatch;
    return make_com<PlainCom>(object);
}

} // namespace brx
