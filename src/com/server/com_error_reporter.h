#pragma once

#include "common/trap.h"

namespace brx {

/// Reports to the host: makes an object of the error library's class `Error` and calls its Show by name.
/// Where that does not work, and for an error inside of it, one line goes to the debugger and nothing is
/// shown.
class ComErrorReporter final : public ErrorReporter {
public:
    void Show(ErrorLibrary library, const ErrorReport& report) noexcept override;
};

} // namespace brx
