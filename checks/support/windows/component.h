#pragma once

#include "stage.h"
#include "win32/com_ptr.h"

#include <windows.h>

#include <string>

namespace brx::checks {

/// brxOpcDlgs6.dll as a host has it that knows its published interfaces and nothing else. The file is the one
/// that the environment variable BRX_DLL names, else that of the build tree that the program lies in, else
/// the one beside the program.
class Component {
public:
    Component();
    ~Component();
    Component(const Component&) = delete;
    Component& operator=(const Component&) = delete;

    /// A new instance of the public class. Hosts bind early, or late with the object by reference or by
    /// value: the instances take turns, unless the environment variable BRX_BINDING says "early", "reference"
    /// or "value".
    std::unique_ptr<PublicClass> create(const std::string& name) const;

    /// Whether it says that nothing of it is in use.
    bool can_be_unloaded() const;

    /// Whether the DLL of any instance is still loaded.
    static bool is_loaded();

private:
    com_ptr<IDispatch> instance_of(const CLSID& clsid) const;
    FARPROC entry(const char* name) const;

    HMODULE dll_;
};

} // namespace brx::checks
