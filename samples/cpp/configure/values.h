// What objects of automation are handed and hand out: texts, positions, arrays from 1.
#pragma once

#include <brxModel.h>

#include <string>
#include <utility>
#include <vector>

/// Holds one reference, and begins with the one that a new object has.
template <class Class> class Ref {
public:
    explicit Ref(Class* object) : object_(object) {}
    Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    Ref& operator=(Ref&& other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~Ref() {
        if (object_) object_->Release();
    }
    Class* get() const { return object_; }
    Class* operator->() const { return object_; }

private:
    Class* object_;
};

template <class Class, class... Arguments> Ref<Class> make(Arguments&&... arguments) {
    return Ref<Class>(new Class(std::forward<Arguments>(arguments)...));
}

inline std::wstring text_of(BSTR text) {
    return text ? std::wstring(text, SysStringLen(text)) : std::wstring();
}

inline HRESULT no_such_element() {
    return brxModel::failed(L"There is no such element.", static_cast<HRESULT>(0x800A0009),
                            L"The sample"); // error 9
}

/// Gives the element of a list at a position from 1.
template <class Class, class Interface>
HRESULT give_element(Interface** result, const std::vector<Ref<Class>>& list, VARIANT position) {
    VARIANT number;
    VariantInit(&number);
    if (!result) return E_POINTER;
    *result = nullptr;
    if (FAILED(VariantChangeType(&number, &position, 0, VT_I4)) || number.lVal < 1 ||
        number.lVal > static_cast<LONG>(list.size()))
        return no_such_element();
    return brxModel::give(result, list[static_cast<std::size_t>(number.lVal - 1)].get());
}

template <class List> HRESULT give_count(LONG* result, const List& list) {
    *result = static_cast<LONG>(list.size());
    return S_OK;
}

inline SAFEARRAY* array_of(const std::vector<std::wstring>& texts) {
    SAFEARRAY* made = SafeArrayCreateVector(VT_BSTR, 1, static_cast<ULONG>(texts.size()));
    for (LONG i = 1; i <= static_cast<LONG>(texts.size()); ++i) {
        BSTR text = SysAllocString(texts[static_cast<std::size_t>(i - 1)].c_str());
        SafeArrayPutElement(made, &i, text);
        SysFreeString(text);
    }
    return made;
}
inline SAFEARRAY* array_of(const std::vector<LONG>& numbers) {
    SAFEARRAY* made = SafeArrayCreateVector(VT_I4, 1, static_cast<ULONG>(numbers.size()));
    for (LONG i = 1; i <= static_cast<LONG>(numbers.size()); ++i)
        SafeArrayPutElement(made, &i, const_cast<LONG*>(&numbers[static_cast<std::size_t>(i - 1)]));
    return made;
}

inline std::vector<std::wstring> texts_in(SAFEARRAY* array) {
    std::vector<std::wstring> texts;
    LONG first = 0;
    LONG last = -1;
    SafeArrayGetLBound(array, 1, &first);
    SafeArrayGetUBound(array, 1, &last);
    for (LONG i = first; i <= last; ++i) {
        BSTR text = nullptr;
        if (FAILED(SafeArrayGetElement(array, &i, &text))) break;
        texts.push_back(text_of(text));
        SysFreeString(text);
    }
    return texts;
}
