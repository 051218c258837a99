#pragma once

#include "forms/error_reports.h"

namespace brx {

/// The error libraries of a COM host: makes an object of the library's class `Error` and calls its Show by
/// name. Where that does not work one line goes to the debugger before anything else is done, and for an
/// error inside of it one line is all. Nothing of this changes what the thread knows of errors.
class ComErrorLibraries final : public ErrorLibraries {
public:
    void Show(ErrorLibrary library, const ErrorReport& report,
              const std::function<void()>& otherwise) noexcept override;
};

} // namespace brx
