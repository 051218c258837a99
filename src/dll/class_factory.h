#pragma once

#include "win32/com_ptr.h"

#include <windows.h>

#include <oleauto.h>

namespace brx {

/// A class that hosts create.
struct PublicClass {
    const CLSID& clsid;
    com_ptr<IDispatch> (*create)();
};

/// What a host makes objects of a public class with.
com_ptr<IClassFactory> class_factory_of(const PublicClass& public_class);

} // namespace brx
