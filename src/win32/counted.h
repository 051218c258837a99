#pragma once

#include "win32/com_ptr.h"
#include "win32/module.h"

#include <atomic>
#include <memory>
#include <utility>

namespace brx {

/// A COM object of ours, whatever its interfaces: it counts its references, ends with the last, and keeps the
/// module loaded until then.
template <class... Interfaces> class Counted : public Interfaces... {
public:
    Counted() = default;
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;
    virtual ~Counted() = default;

    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0) std::unique_ptr<Counted>(this).reset();
        return left;
    }

private:
    std::atomic<ULONG> references_ = 1;
    [[no_unique_address]] ModuleLock lock_;
};

/// A new COM object of a class whose objects begin with one reference.
template <class Class, class... Arguments> com_ptr<Class> make_com(Arguments&&... arguments) {
    return com_ptr<Class>::adopt(std::make_unique<Class>(std::forward<Arguments>(arguments)...).release());
}

} // namespace brx
