#pragma once

#include <string>

namespace brx::checks {

/// Makes a class known to the system by its name, library and class, for this user or, where the system does
/// not look there, for the machine.
void register_class_name(const std::wstring& name, const std::wstring& clsid);

/// Takes it away again.
void unregister_class_name(const std::wstring& name);

} // namespace brx::checks
