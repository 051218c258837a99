#include "com/type_info.h"

#include "com/failure.h"
#include "win32/module.h"
#include "win32/this_module.h"

#include <mutex>
#include <string>

namespace brx {

namespace {

BOOL CALLBACK note_number(HMODULE, const wchar_t*, wchar_t* name, LONG_PTR numbers) {
    if (IS_INTRESOURCE(name))
        reinterpret_cast<std::vector<ULONG_PTR>*>(numbers)->push_back(reinterpret_cast<ULONG_PTR>(name));
    return TRUE;
}

} // namespace

std::shared_ptr<const TypeLibraries> TypeLibraries::open() {
    // Weak, so that nothing of the system's is left open when the module goes.
    static std::mutex alone;
    static std::weak_ptr<const TypeLibraries> opened;
    const std::lock_guard lock(alone);
    if (auto libraries = opened.lock()) return libraries;

    const auto libraries = std::make_shared<TypeLibraries>();
    std::vector<ULONG_PTR> numbers;
    EnumResourceNamesW(this_module(), L"TYPELIB", note_number, reinterpret_cast<LONG_PTR>(&numbers));
    for (const ULONG_PTR number : numbers) {
        const std::wstring place = module_path() + L"\\" + std::to_wstring(number);
        com_ptr<ITypeLib> library;
        check(LoadTypeLibEx(place.c_str(), REGKIND_NONE, library.out()));
        libraries->libraries_.push_back(std::move(library));
    }
    opened = libraries;
    return libraries;
}

com_ptr<ITypeInfo> TypeLibraries::type_info(REFGUID guid) const {
    com_ptr<ITypeInfo> found;
    for (const auto& library : libraries_)
        if (SUCCEEDED(library->GetTypeInfoOfGuid(guid, found.out()))) return found;
    throw error_of(TYPE_E_ELEMENTNOTFOUND);
}

com_ptr<ITypeInfo> type_info_of(REFGUID guid) { return TypeLibraries::open()->type_info(guid); }

} // namespace brx
