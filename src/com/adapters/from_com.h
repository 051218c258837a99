#pragma once

#include "com/adapters/from_com_collection.h"
#include "com/adapters/from_com_configuration.h"
#include "com/adapters/from_com_database.h"
#include "com/adapters/from_com_opc.h"
#include "com/adapters/from_com_services.h"

#include <memory>
#include <utility>

namespace brx {

template <class Model> std::shared_ptr<Model> from_com(com_ptr<InterfaceOf<Model>> object) {
    if (!object) return nullptr;
    return std::make_shared<FromCom<Model>>(std::move(object));
}

} // namespace brx
