#pragma once

#include "dll/class_factory.h"

#include <span>

namespace brx::host {

/// A class by the name that scripts and the dialogs create it by.
struct NamedClass {
    PublicClass made;
    const wchar_t* name;
    const wchar_t* description;
};

/// The classes of the sample host's libraries.
std::span<const NamedClass> classes();

} // namespace brx::host
