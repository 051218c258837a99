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

private:
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
    for (const auto as : {plain<OPCBrowser>, plain<OPCGroups>, plain<OPCGroup>, plain<OPCItems>})
        if (auto made = as(object)) return made;
    return nullptr;
}

} // namespace

void publish_plant_objects() { set_make_double(published); }

com_ptr<IDispatch> new_server(plant::Plant& plant) { return to_dispatch(plant.make_server()); }

} // namespace brx::server
