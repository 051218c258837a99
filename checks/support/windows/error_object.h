#pragma once

#include "forms/error_reports.h"
#include "win32/com_ptr.h"

#include <windows.h>

#include <oleauto.h>

#include <functional>

namespace brx::checks {

/// A factory whose class makes its objects like this.
com_ptr<IClassFactory> make_factory(std::function<com_ptr<IDispatch>()> make);

/// An object of an error library's class: it has no type library, `Show` is found by its name, and what it is
/// shown goes to `host`; what that does not take fails. A call of any other form arrives as a report that
/// says so.
com_ptr<IDispatch> make_error_object(ErrorLibraries& host, ErrorLibrary library);

} // namespace brx::checks
