#include "com/inproc/class_factory.h"

#include "com/failure.h"
#include "com/module.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <vector>

namespace brx {

namespace {

/// The locks that hosts hold on the module, through whichever factory.
class HostLocks {
public:
    void change(bool add) {
        const std::lock_guard alone(mutex_);
        if (add)
            locks_.emplace_back();
        else if (!locks_.empty())
            locks_.pop_back();
    }

private:
    std::mutex mutex_;
    std::vector<ModuleLock> locks_;
} host_locks;

class ClassFactory final : public IClassFactory {
public:
    explicit ClassFactory(const PublicClass& public_class) : class_(public_class) {}
    virtual ~ClassFactory() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        if (!object) return E_POINTER;
        *object = nullptr;
        if (iid != __uuidof(IUnknown) && iid != __uuidof(IClassFactory)) return E_NOINTERFACE;
        *object = static_cast<IClassFactory*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0) std::unique_ptr<ClassFactory>(this).reset();
        return left;
    }

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) override {
        if (!object) return E_POINTER;
        *object = nullptr;
        if (outer) return CLASS_E_NOAGGREGATION;
        HRESULT found = S_OK;
        const HRESULT made = guard(iid, [&] { found = class_.create()->QueryInterface(iid, object); });
        return FAILED(made) ? made : found;
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override {
        return guard(__uuidof(IClassFactory), [&] { host_locks.change(lock != FALSE); });
    }

private:
    const PublicClass& class_;
    std::atomic<ULONG> references_ = 0;
    ModuleLock lock_;
};

} // namespace

com_ptr<IClassFactory> class_factory_of(const PublicClass& public_class) {
    return com_ptr<IClassFactory>(std::make_unique<ClassFactory>(public_class).release());
}

} // namespace brx
