#pragma once

#include "host/records.h"
#include "win32/com_ptr.h"

#include <windows.h>

#include <oleauto.h>

namespace brx::host {

/// A new object of the database library that looks up a record or a group of a kind.
com_ptr<IDispatch> new_record_object(RecordKind kind, Record::Level level);

/// A new selection dialog of the database library for a kind.
com_ptr<IDispatch> new_selection_object(RecordKind kind);

} // namespace brx::host
