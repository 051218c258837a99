#include "common/trap.h"

#include "common/version.h"

#include <new>

namespace brx {

std::string error_text(std::int32_t number) {
    switch (number) {
    case error::invalid_procedure_call:
        return "Invalid procedure call or argument";
    case error::overflow:
        return "Overflow";
    case error::out_of_memory:
        return "Out of memory";
    case error::subscript_out_of_range:
        return "Subscript out of range";
    case error::type_mismatch:
        return "Type mismatch";
    case error::internal:
        return "Internal error";
    case error::object_not_set:
        return "Object variable or With block variable not set";
    case error::invalid_use_of_null:
        return "Invalid use of Null";
    case error::cannot_create_object:
        return "ActiveX component can't create object";
    case error::key_in_use:
        return "This key is already associated with an element of this collection";
    case error::index_out_of_bounds:
        return "Index out of bounds";
    case error::element_not_found:
        return "Element not found";
    case error::key_not_unique:
        return "Key is not unique in collection";
    default:
        return "Application-defined or object-defined error";
    }
}

std::string told_in_a_line(const ErrorReport& report) {
    return report.application + ": error " + std::to_string(report.number) + " in " + report.location + ": " +
           report.description + " (" + report.source + ")";
}

Error current_error() noexcept {
    try {
        throw;
    } catch (const Error& error) {
        return error;
    } catch (const std::bad_alloc&) {
        return Error(error::out_of_memory);
    } catch (const std::exception& other) {
        return Error(error::internal, other.what());
    } catch (...) {
        return Error(error::internal);
    }
}

namespace {
thread_local const TrapScope* innermost = nullptr;
} // namespace

TrapScope::TrapScope(const char* module, const char* procedure) noexcept
    : module_(module), procedure_(procedure), outer_(innermost) {
    innermost = this;
}

TrapScope::~TrapScope() { innermost = outer_; }

std::string current_location() {
    if (!innermost || !innermost->module_) return {};
    return std::string(innermost->module_) + "." + innermost->procedure_;
}

std::vector<std::string> current_modules() {
    std::vector<std::string> modules;
    for (const TrapScope* each = innermost; each; each = each->outer_)
        if (each->module_) modules.emplace_back(each->module_);
    return modules;
}

void Module::report(ErrorLibrary library, const char* procedure) const noexcept {
    // Building the report can itself run out of memory: then there is nothing left to say it with.
    attempt([&] {
        const Error error = current_error();
        errors_.Show(library, {error.number(), error.description(), error.source(),
                               std::string(name_) + "." + procedure, application_text});
    });
}

} // namespace brx
