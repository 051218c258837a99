#pragma once

#include "com/com_ptr.h"

#include <windows.h>

#include <oleauto.h>

namespace brx::host {

/// A new object of the error libraries' class Error: shows an error to the user and writes it into the log.
com_ptr<IDispatch> new_error_object();

} // namespace brx::host
