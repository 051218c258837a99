#pragma once

#include <windows.h>

#include <oleauto.h>

#include <string>
#include <utility>

namespace sample {

/// Holds one reference to an object.
template <class T> class Ref {
public:
    Ref() = default;
    Ref(const Ref& other) : object_(other.object_) {
        if (object_) object_->AddRef();
    }
    Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    ~Ref() {
        if (object_) object_->Release();
    }
    Ref& operator=(Ref other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }

    T* get() const { return object_; }
    T* operator->() const { return object_; }
    explicit operator bool() const { return object_ != nullptr; }
    T** out() {
        *this = Ref();
        return &object_;
    }
    void** out_untyped() { return reinterpret_cast<void**>(out()); }

    template <class U> Ref<U> as() const {
        Ref<U> other;
        if (object_) object_->QueryInterface(__uuidof(U), other.out_untyped());
        return other;
    }

private:
    T* object_ = nullptr;
};

/// An automation string.
class Text {
public:
    Text() = default;
    explicit Text(const std::wstring& text)
        : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {}
    Text(const Text&) = delete;
    Text& operator=(const Text&) = delete;
    ~Text() { SysFreeString(text_); }

    BSTR get() const { return text_; }
    BSTR* out() { return &text_; }
    std::wstring text() const { return {text_ ? text_ : L"", SysStringLen(text_)}; }

private:
    BSTR text_ = nullptr;
};

/// A call of an object that failed.
struct Failure {
    HRESULT code;
    std::wstring description; ///< the object's own words, else the system's
    bool no_object = false;   ///< there is not even an object
};

/// Throws a Failure when a call failed.
void check(HRESULT result);
/// The same for the making of an object.
void check_made(HRESULT result);

/// What the platform says of making an object of a class by its name.
HRESULT create_untyped(const wchar_t* class_name, REFIID iid, void** object);

/// A new object of a class by its name. Throws a Failure.
template <class Interface> Ref<Interface> create(const wchar_t* class_name) {
    Ref<Interface> object;
    check_made(create_untyped(class_name, __uuidof(Interface), object.out_untyped()));
    return object;
}

} // namespace sample
