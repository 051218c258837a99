#pragma once

#include "win32/com_ptr.h"

#include <windows.h>

#include <brxOpcAuto6.h>

namespace brx::bench {

/// What a configuration and its server hold.
struct Holdings {
    int tests = 1;
    int descriptors = 1;
    int groups = 1;            ///< of the connected server
    bool fresh_groups = false; ///< a group's object is made each time that it is asked for
};

/// A configuration with that. Its objects are as quick as can be, and but for fresh groups made beforehand.
/// Every value stays as it is.
com_ptr<_hlxOPCConfiguration> make_configuration(const Holdings& holdings);

/// How often the groups of such servers were asked for.
int status_reads();

} // namespace brx::bench
