#include "com/safe_array.h"

#include "com/bstr.h"
#include "common/error.h"

#include <algorithm>

namespace brx {

namespace {

template <class T> struct Element;
template <> struct Element<std::int32_t> {
    static constexpr VARTYPE type = VT_I4;
    using Raw = LONG;
    static std::int32_t value(Raw raw) { return raw; }
    static Raw raw(std::int32_t value) { return value; }
};
template <> struct Element<std::int16_t> {
    static constexpr VARTYPE type = VT_I2;
    using Raw = SHORT;
    static std::int16_t value(Raw raw) { return raw; }
    static Raw raw(std::int16_t value) { return value; }
};
template <> struct Element<std::string> {
    static constexpr VARTYPE type = VT_BSTR;
    using Raw = BSTR;
    static std::string value(Raw raw) { return text_of(raw); }
    static Raw raw(const std::string& value) { return Bstr(value).detach(); }
};

/// The elements of an array, in reach as long as this lives.
template <class Raw> class Elements {
public:
    explicit Elements(SAFEARRAY* array) : array_(array) {
        void* data = nullptr;
        if (FAILED(SafeArrayAccessData(array_, &data))) throw Error(error::type_mismatch);
        first_ = static_cast<Raw*>(data);
    }
    Elements(const Elements&) = delete;
    Elements& operator=(const Elements&) = delete;
    ~Elements() { SafeArrayUnaccessData(array_); }

    Raw* begin() const { return first_; }
    Raw* end() const { return first_ + array_->rgsabound[0].cElements; }

private:
    SAFEARRAY* array_;
    Raw* first_ = nullptr;
};

template <class T> Array<T> elements_of(SAFEARRAY* array) {
    if (!is_vector_of(array, Element<T>::type)) throw Error(error::type_mismatch);
    Array<T> result;
    result.lower_bound = array->rgsabound[0].lLbound;
    for (const auto raw : Elements<typename Element<T>::Raw>(array))
        result.elements.push_back(Element<T>::value(raw));
    return result;
}

template <class T> void fill(SAFEARRAY** target, const Array<T>& array) {
    *target =
        SafeArrayCreateVector(Element<T>::type, array.lower_bound, static_cast<ULONG>(array.elements.size()));
    if (!*target) throw std::bad_alloc();
    const Elements<typename Element<T>::Raw> elements(*target);
    std::ranges::transform(array.elements, elements.begin(),
                           [](const T& value) { return Element<T>::raw(value); });
}

} // namespace

// Filling a complete object, so that its destructor runs when an element cannot be made.
OwnedSafeArray::OwnedSafeArray(const StringArray& array) : OwnedSafeArray() { fill(&array_, array); }
OwnedSafeArray::OwnedSafeArray(const LongArray& array) : OwnedSafeArray() { fill(&array_, array); }
OwnedSafeArray::OwnedSafeArray(const ShortArray& array) : OwnedSafeArray() { fill(&array_, array); }

bool is_vector_of(SAFEARRAY* array, VARTYPE element_type) {
    VARTYPE type = VT_EMPTY;
    return array && SafeArrayGetDim(array) == 1 && SUCCEEDED(SafeArrayGetVartype(array, &type)) &&
           type == element_type;
}

StringArray string_array(SAFEARRAY* array) { return elements_of<std::string>(array); }
LongArray long_array(SAFEARRAY* array) { return elements_of<std::int32_t>(array); }
ShortArray short_array(SAFEARRAY* array) { return elements_of<std::int16_t>(array); }

} // namespace brx
