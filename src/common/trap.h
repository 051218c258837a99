#pragma once

#include "common/error.h"

#include <cstdint>
#include <exception>
#include <optional>
#include <string>
#include <vector>

namespace brx {

/// The two error libraries of the host. Each has a class `Error` whose `Show` reports.
enum class ErrorLibrary { brxError6, hlxER01 };

/// The full name of the library's class.
constexpr const char* error_class_name(ErrorLibrary library) {
    return library == ErrorLibrary::hlxER01 ? "hlxER01.Error" : "brxError6.Error";
}

/// What one report says.
struct ErrorReport {
    std::int32_t number = 0;
    std::string description;
    std::string source;
    std::string location;    ///< module name, full stop, procedure name
    std::string application; ///< the component's name and version
};

/// On one line, for whoever reads a log.
std::string told_in_a_line(const ErrorReport& report);

/// Where unexpected errors go. An implementation never throws.
class ErrorReporter {
public:
    virtual ~ErrorReporter() = default;
    virtual void Show(ErrorLibrary library, const ErrorReport& report) noexcept = 0;
};

/// The procedure of this thread whose trap would report a failure now, as "module.procedure"; "" outside any,
/// and where errors are ignored. Checks use it to know which report a failing host call must lead to.
std::string current_location();

/// The modules whose procedures run on this thread, the innermost first; also where errors are ignored.
/// Checks use it to know which dialog makes a call.
std::vector<std::string> current_modules();

/// For its lifetime failures of this thread go to the named procedure's trap, or to nobody when both are
/// null.
class TrapScope {
public:
    TrapScope(const char* module, const char* procedure) noexcept;
    ~TrapScope();
    TrapScope(const TrapScope&) = delete;
    TrapScope& operator=(const TrapScope&) = delete;

private:
    friend std::string current_location();
    friend std::vector<std::string> current_modules();
    const char* module_;
    const char* procedure_;
    const TrapScope* outer_;
};

/// One step that runs with errors ignored. True when it came through.
template <class Step> bool attempt(Step&& step) noexcept {
    const TrapScope ignored(nullptr, nullptr);
    try {
        step();
        return true;
    } catch (...) {
        return false;
    }
}

/// What is being handled right now, in a catch clause, as an error of the component.
Error current_error() noexcept;

/// One step that runs with errors resumed by code that looks at them afterwards; none when it came through.
template <class Step> std::optional<Error> failure_of(Step&& step) {
    const TrapScope ignored(nullptr, nullptr);
    try {
        step();
        return std::nullopt;
    } catch (const Stopped&) {
        throw;
    } catch (...) {
        return current_error();
    }
}

/// A unit whose procedures run under an error trap: a form, a public class, the common tools.
class Module {
public:
    Module(const char* name, ErrorReporter& errors, ErrorLibrary library = ErrorLibrary::brxError6)
        : name_(name), errors_(errors), library_(library) {}
    Module(const Module&) = delete;
    Module& operator=(const Module&) = delete;

    const char* module_name() const { return name_; }

protected:
    ~Module() = default;

    /// Runs `body`; whatever it throws is reported under this module's name and `procedure`, and goes no
    /// further.
    template <class Body> void trap(const char* procedure, Body&& body) const noexcept {
        trap(library_, procedure, std::forward<Body>(body));
    }

    /// The same for a procedure that reports to the other library.
    template <class Body> void trap(ErrorLibrary library, const char* procedure, Body&& body) const noexcept {
        const TrapScope here(name_, procedure);
        try {
            body();
        } catch (const Left&) {
            // She knows.
        } catch (...) {
            report(library, procedure);
        }
    }

private:
    void report(ErrorLibrary library, const char* procedure) const noexcept;

    const char* name_;
    ErrorReporter& errors_;
    ErrorLibrary library_;
};

} // namespace brx
