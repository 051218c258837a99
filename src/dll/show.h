#pragma once

#include "forms/environment.h"

#include <windows.h>

#include <oleauto.h>

#include <functional>

namespace brx {

/// Runs the Show of a public class: `dialog` in a fresh environment, the user's settings as they are now.
/// Gives what the dialog gives; an unexpected error is reported and gives False. The caller's `object` lives
/// until the end although the host lets it go meanwhile. Never fails, so the result may also be left out.
HRESULT show(IUnknown& object, const char* class_name, VARIANT_BOOL* result,
             const std::function<bool(Environment&)>& dialog) noexcept;

} // namespace brx
