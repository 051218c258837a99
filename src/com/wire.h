#pragma once

#include "com/adapters.h"
#include "com/bstr.h"
#include "com/owned_variant.h"

#include <memory>
#include <string>

namespace brx {

/// How a type of the model travels: `Raw` is what an automation member takes or gives, `Owner` keeps one
/// (get, out, detach), `own` makes it from the model's value and `model` turns it back.
template <class Model> struct Wire;

/// Owns a plain number, that is, nothing.
template <class Raw> struct Plain {
    Raw value{};
    Raw get() const { return value; }
    Raw* out() { return &value; }
    Raw detach() const { return value; }
};

template <class Model, class RawNumber> struct NumberWire {
    using Raw = RawNumber;
    using Owner = Plain<Raw>;
    static Owner own(Model value) { return {value}; }
    static Model model(Raw raw) { return raw; }
};
template <> struct Wire<std::int16_t> : NumberWire<std::int16_t, SHORT> {};
template <> struct Wire<std::int32_t> : NumberWire<std::int32_t, LONG> {};
template <> struct Wire<float> : NumberWire<float, FLOAT> {};
template <> struct Wire<double> : NumberWire<double, DOUBLE> {};

template <> struct Wire<bool> {
    using Raw = VARIANT_BOOL;
    using Owner = Plain<Raw>;
    static Owner own(bool value) { return {value ? VARIANT_TRUE : VARIANT_FALSE}; }
    static bool model(Raw raw) { return raw != VARIANT_FALSE; }
};

template <> struct Wire<Date> {
    using Raw = DATE;
    using Owner = Plain<Raw>;
    static Owner own(Date value) { return {value.days}; }
    static Date model(Raw raw) { return Date{raw}; }
};

template <> struct Wire<std::string> {
    using Raw = BSTR;
    using Owner = Bstr;
    static Owner own(const std::string& value) { return Bstr(value); }
    static std::string model(Raw raw) { return text_of(raw); }
};

template <> struct Wire<Variant> {
    using Raw = VARIANT;
    using Owner = OwnedVariant;
    static Owner own(const Variant& value) { return OwnedVariant(value); }
    static Variant model(const Raw& raw) { return value_of(raw); }
};

template <> struct Wire<ObjectPtr> {
    using Raw = IDispatch*;
    using Owner = com_ptr<IDispatch>;
    static Owner own(const ObjectPtr& value) { return to_dispatch(value); }
    static ObjectPtr model(Raw raw) { return from_dispatch(com_ptr<IDispatch>(raw)); }
};

template <class Model> struct Wire<std::shared_ptr<Model>> {
    using Raw = InterfaceOf<Model>*;
    using Owner = com_ptr<InterfaceOf<Model>>;
    static Owner own(const std::shared_ptr<Model>& value) {
        return to_dispatch(value, typeid(Model)).template as<InterfaceOf<Model>>();
    }
    static std::shared_ptr<Model> model(Raw raw) { return from_com<Model>(Owner(raw)); }
};

} // namespace brx
