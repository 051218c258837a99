#include "adapters/to_com.h"

#include "adapters/to_com_collection.h"
#include "adapters/to_com_configuration.h"
#include "adapters/to_com_database.h"
#include "adapters/to_com_opc.h"
#include "adapters/to_com_services.h"
#include "com/adapters/from_com.h"
#include "com/dual.h"

#include <memory>
#include <utility>

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

/// The double by the interface that is asked for, with typeid(Object) by the first that the object has.
template <class... Binding>
com_ptr<IDispatch> double_by(const BindingList<Binding...>*, const ObjectPtr& object,
                             const std::type_info& type) {
    com_ptr<IDispatch> made;
    const auto is_it = [&]<class Model, class Interface>(const brx::Binding<Model, Interface>*) {
        if (type != typeid(Object) && type != typeid(Model)) return false;
        if (auto model = std::dynamic_pointer_cast<Model>(object))
            made = make_com<ToCom<Model>>(std::move(model));
        return static_cast<bool>(made);
    };
    static_cast<void>((is_it(static_cast<const Binding*>(nullptr)) || ...));
    return made;
}

com_ptr<IDispatch> make_double(const ObjectPtr& object, const std::type_info& type) {
    if (auto made = double_by(static_cast<const Bindings*>(nullptr), object, type)) return made;
    return make_com<PlainCom>(object);
}

} // namespace

void give_doubles() { set_make_double(make_double); }

com_ptr<IDispatch> dispatch_of(const ObjectPtr& object, const std::type_info& interface_type) {
    give_doubles();
    return to_dispatch(object, interface_type);
}

} // namespace brx
