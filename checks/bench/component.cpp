#include "bench/component.h"

#include "com/failure.h"
#include "win32/module.h"

#include <cstring>
#include <stdexcept>
#include <string>

namespace brx::bench {

namespace {

using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);

GetClassObject load_component() {
    const std::wstring program = module_path();
    const std::wstring file = program.substr(0, program.rfind(L'\\') + 1) + L"" BRX_DLL_FROM_PROGRAM;
    const HMODULE module = LoadLibraryW(file.c_str());
    const FARPROC found = module ? GetProcAddress(module, "DllGetClassObject") : nullptr;
    if (!found) throw std::runtime_error("the component cannot be loaded");
    GetClassObject entry = nullptr;
    static_assert(sizeof entry == sizeof found);
    std::memcpy(&entry, &found, sizeof entry);
    return entry;
}

} // namespace

com_ptr<IUnknown> make_instance(REFCLSID class_id) {
    static const GetClassObject get_class_object = load_component();
    void* made = nullptr;
    check(get_class_object(class_id, IID_IClassFactory, &made));
    const auto factory = com_ptr<IClassFactory>::adopt(static_cast<IClassFactory*>(made));
    check(factory->CreateInstance(nullptr, IID_IUnknown, &made));
    return com_ptr<IUnknown>::adopt(static_cast<IUnknown*>(made));
}

} // namespace brx::bench
