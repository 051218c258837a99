#pragma once

#include "win32/com_ptr.h"

#include <windows.h>

#include <OPCAutomation.h>

namespace brx::checks {

/// The groups of a server of the fake wrapper. They have to be removed before the server goes.
com_ptr<::IOPCGroups> make_fake_groups(::IOPCAutoServer& server);

/// One that lists all items, after some garbage.
com_ptr<::OPCBrowser> make_fake_browser();

} // namespace brx::checks
