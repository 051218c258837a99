#pragma once

#include "common/error.h"
#include "common/values/variant.h"

#include <memory>
#include <typeinfo>

namespace brx {

/// Any object of the host. What it can do is found out by viewing it through an interface of the model.
class Object {
public:
    Object() = default;
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;
    virtual ~Object() = default;

    /// The same object as another interface, for objects whose C++ class does not tell (a foreign COM
    /// object). Null when it lacks the interface.
    virtual ObjectPtr view(const std::type_info& interface_type) {
        static_cast<void>(interface_type);
        return nullptr;
    }
};

/// The object viewed through `Interface`. Error 13 for Nothing and for an object that lacks it.
template <class Interface> std::shared_ptr<Interface> resolve(const ObjectPtr& object) {
    if (object) {
        if (auto same = std::dynamic_pointer_cast<Interface>(object)) return same;
        if (auto viewed = std::dynamic_pointer_cast<Interface>(object->view(typeid(Interface))))
            return viewed;
    }
    throw Error(error::type_mismatch);
}

/// What the reference refers to. Error 91 for Nothing.
template <class Interface> Interface& the(const std::shared_ptr<Interface>& reference) {
    if (!reference) throw Error(error::object_not_set);
    return *reference;
}

} // namespace brx
