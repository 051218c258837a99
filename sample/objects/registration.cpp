#include "objects/registration.h"

#include "com/failure.h"
#include "com/guid_text.h"
#include "dll/registry.h"
#include "objects/classes.h"
#include "win32/module.h"

#include <string>

namespace brx::host {

namespace {

const std::wstring classes_path = std::wstring(classes_key) + L"\\";

struct Keys {
    explicit Keys(const NamedClass& named)
        : id(guid_text(named.made.clsid)),
          class_key(classes_path + L"CLSID\\" + id),
          server_key(class_key + L"\\InprocServer32"),
          name_key(classes_path + named.name) {}

    std::wstring id;
    std::wstring class_key;
    std::wstring server_key;
    std::wstring name_key;
};

} // namespace

HRESULT register_classes(HKEY root) noexcept {
    return guard(IID_NULL, [&] {
        RegistryChange change(root);
        for (const NamedClass& each : classes()) {
            const Keys keys(each);
            change.write({keys.class_key, L""}, each.description);
            change.write({keys.class_key + L"\\ProgID", L""}, each.name);
            change.write({keys.server_key, L""}, module_path());
            change.write({keys.server_key, L"ThreadingModel"}, L"Apartment");
            change.write({keys.name_key, L""}, each.description);
            change.write({keys.name_key + L"\\CLSID", L""}, keys.id);
        }
        change.keep();
    });
}

HRESULT unregister_classes(HKEY root) noexcept {
    return guard(IID_NULL, [&] {
        for (const NamedClass& each : classes()) {
            const Keys keys(each);
            const std::wstring file = registry_text(root, {keys.server_key, L""});
            if (CompareStringOrdinal(file.c_str(), -1, module_path().c_str(), -1, TRUE) != CSTR_EQUAL)
                continue;
            remove_from_registry(root, {keys.name_key + L"\\CLSID", L""});
            remove_from_registry(root, {keys.name_key, L""});
            remove_from_registry(root, {keys.class_key + L"\\ProgID", L""});
            remove_from_registry(root, {keys.server_key, L"ThreadingModel"});
            remove_from_registry(root, {keys.server_key, L""});
            remove_from_registry(root, {keys.class_key, L""});
        }
    });
}

} // namespace brx::host
