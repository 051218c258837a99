#pragma once

#include <windows.h>

namespace brx::checks {

/// How many labels the windows of this thread have.
int labels_now();

/// How many blocks of memory stay when a bare label that was given a font is destroyed: none, but of Wine's
/// one. The label forgets what it keeps the font in.
int blocks_of_a_bare_label();

} // namespace brx::checks
