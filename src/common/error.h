#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace brx {

/// The run-time errors that the dialogs meet, by their published numbers.
namespace error {
inline constexpr std::int32_t invalid_procedure_call = 5;
inline constexpr std::int32_t overflow = 6;
inline constexpr std::int32_t out_of_memory = 7;
inline constexpr std::int32_t subscript_out_of_range = 9;
inline constexpr std::int32_t type_mismatch = 13;
inline constexpr std::int32_t internal = 51;
inline constexpr std::int32_t object_not_set = 91;
inline constexpr std::int32_t invalid_use_of_null = 94;
inline constexpr std::int32_t cannot_create_object = 429;
inline constexpr std::int32_t key_in_use = 457;
inline constexpr std::int32_t index_out_of_bounds = 35600;
inline constexpr std::int32_t element_not_found = 35601;
inline constexpr std::int32_t key_not_unique = 35602;
inline constexpr std::int32_t call_canceled = -2147418110; // 0x80010002, as the system has it
} // namespace error

/// The component's own name: the source of every error that it raises itself.
inline constexpr const char* component_name = "brxOpcDlgs6";

/// The description that goes with a run-time error number; "Application-defined or object-defined error" for
/// any other number.
std::string error_text(std::int32_t number);

/// A failure with the three facts of the automation convention. A host's failing call arrives as one of these
/// with the host's own number, description and source.
class Error : public std::runtime_error {
public:
    explicit Error(std::int32_t number) : Error(number, error_text(number)) {}
    Error(std::int32_t number, const std::string& description, std::string source = component_name)
        : std::runtime_error(description), number_(number), source_(std::move(source)) {}

    std::int32_t number() const { return number_; }
    std::string description() const { return what(); }
    const std::string& source() const { return source_; }

    /// Whether both say the same.
    bool operator==(const Error& other) const {
        return number_ == other.number_ && description() == other.description() && source_ == other.source_;
    }

private:
    std::int32_t number_;
    std::string source_;
};

/// A person has stopped the work: this call was not made, or was broken off while it was under way.
class Stopped : public Error {
public:
    enum class Call { not_made, broken_off };

    explicit Stopped(Call call = Call::not_made)
        : Error(error::call_canceled, "Stopped by the user"), call_(call) {}

    /// Whether the host's objects are certain to be as they were before the call.
    bool was_not_made() const { return call_ == Call::not_made; }

private:
    Call call_;
};

/// A person is about to leave what the work was for: it ends like work that is stopped, but nobody is told.
class Left : public Stopped {};

} // namespace brx
