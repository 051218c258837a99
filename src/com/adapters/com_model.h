#pragma once

#include "com/failure.h"
#include "com/wire.h"
#include "common/call_gate.h"

#include <utility>

namespace brx {

/// What all model objects that stand for a COM object share.
template <class ModelClass> class ComModel : public ModelClass, public ComHolder {
public:
    using Model = ModelClass;
    using Interface = InterfaceOf<Model>;

    explicit ComModel(com_ptr<Interface> object) : object_(std::move(object)) {}

    ObjectPtr view(const std::type_info& interface_type) override {
        return view_of(object_.get(), interface_type);
    }
    // Some OPC objects deny having IDispatch, which their interface is derived from.
    com_ptr<IDispatch> dispatch() const override { return object_; }

protected:
    /// The object, for one call.
    Interface& called() const {
        call_gate::pass();
        return *object_.get();
    }

    /// Calls a member that gives nothing.
    template <class... Raws, class... Values>
    void call(HRESULT (STDMETHODCALLTYPE Interface::*member)(Raws...), const Values&... values) {
        require((called().*member)(Wire<Values>::own(values).get()...));
    }

    /// Calls a member that gives a `Result`.
    template <class Result, class... Raws, class... Values>
    Result get(HRESULT (STDMETHODCALLTYPE Interface::*member)(Raws...), const Values&... values) {
        typename Wire<Result>::Owner result{};
        require((called().*member)(Wire<Values>::own(values).get()..., result.out()));
        return Wire<Result>::model(result.get());
    }

    void require(HRESULT result) {
        if (FAILED(result)) check_call(result, object_.get(), __uuidof(Interface), typeid(Model));
    }

private:
    com_ptr<Interface> object_;
};

/// One member of the model each, one call each.
template <class Model> class FromCom;

} // namespace brx
