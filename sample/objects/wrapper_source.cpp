#include "objects/wrapper_source.h"

#include "com/bstr.h"
#include "com/com_object.h"
#include "com/failure.h"
#include "com/owned_variant.h"
#include "objects/site.h"

#include <OPCAutomation.h>

namespace brx::host {

namespace {

constexpr const wchar_t* wrapper_class = L"OPC.Automation";
constexpr SHORT from_device = 2;

com_ptr<IOPCAutoServer> new_wrapper() {
    CLSID clsid{};
    check(CLSIDFromProgID(wrapper_class, &clsid));
    com_ptr<IOPCAutoServer> server;
    check(CoCreateInstance(clsid, nullptr, CLSCTX_ALL, __uuidof(IOPCAutoServer),
                           reinterpret_cast<void**>(server.out())));
    return server;
}

/// Some items deny having IDispatch, so that they are only ever called by their own interface.
class WrapperGroup final : public GroupAccess {
public:
    explicit WrapperGroup(com_ptr<IOPCGroup> group) : group_(std::move(group)) {
        require(group_->get_OPCItems(items_.out()));
        if (!items_) throw Error(error::object_not_set);
    }

    void subscribe(std::int32_t update_rate, float dead_band) override {
        // A server that does not take one of these has its own.
        group_->put_UpdateRate(update_rate);
        group_->put_DeadBand(dead_band);
        require(group_->put_IsActive(VARIANT_TRUE));
        require(group_->put_IsSubscribed(VARIANT_TRUE));
    }
    bool is_subscribed() override {
        VARIANT_BOOL subscribed = VARIANT_FALSE;
        require(group_->get_IsSubscribed(&subscribed));
        return subscribed != VARIANT_FALSE;
    }
    Observation known(const std::string& item_id) override {
        const auto item = item_of(item_id);
        OwnedVariant value;
        LONG quality = 0;
        Date time;
        require_of_item(item, item->get_Value(value.out()));
        require_of_item(item, item->get_Quality(&quality));
        require_of_item(item, item->get_TimeStamp(&time.days));
        return {brx::value_of(value.get()), quality, time};
    }
    /// The cache of a group can be as old as the connection.
    Observation ask(const std::string& item_id) override {
        const auto item = item_of(item_id);
        OwnedVariant value;
        OwnedVariant quality;
        OwnedVariant time;
        require_of_item(item, item->Read(from_device, value.out(), quality.out(), time.out()));
        return {brx::value_of(value.get()), long_in(quality.get()), date_in(time.get())};
    }

private:
    void require(HRESULT result) const { check(result, group_.get(), __uuidof(IOPCGroup)); }
    static void require_of_item(const com_ptr<::OPCItem>& item, HRESULT result) {
        check(result, item.get(), __uuidof(::OPCItem));
    }
    static LONG long_in(const VARIANT& number) {
        return V_VT(&number) == VT_I2 ? V_I2(&number) : V_VT(&number) == VT_I4 ? V_I4(&number) : 0;
    }
    static Date date_in(const VARIANT& time) { return {V_VT(&time) == VT_DATE ? V_DATE(&time) : 0}; }

    com_ptr<::OPCItem> item_of(const std::string& item_id) const {
        const OwnedVariant name{Variant(item_id)};
        com_ptr<::OPCItem> item;
        check(items_->Item(name.get(), item.out()), items_.get(), __uuidof(::OPCItems));
        if (!item) throw Error(error::object_not_set);
        return item;
    }

    com_ptr<IOPCGroup> group_;
    com_ptr<::OPCItems> items_;
};

} // namespace

bool WrapperSource::is_installed() {
    try {
        return static_cast<bool>(new_wrapper());
    } catch (const Error&) {
        return false;
    }
}

ObjectPtr WrapperSource::make() { return from_dispatch(new_wrapper()); }

ObjectPtr WrapperSource::connect(const std::string& program_id, const std::string& node) {
    const com_ptr<IOPCAutoServer> server = new_wrapper();
    const OwnedVariant computer(node.empty() ? Variant(Missing{}) : Variant(node));
    check(server->Connect(Bstr(program_id).get(), computer.get()), server.get(), __uuidof(IOPCAutoServer));
    return from_dispatch(server);
}

std::unique_ptr<GroupAccess> WrapperSource::access(const ObjectPtr& group) {
    const auto* const held = dynamic_cast<const ComHolder*>(group.get());
    auto wrapper = held ? held->dispatch().as<IOPCGroup>() : com_ptr<IOPCGroup>();
    if (!wrapper) throw Error(error::type_mismatch);
    return std::make_unique<WrapperGroup>(std::move(wrapper));
}

double WrapperSource::seconds() { return host::seconds(); }

void WrapperSource::disconnect(const ObjectPtr& server) noexcept {
    const auto* const held = dynamic_cast<const ComHolder*>(server.get());
    if (!held) return;
    if (const auto wrapper = held->dispatch().as<IOPCAutoServer>()) wrapper->Disconnect();
}

} // namespace brx::host
