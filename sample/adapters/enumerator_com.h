#pragma once

#include "com/failure.h"
#include "com/wire.h"
#include "win32/counted.h"

#include <utility>

namespace brx {

/// A model object's enumeration for a foreign For Each. It can be gone through once.
template <class Element> class EnumeratorCom final : public Counted<IEnumVARIANT, ISupportErrorInfo> {
public:
    explicit EnumeratorCom(std::unique_ptr<Enumerator<Element>> elements) : elements_(std::move(elements)) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        if (!object) return E_POINTER;
        *object = nullptr;
        if (iid == __uuidof(IUnknown) || iid == __uuidof(IEnumVARIANT))
            *object = static_cast<IEnumVARIANT*>(this);
        else if (iid == __uuidof(ISupportErrorInfo))
            *object = static_cast<ISupportErrorInfo*>(this);
        else
            return E_NOINTERFACE;
        this->AddRef();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) override {
        return iid == __uuidof(IEnumVARIANT) ? S_OK : S_FALSE;
    }

    HRESULT STDMETHODCALLTYPE Next(ULONG count, VARIANT* elements, ULONG* fetched) override {
        if (!elements) return E_POINTER;
        ULONG done = 0;
        const HRESULT result = guard(__uuidof(IEnumVARIANT), [&] {
            for (; done < count; ++done) {
                const auto element = elements_->Next();
                if (!element) break;
                elements[done] = OwnedVariant(ObjectPtr(element)).detach();
            }
        });
        if (FAILED(result))
            while (done > 0) VariantClear(&elements[--done]);
        if (fetched) *fetched = done;
        return FAILED(result) ? result : done == count ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE Skip(ULONG count) override {
        ULONG done = 0;
        const HRESULT result = guard(__uuidof(IEnumVARIANT), [&] {
            while (done < count && elements_->Next()) ++done;
        });
        return FAILED(result) ? result : done == count ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE Reset() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** copy) override {
        if (!copy) return E_POINTER;
        *copy = nullptr;
        return E_NOTIMPL;
    }

private:
    std::unique_ptr<Enumerator<Element>> elements_;
};

} // namespace brx
