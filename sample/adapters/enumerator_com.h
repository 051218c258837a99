#pragma once

#include "com/failure.h"
#include "com/wire.h"
#include "win32/counted.h"
#include "win32/module.h"

#include <brxModel.h>

#include <memory>
#include <utility>

namespace brx {

/// A model object's enumeration for a foreign For Each.
template <class Element> class EnumeratorCom final : public brxModel::Enumeration {
public:
    explicit EnumeratorCom(std::unique_ptr<Enumerator<Element>> elements) : elements_(std::move(elements)) {}

private:
    HRESULT next(VARIANT* element) override {
        bool found = false;
        const HRESULT result = guard(__uuidof(IEnumVARIANT), [&] {
            const auto given = elements_->Next();
            found = given != nullptr;
            if (found) *element = OwnedVariant(ObjectPtr(given)).detach();
        });
        return FAILED(result) || found ? result : S_FALSE;
    }

    [[no_unique_address]] ModuleLock lock_;
    std::unique_ptr<Enumerator<Element>> elements_;
};

} // namespace brx
