#pragma once

#include "common/model/factory.h"
#include "win32/com_ptr.h"

#include <windows.h>

#include <oleauto.h>

#include <string>

namespace brx {

/// A new object of a host class, given as library, full stop, class. The class is found by its registered
/// name, else by its published identifier, for a host that offers its classes without registering them. Error
/// 429 when there is no such class or it cannot be created.
com_ptr<IDispatch> create_host_object(const std::string& class_name);

/// Makes the objects of the host's libraries that the dialogs ask for.
class ComObjectFactory final : public ObjectFactory {
public:
    ObjectPtr create(const std::string& class_name) override;
};

} // namespace brx
