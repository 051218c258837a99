#pragma once

#include "dll/registry.h"

#include <string>
#include <vector>

namespace brx {

/// One text of the registration.
struct RegistryEntry {
    RegistryPlace place;
    std::wstring text;
    /// Programs of 32 and of 64 bits see the same one, other than those of classes and interfaces.
    bool shared = false;
};

/// What stands in the registry while the component is registered.
struct Registration {
    std::wstring path; ///< of the component's file
    std::vector<RegistryEntry> entries;
    std::vector<RegistryPlace> server_places; ///< where the path stands, class by class
};

/// The registration of this very file, from the type library inside it.
Registration this_registration();

} // namespace brx
