// Lets a person choose an OPC server, and an item of it. Ends with 0 when an item was chosen.

#include <windows.h>

#include <brxOpcDlgs6.h>

#include <cstdio>
#include <stdexcept>
#include <string>
#include <utility>

namespace {

void check(HRESULT result) {
    if (FAILED(result)) throw std::runtime_error("error " + std::to_string(result));
}

/// Owns a reference.
template <class Interface> class Ref {
public:
    Ref() = default;
    Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    Ref(const Ref&) = delete;
    Ref& operator=(const Ref&) = delete;
    Ref& operator=(Ref&&) = delete;
    ~Ref() {
        if (object_) object_->Release();
    }
    Interface* get() const { return object_; }
    Interface* operator->() const { return object_; }
    Interface** out() { return &object_; }

private:
    Interface* object_ = nullptr;
};

/// Owns a text.
class Text {
public:
    Text() = default;
    explicit Text(const wchar_t* text) : text_(SysAllocString(text)) {}
    Text(const Text&) = delete;
    Text& operator=(const Text&) = delete;
    ~Text() { SysFreeString(text_); }
    BSTR get() const { return text_; }
    BSTR* out() { return &text_; }

private:
    BSTR text_ = nullptr;
};

VARIANT number(short value) {
    VARIANT argument;
    VariantInit(&argument);
    argument.vt = VT_I2;
    argument.iVal = value;
    return argument;
}

VARIANT text(BSTR value) {
    VARIANT argument;
    VariantInit(&argument);
    argument.vt = VT_BSTR;
    argument.bstrVal = value;
    return argument;
}

/// Calls a member by its name, or reads it, with one argument or none.
VARIANT member(IDispatch* object, const wchar_t* name, const VARIANT* argument = nullptr) {
    auto* spelled = const_cast<LPOLESTR>(name);
    DISPID id = 0;
    check(object->GetIDsOfNames(IID_NULL, &spelled, 1, LOCALE_USER_DEFAULT, &id));
    DISPPARAMS arguments = {const_cast<VARIANT*>(argument), nullptr, argument ? 1u : 0u, 0};
    VARIANT result;
    VariantInit(&result);
    check(object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD | DISPATCH_PROPERTYGET,
                         &arguments, &result, nullptr, nullptr));
    return result;
}

Ref<IDispatch> object_in(IDispatch* object, const wchar_t* name, const VARIANT* argument = nullptr) {
    VARIANT found = member(object, name, argument);
    Ref<IDispatch> result;
    if (found.vt == VT_DISPATCH) *result.out() = found.pdispVal; // takes the reference over
    return result;
}

template <class Interface> Ref<Interface> create(const CLSID& clsid, const IID& iid) {
    Ref<Interface> made;
    check(CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, iid, reinterpret_cast<void**>(made.out())));
    return made;
}

bool pick() {
    // Your program hands over its own servers; these are the sample host's.
    CLSID host_class;
    check(CLSIDFromProgID(L"brxSample.Host", &host_class));
    const Ref<IDispatch> host = create<IDispatch>(host_class, IID_IDispatch);
    const Ref<IDispatch> servers = object_in(host.get(), L"Servers");

    const auto selection = create<_ServerSelect>(CLSID_ServerSelect, IID__ServerSelect);
    IDispatch* handed_over = servers.get();
    VARIANT_BOOL chosen = VARIANT_FALSE;
    check(selection->Show(&handed_over, &chosen));
    if (chosen == VARIANT_FALSE) return false;
    short index = 0;
    check(selection->get_ServerIndex(&index));
    const VARIANT position = number(index);
    const Ref<IDispatch> entry = object_in(servers.get(), L"Item", &position);
    const Ref<IDispatch> server = object_in(entry.get(), L"OPCServer");
    if (!server.get()) throw std::runtime_error("The server is not connected.");

    // Any group of the server will do: the dialog asks it whether the server has the item, and adds nothing.
    const Ref<IDispatch> groups = object_in(server.get(), L"OPCGroups");
    const Text name(L"choosing an item");
    const VARIANT group_name = text(name.get());
    const Ref<IDispatch> group = object_in(groups.get(), L"Add", &group_name);
    const auto leaf = create<_LeafSelect>(CLSID_LeafSelect, IID__LeafSelect);
    check(leaf->Show(server.get(), group.get(), &chosen));
    member(groups.get(), L"Remove", &group_name);
    if (chosen == VARIANT_FALSE) return false;

    Text item;
    check(leaf->get_ItemID(item.out()));
    VARIANT server_name = member(entry.get(), L"ServerName");
    std::printf("%ls: %ls\n", server_name.bstrVal, item.get());
    VariantClear(&server_name);
    return true;
}

} // namespace

int main() {
    int status = 1;
    check(OleInitialize(nullptr));
    try {
        if (pick()) status = 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
    }
    OleUninitialize();
    return status;
}
