#pragma once

#include "com/bindings.h"
#include "com/com_object.h"

namespace brx {

// Each interface of the model that Bindings lists has both of these.

/// A host's COM object as a model object; Nothing for none. Every use of it is a COM call, also when the
/// object is one of ours.
template <class Model> std::shared_ptr<Model> from_com(com_ptr<InterfaceOf<Model>> object);

/// A model object as a COM object: the original when it stands for one. None for Nothing.
template <class Model> com_ptr<InterfaceOf<Model>> to_com(const std::shared_ptr<Model>& object);

} // namespace brx
