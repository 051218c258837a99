#include "dll/class_factory.h"

#include "com/failure.h"
#include "win32/counted.h"
#include "win32/module.h"

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

class ClassFactory final : public Counted<IClassFactory> {
public:
    explicit ClassFactory(const PublicClass& public_class) : class_(public_class) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        if (!object) return E_POINTER;
        *object = nullptr;
        if (iid != __uuidof(IUnknown) && iid != __uuidof(IClassFactory)) return E_NOINTERFACE;
        *object = static_cast<IClassFactory*>(this);
        AddRef();
        return S_OK;
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
};

} // namespace

com_ptr<IClassFactory> class_factory_of(const PublicClass& public_class) {
    return make_com<ClassFactory>(public_class);
}

} // namespace brx
