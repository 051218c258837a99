#pragma once

#include "com/com_ptr.h"
#include "common/model/object.h"

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

/// Some model object as a COM object: the original when it stands for one. None for Nothing.
com_ptr<IDispatch> to_dispatch(const ObjectPtr& object);

} // namespace brx
