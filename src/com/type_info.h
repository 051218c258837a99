#pragma once

#include "win32/com_ptr.h"

#include <windows.h>

#include <oleauto.h>

#include <memory>
#include <vector>

namespace brx {

/// The type libraries inside this module (the program or DLL that this code was linked into), so nothing has
/// to be registered.
class TypeLibraries {
public:
    /// Opening them takes a while, so they stay open for everybody as long as somebody keeps them.
    static std::shared_ptr<const TypeLibraries> open();

    /// The description of an interface or class. Throws when none of the libraries has it.
    com_ptr<ITypeInfo> type_info(REFGUID guid) const;

private:
    std::vector<com_ptr<ITypeLib>> libraries_;
};

/// The description of one interface or class.
com_ptr<ITypeInfo> type_info_of(REFGUID guid);

} // namespace brx
