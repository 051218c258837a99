#pragma once

#include "com/failure.h"
#include "com/wire.h"
#include "common/call_gate.h"

#include <utility>

namespace brx {

/// The enumeration of a host's collection, one element fetched at a time.
template <class Element> class ComEnumerator final : public Enumerator<Element> {
public:
    explicit ComEnumerator(com_ptr<IEnumVARIANT> elements) : elements_(std::move(elements)) {}

    std::shared_ptr<Element> Next() override {
        call_gate::pass();
        OwnedVariant element;
        const HRESULT result = elements_->Next(1, element.out(), nullptr);
        check_call(result, elements_.get(), __uuidof(IEnumVARIANT), typeid(Element), "Next");
        if (result != S_OK) return nullptr;
        const Variant value = value_of(element.get());
        const auto* const object = std::get_if<ObjectPtr>(&value);
        return resolve<Element>(object ? *object : nullptr);
    }

private:
    com_ptr<IEnumVARIANT> elements_;
};

} // namespace brx
