#pragma once

#include "dll/class_factory.h"

#include <span>

namespace brx {

/// The component's classes. Their names and their interfaces stand in the type library under their
/// identifiers.
std::span<const PublicClass> public_classes();

/// The one with the identifier; null when there is none.
const PublicClass* find_public_class(REFCLSID clsid);

} // namespace brx
