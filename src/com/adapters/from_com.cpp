#include "com/adapters/from_com.h"

#include <atomic>

namespace brx {

namespace {

/// An object of which nothing is known yet.
class ComObject final : public Object, public ComHolder {
public:
    explicit ComObject(com_ptr<IDispatch> object) : object_(std::move(object)) {}
    ObjectPtr view(const std::type_info& interface_type) override {
        return view_of(object_.get(), interface_type);
    }
    com_ptr<IDispatch> dispatch() const override { return object_; }

private:
    com_ptr<IDispatch> object_;
};

template <class... Binding>
ObjectPtr view_as(const BindingList<Binding...>*, const com_ptr<IUnknown>& object,
                  const std::type_info& type) {
    ObjectPtr view;
    const auto is_it = [&]<class Model, class Interface>(const brx::Binding<Model, Interface>*) {
        if (typeid(Model) != type) return false;
        view = from_com<Model>(object.as<Interface>());
        return true;
    };
    static_cast<void>((is_it(static_cast<const Binding*>(nullptr)) || ...));
    return view;
}

std::atomic<MakeDouble> make_double = nullptr;

} // namespace

ObjectPtr from_dispatch(com_ptr<IDispatch> object) {
    if (!object) return nullptr;
    return std::make_shared<ComObject>(std::move(object));
}

ObjectPtr view_of(IUnknown* object, const std::type_info& interface_type) {
    return view_as(static_cast<const Bindings*>(nullptr), com_ptr<IUnknown>(object), interface_type);
}

void set_make_double(MakeDouble make) noexcept { make_double = make; }

com_ptr<IDispatch> to_dispatch(const ObjectPtr& object, const std::type_info& interface_type) {
    if (!object) return nullptr;
    if (const auto held = std::dynamic_pointer_cast<ComHolder>(object)) return held->dispatch();
    const MakeDouble make = make_double;
    if (!make) throw Error(error::type_mismatch);
    return make(object, interface_type);
}

} // namespace brx
