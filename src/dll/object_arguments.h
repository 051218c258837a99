#pragma once

#include "win32/com_ptr.h"

#include <windows.h>

#include <oleauto.h>

#include <functional>

namespace brx {

/// Makes a late-bound call with its objects passed as the member takes them. Script engines pass a variable
/// as a reference to a variant and an expression as a plain object, whether the member wants a reference or
/// not.
///
/// DISP_E_TYPEMISMATCH with the argument's position when something else than an object (Nothing is one)
/// stands for an object parameter: what a Show does with its object comes after a call that the platform lets
/// through.
HRESULT with_fitting_objects(ITypeInfo& info, DISPID member, WORD flags, DISPPARAMS* parameters,
                             UINT* argument, const std::function<HRESULT(DISPPARAMS*)>& call) noexcept;

} // namespace brx
