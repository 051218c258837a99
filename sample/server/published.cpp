#include "server/published.h"

#include "adapters/to_com_opc.h"
#include "com/adapters/from_com.h"
#include "plant/items.h"
#include "plant/server.h"

namespace brx::server {

namespace {

class PublishedServer final : public ToCom<OPCServer> {
public:
    explicit PublishedServer(std::shared_ptr<plant::Server> server) : ToCom(server), server_(server.get()) {}

    STDMETHODIMP put_ClientName(BSTR name) override {
        return run([&] { server_->set_ClientName(text_of(name)); });
    }
    STDMETHODIMP Connect(BSTR program_id, VARIANT node) override {
        return run([&] { server_->Connect(text_of(program_id), optional_text(node).value_or("")); });
    }
    STDMETHODIMP Disconnect() override {
        return run([&] { server_->Disconnect(); });
    }

private:
    plant::Server* server_; ///< the model that the base keeps
};

/// The plant always knows its values: whether a client wants to be told of them is only remembered.
class PublishedGroup final : public ToCom<OPCGroup> {
public:
    using ToCom::ToCom;

    STDMETHODIMP get_IsActive(VARIANT_BOOL* result) override { return tell(active_, result); }
    STDMETHODIMP put_IsActive(VARIANT_BOOL active) override { return keep(active, active_); }
    STDMETHODIMP get_IsSubscribed(VARIANT_BOOL* result) override { return tell(subscribed_, result); }
    STDMETHODIMP put_IsSubscribed(VARIANT_BOOL subscribed) override { return keep(subscribed, subscribed_); }
    STDMETHODIMP get_UpdateRate(LONG* result) override { return tell(update_rate_, result); }
    STDMETHODIMP put_UpdateRate(LONG update_rate) override { return keep(update_rate, update_rate_); }
    STDMETHODIMP get_DeadBand(FLOAT* result) override { return tell(dead_band_, result); }
    STDMETHODIMP put_DeadBand(FLOAT dead_band) override { return keep(dead_band, dead_band_); }

private:
    template <class Value> HRESULT tell(Value value, Value* result) {
        if (!result) return E_POINTER;
        *result = value;
        return S_OK;
    }
    template <class Value> HRESULT keep(Value value, Value& kept) {
        kept = value;
        return S_OK;
    }

    VARIANT_BOOL active_ = VARIANT_TRUE;
    VARIANT_BOOL subscribed_ = VARIANT_FALSE;
    LONG update_rate_ = 1000;
    FLOAT dead_band_ = 0;
};

class PublishedItem final : public ToCom<OPCItem> {
public:
    explicit PublishedItem(std::shared_ptr<plant::Item> item) : ToCom(item), item_(item.get()) {}

    STDMETHODIMP get_ClientHandle(LONG* result) override {
        return give(result, [&] { return item_->ClientHandle(); });
    }
    STDMETHODIMP get_ServerHandle(LONG* result) override {
        return give(result, [&] { return item_->ServerHandle(); });
    }
    STDMETHODIMP get_Value(VARIANT* result) override {
        return give(result, [&] { return item_->read().value; });
    }
    STDMETHODIMP get_Quality(LONG* result) override {
        return give(result, [&] { return std::int32_t{item_->read().quality}; });
    }
    STDMETHODIMP get_TimeStamp(DATE* result) override {
        return give(result, [&] { return item_->read().time; });
    }

    /// From its cache or its device: there is no difference here.
    STDMETHODIMP Read(SHORT, VARIANT* value, VARIANT* quality, VARIANT* time) override {
        return run([&] {
            const plant::Reading now = item_->read();
            fill(value, now.value);
            fill(quality, now.quality);
            fill(time, now.time);
        });
    }

private:
    static void fill(VARIANT* place, const Variant& with) {
        if (place) *place = OwnedVariant(with).detach();
    }

    plant::Item* item_; ///< the model that the base keeps
};

template <class Model> com_ptr<IDispatch> plain(const ObjectPtr& object) {
    const auto model = std::dynamic_pointer_cast<Model>(object);
    return model ? make_com<ToCom<Model>>(model) : nullptr;
}

com_ptr<IDispatch> published(const ObjectPtr& object, const std::type_info&) {
    if (const auto server = std::dynamic_pointer_cast<plant::Server>(object))
        return make_com<PublishedServer>(server);
    if (const auto item = std::dynamic_pointer_cast<plant::Item>(object))
        return make_com<PublishedItem>(item);
    if (const auto group = std::dynamic_pointer_cast<OPCGroup>(object))
        return make_com<PublishedGroup>(group);
    for (const auto as : {plain<OPCBrowser>, plain<OPCGroups>, plain<OPCItems>})
        if (auto made = as(object)) return made;
    return nullptr;
}

} // namespace

std::vector<IID> published_interfaces() {
    return {IID_IOPCAutoServer, IID_OPCBrowser, IID_IOPCGroups, IID_IOPCGroup, IID_OPCItems, IID_OPCItem};
}

void publish_plant_objects() { set_make_double(published); }

com_ptr<IDispatch> new_server(plant::Plant& plant) { return to_dispatch(plant.make_server()); }

} // namespace brx::server
