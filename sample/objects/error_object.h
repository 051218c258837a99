#pragma once

#include "win32/com_ptr.h"

#include <windows.h>

#include <oleauto.h>

namespace brx::host {

/// A new object of an error library's class Error, which has this interface: shows an error to the user and
/// writes it into the log.
template <class Interface> com_ptr<IDispatch> new_error_object();

} // namespace brx::host
