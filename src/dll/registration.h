#pragma once

#include <windows.h>

namespace brx {

/// For whom the component is registered.
enum class RegisteredFor { machine, user };

/// Writes what hosts find the classes, their interfaces and the type library by. When something cannot be
/// written, all is as before.
HRESULT register_component(RegisteredFor whom) noexcept;

/// Removes what registration wrote. What a copy of the component in another file registered stays, and so do
/// the names that a component for programs of other bits shares with this one.
HRESULT unregister_component(RegisteredFor whom) noexcept;

} // namespace brx
