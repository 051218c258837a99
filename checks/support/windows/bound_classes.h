#pragma once

#include "adapters/to_com.h"
#include "com/bstr.h"
#include "com/failure.h"
#include "stage.h"
#include "win32/com_ptr.h"

#include <utility>

namespace brx::checks {

/// A public class through its interface's table, as a compiled host calls it.
template <class Interface> class EarlyBound : public PublicClass {
public:
    explicit EarlyBound(com_ptr<Interface> object) : object_(std::move(object)) {
        check(object_ ? S_OK : E_NOINTERFACE);
    }

    std::int16_t ServerIndex() override {
        SHORT index = 0;
        if constexpr (requires { object_->get_ServerIndex(&index); }) check(object_->get_ServerIndex(&index));
        return index;
    }
    void set_ServerIndex(std::int16_t index) override {
        if constexpr (requires { object_->put_ServerIndex(index); }) check(object_->put_ServerIndex(index));
    }
    std::string ItemID() override {
        Bstr item_id;
        if constexpr (requires { object_->get_ItemID(item_id.out()); })
            check(object_->get_ItemID(item_id.out()));
        return item_id.text();
    }
    void set_ItemID(const std::string& item_id) override {
        const Bstr value(item_id);
        if constexpr (requires { object_->put_ItemID(value.get()); }) check(object_->put_ItemID(value.get()));
    }
    bool Show(const std::vector<ObjectPtr>& objects) override {
        const com_ptr<IDispatch> argument = dispatch_of(objects.at(0));
        VARIANT_BOOL result = VARIANT_FALSE;
        if constexpr (requires { object_->Show(argument.get(), argument.get(), &result); }) {
            check(object_->Show(argument.get(), dispatch_of(objects.at(1)).get(), &result));
        } else if constexpr (requires(IDispatch * *reference) { object_->Show(reference, &result); }) {
            IDispatch* reference = argument.get();
            check(object_->Show(&reference, &result));
            // It may look at the host's variable, not change it.
            check(reference == argument.get() ? S_OK : E_UNEXPECTED);
        } else if constexpr (requires { object_->Show(argument.get()); }) {
            check(object_->Show(argument.get()));
            result = VARIANT_TRUE;
        } else {
            check(object_->Show(argument.get(), &result));
        }
        return result != VARIANT_FALSE;
    }

private:
    com_ptr<Interface> object_;
};

/// A public class by the names of its members, as a script calls it.
class LateBound : public PublicClass {
public:
    /// Scripts pass a variable by reference, and by value when it stands in brackets. `result` is what Show
    /// gives: VT_BOOL, or VT_EMPTY for nothing.
    LateBound(com_ptr<IDispatch> object, bool by_reference, VARTYPE result)
        : object_(std::move(object)), by_reference_(by_reference), result_(result) {}

    std::int16_t ServerIndex() override;
    void set_ServerIndex(std::int16_t index) override;
    std::string ItemID() override;
    void set_ItemID(const std::string& item_id) override;
    bool Show(const std::vector<ObjectPtr>& objects) override;

private:
    com_ptr<IDispatch> object_;
    bool by_reference_;
    VARTYPE result_;
};

} // namespace brx::checks
