#pragma once

#include "win32/com_ptr.h"

#include <windows.h>

#include <objidl.h>

#include <vector>

namespace brx::server {

/// Keeps the program ready, for its lifetime, for calls of every interface that it offers. Some systems
/// (Wine) take an interface back with the last object of it that clients hold; when a call of it is just
/// ending in another thread, they then wait for that call for ever.
class KeptInterfaces {
public:
    explicit KeptInterfaces(const std::vector<IID>& interfaces);
    KeptInterfaces(const KeptInterfaces&) = delete;
    KeptInterfaces& operator=(const KeptInterfaces&) = delete;
    ~KeptInterfaces();

private:
    std::vector<com_ptr<IStream>> kept_; ///< by which the system lets go of them
};

} // namespace brx::server
