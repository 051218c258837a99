#pragma once

#include "com/failure.h"
#include "com/wire.h"
#include "common/call_gate.h"

#include <type_traits>
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

    /// Calls a member that gives a `Result`: call<void>(&Interface::Save)(database). A failure is told as one
    /// of the member that the caller is named after.
    template <class Result, class... Raws>
    auto call(HRESULT (STDMETHODCALLTYPE Interface::*member)(Raws...),
              const char* name = __builtin_FUNCTION()) {
        return [this, member, name]<class... Values>(const Values&... values) -> Result {
            if constexpr (std::is_void_v<Result>) {
                require((called().*member)(Wire<Values>::own(values).get()...), name);
            } else {
                typename Wire<Result>::Owner result{};
                require((called().*member)(Wire<Values>::own(values).get()..., result.out()), name);
                return Wire<Result>::model(result.get());
            }
        };
    }

    void require(HRESULT result, const char* name = __builtin_FUNCTION()) {
        if (FAILED(result)) check_call(result, object_.get(), __uuidof(Interface), typeid(Model), name);
    }

private:
    com_ptr<Interface> object_;
};

/// One member of the model each, one call each.
template <class Model> class FromCom;

} // namespace brx
