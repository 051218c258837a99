#include "objects/wrapper_source.h"

#include "com/bstr.h"
#include "com/com_object.h"
#include "com/failure.h"
#include "com/owned_variant.h"

#include <OPCAutomation.h>

namespace brx::host {

namespace {

constexpr const wchar_t* wrapper_class = L"OPC.Automation";
constexpr LONG good = 0xC0; ///< of an item's quality

com_ptr<IOPCAutoServer> new_wrapper() {
    CLSID clsid{};
    check(CLSIDFromProgID(wrapper_class, &clsid));
    com_ptr<IOPCAutoServer> server;
    check(CoCreateInstance(clsid, nullptr, CLSCTX_ALL, __uuidof(IOPCAutoServer),
                           reinterpret_cast<void**>(server.out())));
    return server;
}

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

std::optional<Variant> WrapperSource::value_of(const ObjectPtr& item) {
    const auto* const held = dynamic_cast<const ComHolder*>(item.get());
    const auto wrapper = held ? held->dispatch().as<::OPCItem>() : com_ptr<::OPCItem>();
    LONG quality = 0;
    if (!wrapper || FAILED(wrapper->get_Quality(&quality)) || (quality & good) != good) return std::nullopt;
    OwnedVariant value;
    check(wrapper->get_Value(value.out()), wrapper.get(), __uuidof(::OPCItem));
    return brx::value_of(value.get());
}

void WrapperSource::disconnect(const ObjectPtr& server) noexcept {
    const auto* const held = dynamic_cast<const ComHolder*>(server.get());
    if (!held) return;
    if (const auto wrapper = held->dispatch().as<IOPCAutoServer>()) wrapper->Disconnect();
}

} // namespace brx::host
