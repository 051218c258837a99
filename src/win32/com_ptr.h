#pragma once

#include <unknwn.h>

#include <cstddef>
#include <utility>

namespace brx {

/// Holds one reference to a COM object.
template <class T> class com_ptr {
public:
    com_ptr() noexcept = default;
    com_ptr(std::nullptr_t) noexcept {}
    explicit com_ptr(T* object) noexcept : object_(object) {
        if (object_) object_->AddRef();
    }
    com_ptr(const com_ptr& other) noexcept : com_ptr(other.object_) {}
    com_ptr(com_ptr&& other) noexcept : object_(other.detach()) {}
    template <class U> com_ptr(const com_ptr<U>& other) noexcept : com_ptr(static_cast<T*>(other.get())) {}
    ~com_ptr() {
        if (object_) object_->Release();
    }
    com_ptr& operator=(com_ptr other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }

    /// Takes over a reference that somebody else made.
    static com_ptr adopt(T* object) noexcept {
        com_ptr owner;
        owner.object_ = object;
        return owner;
    }

    T* get() const noexcept { return object_; }
    T* operator->() const noexcept { return object_; }
    explicit operator bool() const noexcept { return object_ != nullptr; }

    /// For a call that hands out a reference; what was held before is released.
    T** out() noexcept {
        *this = com_ptr();
        return &object_;
    }

    /// Gives the reference away.
    T* detach() noexcept { return std::exchange(object_, nullptr); }

    /// The same object through another interface; none when it lacks it.
    template <class U> com_ptr<U> as() const noexcept {
        void* other = nullptr;
        if (!object_ || FAILED(object_->QueryInterface(__uuidof(U), &other))) return nullptr;
        return com_ptr<U>::adopt(static_cast<U*>(other));
    }

private:
    T* object_ = nullptr;
};

} // namespace brx
