#include "dll/object_arguments.h"

#include "com/failure.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <vector>

namespace brx {

namespace {

enum class Passing { no_object, by_value, by_reference };

Passing passing_of(const TYPEDESC& type) {
    if (type.vt == VT_DISPATCH) return Passing::by_value;
    if (type.vt == VT_PTR && type.lptdesc->vt == VT_DISPATCH) return Passing::by_reference;
    return Passing::no_object;
}

/// How the member takes each of its parameters; nothing for an unknown member.
std::vector<Passing> parameters_of(ITypeInfo& info, DISPID member, WORD flags) {
    std::vector<Passing> parameters;
    FUNCDESC* function = nullptr;
    for (UINT i = 0; SUCCEEDED(info.GetFuncDesc(i, &function)); ++i) {
        const bool wanted = function->memid == member && (function->invkind & flags) != 0;
        if (wanted)
            std::transform(function->lprgelemdescParam, function->lprgelemdescParam + function->cParams,
                           std::back_inserter(parameters),
                           [](const ELEMDESC& each) { return passing_of(each.tdesc); });
        info.ReleaseFuncDesc(function);
        if (wanted) break;
    }
    return parameters;
}

/// The parameter that an argument is for. Arguments stand in reverse order, the named ones first.
std::size_t parameter_of(const DISPPARAMS& given, UINT argument) {
    return argument < given.cNamedArgs ? static_cast<std::size_t>(given.rgdispidNamedArgs[argument])
                                       : given.cArgs - 1 - argument;
}

/// The object in a variant, possibly Nothing; no value when there is something else in it.
std::optional<com_ptr<IDispatch>> object_in(const VARIANT& variant) {
    switch (V_VT(&variant)) {
    case VT_BYREF | VT_VARIANT:
        return object_in(*V_VARIANTREF(&variant));
    case VT_DISPATCH:
        return com_ptr<IDispatch>(V_DISPATCH(&variant));
    case VT_BYREF | VT_DISPATCH:
        return com_ptr<IDispatch>(*V_DISPATCHREF(&variant));
    case VT_UNKNOWN:
    case VT_BYREF | VT_UNKNOWN: {
        const com_ptr<IUnknown> object(V_ISBYREF(&variant) ? *V_UNKNOWNREF(&variant) : V_UNKNOWN(&variant));
        auto automation_object = object.as<IDispatch>();
        if (object && !automation_object) return std::nullopt;
        return automation_object;
    }
    default:
        return std::nullopt;
    }
}

/// The arguments of one call, made to fit.
class FittingArguments {
public:
    FittingArguments(const DISPPARAMS& given, const std::vector<Passing>& parameters)
        : arguments_(given.rgvarg, given.rgvarg + given.cArgs), fitting_(given) {
        fitting_.rgvarg = arguments_.data();
        objects_.reserve(arguments_.size());
        for (UINT i = 0; i < given.cArgs && !misfit_; ++i) {
            const std::size_t position = parameter_of(given, i);
            const Passing passing = position < parameters.size() ? parameters[position] : Passing::no_object;
            if (passing != Passing::no_object) fit(i, passing);
        }
    }
    FittingArguments(const FittingArguments&) = delete;
    FittingArguments& operator=(const FittingArguments&) = delete;
    ~FittingArguments() {
        // A member may have put something else where it was given a reference.
        for (IDispatch* object : objects_)
            if (object) object->Release();
    }

    std::optional<UINT> misfit() const { return misfit_; }
    DISPPARAMS* get() { return &fitting_; }

private:
    void fit(UINT i, Passing passing) {
        auto object = object_in(arguments_[i]);
        if (!object) {
            misfit_ = i;
            return;
        }
        objects_.push_back(object->detach());
        VARIANT& argument = arguments_[i];
        V_VT(&argument) = VT_DISPATCH;
        V_DISPATCH(&argument) = objects_.back();
        if (passing == Passing::by_reference) {
            V_VT(&argument) = VT_BYREF | VT_DISPATCH;
            V_DISPATCHREF(&argument) = &objects_.back();
        }
    }

    std::vector<VARIANT> arguments_;
    std::vector<IDispatch*> objects_;
    DISPPARAMS fitting_;
    std::optional<UINT> misfit_;
};

} // namespace

HRESULT with_fitting_objects(ITypeInfo& info, DISPID member, WORD flags, DISPPARAMS* parameters,
                             UINT* argument, const std::function<HRESULT(DISPPARAMS*)>& call) noexcept {
    if (!parameters) return E_INVALIDARG;
    HRESULT result = S_OK;
    const HRESULT fitted = guard(IID_IDispatch, [&] {
        FittingArguments fitting(*parameters, parameters_of(info, member, flags));
        if (const auto misfit = fitting.misfit()) {
            if (argument) *argument = *misfit;
            result = DISP_E_TYPEMISMATCH;
        } else {
            result = call(fitting.get());
        }
    });
    return FAILED(fitted) ? fitted : result;
}

} // namespace brx
