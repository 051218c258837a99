#pragma once

#include "com/failure.h"
#include "com/wire.h"
#include "win32/counted.h"

#include <brxModel.h>

#include <concepts>
#include <utility>

namespace brx {

/// What all COM objects that stand for a model object share. `Base` answers the members that the model lacks.
template <class ModelClass, class Base> class ModelCom : public Base {
public:
    using Model = ModelClass;

    explicit ModelCom(std::shared_ptr<Model> model) : model_(std::move(model)) {}

protected:
    Model& model() const { return *model_; }

    /// Runs the body of a member that gives nothing.
    template <class Body> HRESULT run(Body&& body) noexcept {
        return guard(__uuidof(InterfaceOf<Model>), body);
    }

    /// Runs the body of a member and gives what it returns.
    template <class Raw, std::invocable Body> HRESULT give(Raw* result, Body&& body) noexcept {
        if (!result) return E_POINTER;
        *result = Raw{};
        return run([&] { *result = Wire<std::remove_cvref_t<decltype(body())>>::own(body()).detach(); });
    }

    /// A member that is the model's member of the same name.
    template <class Raw, class Result, class... Values, class... Raws>
    HRESULT give(Raw* result, Result (Model::*member)(Values...), const Raws&... raws) noexcept {
        return give(result,
                    [&] { return (*model_.*member)(Wire<std::remove_cvref_t<Values>>::model(raws)...); });
    }
    template <class... Values, class... Raws>
    HRESULT take(void (Model::*member)(Values...), const Raws&... raws) noexcept {
        return run([&] { (*model_.*member)(Wire<std::remove_cvref_t<Values>>::model(raws)...); });
    }

private:
    [[no_unique_address]] ModuleLock lock_;
    std::shared_ptr<Model> model_;
};

/// One member of the interface each, one member of the model each.
template <class Model> class ToCom;

} // namespace brx
