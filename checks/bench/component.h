#pragma once

#include "win32/com_ptr.h"

#include <windows.h>

namespace brx::bench {

/// A new instance of one of the component's classes, from the DLL of this build. Throws when there is none.
com_ptr<IUnknown> make_instance(REFCLSID class_id);

} // namespace brx::bench
