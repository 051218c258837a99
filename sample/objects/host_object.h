#pragma once

#include "win32/com_ptr.h"

#include <windows.h>

#include <oleauto.h>

namespace brx::host {

/// A new brxSample.Host.
com_ptr<IDispatch> new_host_object();

} // namespace brx::host
