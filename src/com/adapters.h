#pragma once

#include "com/bindings.h"
#include "com/com_object.h"

#include <memory>

namespace brx {

/// A host's COM object as a model object; Nothing for none. Every use of it is a COM call, also when the
/// object is one of ours. Each interface of the model that Bindings lists has this.
template <class Model> std::shared_ptr<Model> from_com(com_ptr<InterfaceOf<Model>> object);

} // namespace brx
