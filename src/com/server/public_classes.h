#pragma once

#include "com/com_ptr.h"

#include <windows.h>

#include <oleauto.h>

#include <span>

namespace brx {

/// A class that hosts create. Its names and its interface stand in the type library under its identifier.
struct PublicClass {
    const CLSID& clsid;
    com_ptr<IDispatch> (*create)();
};

/// Every one of them.
std::span<const PublicClass> public_classes();

/// The one with the identifier; null when there is none.
const PublicClass* find_public_class(REFCLSID clsid);

} // namespace brx
