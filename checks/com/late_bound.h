#pragma once

#include "common/values/variant.h"
#include "win32/com_ptr.h"

#include <windows.h>

#include <oleauto.h>

#include <string>
#include <vector>

namespace brx::checks {

/// Calls a member by its name, as a script does. Throws what the member raised.
Variant invoke(IDispatch* object, const std::string& name, WORD kind, const std::vector<Variant>& arguments);

/// The same with arguments as they are, in the order of the parameters; references are filled.
Variant invoke_raw(IDispatch* object, const std::string& name, WORD kind, std::vector<VARIANT> arguments);

} // namespace brx::checks
