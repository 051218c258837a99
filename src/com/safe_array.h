#pragma once

#include "common/values/variant.h"

#include <windows.h>

#include <oleauto.h>

#include <utility>

namespace brx {

/// Owns an automation array.
class OwnedSafeArray {
public:
    OwnedSafeArray() noexcept = default;
    /// A copy of the array, lower bound included.
    explicit OwnedSafeArray(const StringArray& array);
    explicit OwnedSafeArray(const LongArray& array);
    explicit OwnedSafeArray(const ShortArray& array);
    OwnedSafeArray(OwnedSafeArray&& other) noexcept : array_(other.detach()) {}
    OwnedSafeArray& operator=(OwnedSafeArray&& other) noexcept {
        std::swap(array_, other.array_);
        return *this;
    }
    ~OwnedSafeArray() { SafeArrayDestroy(array_); }

    SAFEARRAY* get() const noexcept { return array_; }
    /// For a parameter that takes the array by reference and only reads it.
    SAFEARRAY** in() noexcept { return &array_; }
    SAFEARRAY** out() noexcept {
        *this = OwnedSafeArray();
        return &array_;
    }
    SAFEARRAY* detach() noexcept { return std::exchange(array_, nullptr); }

private:
    SAFEARRAY* array_ = nullptr;
};

/// True for an array of one dimension with elements of a type.
bool is_vector_of(SAFEARRAY* array, VARTYPE element_type);

/// The elements of an array, lower bound included. Error 13 when it is no array of one dimension with this
/// very element type.
StringArray string_array(SAFEARRAY* array);
LongArray long_array(SAFEARRAY* array);
ShortArray short_array(SAFEARRAY* array);

} // namespace brx
