#pragma once

#include "common/model/object.h"
#include "win32/com_ptr.h"

#include <windows.h>

#include <oleauto.h>

#include <typeinfo>

namespace brx {

/// A model object that stands for a COM object, and so turns into that very object again.
class ComHolder {
public:
    virtual com_ptr<IDispatch> dispatch() const = 0;

protected:
    ~ComHolder() = default;
};

/// Some COM object as a model object, which finds out what it can do when it is asked; Nothing for none.
ObjectPtr from_dispatch(com_ptr<IDispatch> object);

/// A COM object viewed through an interface of the model; Nothing when it lacks it.
ObjectPtr view_of(IUnknown* object, const std::type_info& interface_type);

/// Makes the COM object that a model object shows itself as, by an interface of the model or, with
/// typeid(Object), by the first that it has.
using MakeDouble = com_ptr<IDispatch> (*)(const ObjectPtr& object, const std::type_info& interface_type);

/// For programs whose model objects are their own. The component's stand for the host's, all of them, so that
/// it needs none.
void set_make_double(MakeDouble make_double) noexcept;

/// A model object as the COM object that it stands for, otherwise as its double; error 13 where doubles are
/// not made. None for Nothing.
com_ptr<IDispatch> to_dispatch(const ObjectPtr& object,
                               const std::type_info& interface_type = typeid(Object));

} // namespace brx
