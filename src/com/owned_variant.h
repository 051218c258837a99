#pragma once

#include "com/safe_array.h"
#include "common/values/variant.h"

#include <windows.h>

#include <oleauto.h>

#include <optional>

namespace brx {

/// Owns an automation variant.
class OwnedVariant {
public:
    OwnedVariant() noexcept { VariantInit(&variant_); }
    /// The value as an automation variant.
    explicit OwnedVariant(const Variant& value);
    explicit OwnedVariant(OwnedSafeArray array);
    OwnedVariant(OwnedVariant&& other) noexcept : variant_(other.detach()) {}
    OwnedVariant& operator=(OwnedVariant&& other) noexcept;
    ~OwnedVariant() { VariantClear(&variant_); }

    /// A copy of a variant; what it refers to when it is a reference.
    static OwnedVariant copy(const VARIANT& variant);

    const VARIANT& get() const noexcept { return variant_; }
    VARIANT* out() noexcept;
    VARIANT detach() noexcept;

private:
    VARIANT variant_;
};

/// The value of an automation variant, whatever its kind, references followed. A kind that Variant does not
/// know becomes Opaque, which turns into the same automation variant again.
Variant value_of(const VARIANT& variant);

/// The texts of an array of variants that hold nothing else, as scripts make them; none for any other
/// variant.
std::optional<StringArray> texts_in(const VARIANT& variant);

} // namespace brx
