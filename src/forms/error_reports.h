#pragma once

#include "common/trap.h"
#include "forms/engine.h"
#include "forms/services.h"

#include <functional>

namespace brx {

/// The host's two error libraries.
class ErrorLibraries {
public:
    virtual ~ErrorLibraries() = default;

    /// Hands the report to the library's class. Where the host has no such class or it does not take the
    /// report, `otherwise` is called, which does not throw.
    virtual void Show(ErrorLibrary library, const ErrorReport& report,
                      const std::function<void()>& otherwise) noexcept = 0;
};

/// Where the errors of the dialogs go: to the host, and where that does not work to the person, in a message
/// box.
class ErrorReports final : public ErrorReporter {
public:
    ErrorReports(ErrorLibraries& to, Services& services) : libraries_(to), services_(services) {}

    void Show(ErrorLibrary library, const ErrorReport& report) noexcept override;

private:
    void tell(const ErrorReport& report);

    ErrorLibraries& libraries_;
    Services& services_;
};

/// What the person is told of an error: its number and description, and below them its place.
Message error_message(const ErrorReport& report);

} // namespace brx
