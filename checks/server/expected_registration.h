#pragma once

#include "server/registry_snapshot.h"

namespace brx::checks {

/// What the component registered from a file adds below Software\Classes.
RegistrySnapshot expected_registration(const std::wstring& path);

} // namespace brx::checks
