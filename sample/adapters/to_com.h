#pragma once

#include "com/bindings.h"
#include "com/com_object.h"

#include <memory>
#include <typeinfo>

namespace brx {

/// From now on a program's own model objects turn into COM objects wherever they go out: they have doubles.
void give_doubles();

/// Does so, and gives some model object as a COM object: the original when it stands for one. None for
/// Nothing.
com_ptr<IDispatch> dispatch_of(const ObjectPtr& object,
                               const std::type_info& interface_type = typeid(Object));

/// The same by an interface of the model.
template <class Model> com_ptr<InterfaceOf<Model>> to_com(const std::shared_ptr<Model>& object) {
    return dispatch_of(object, typeid(Model)).template as<InterfaceOf<Model>>();
}

} // namespace brx
