#pragma once

#include "win32/com_ptr.h"

#include <windows.h>

#include <oleauto.h>

namespace brx::host {

/// A new object that knows where the dialogs' help file is: `brxOpcDlgs6.chm` in the folder of this DLL or in
/// one of the two around it, as the package has it. It names none when there is none.
com_ptr<IDispatch> new_help_object();

} // namespace brx::host
