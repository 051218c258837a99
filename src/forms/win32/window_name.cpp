#include "forms/win32/window_name.h"

#include "forms/win32/wide.h"

namespace brx {

namespace {
constexpr const wchar_t* property = L"brx.Name";
}

bool set_window_name(HWND window, const std::string& name) {
    const ATOM atom = GlobalAddAtomW(to_wide(name).c_str());
    if (atom != 0 && SetPropW(window, property, reinterpret_cast<HANDLE>(static_cast<ULONG_PTR>(atom))))
        return true;
    if (atom != 0) GlobalDeleteAtom(atom);
    return false;
}

void remove_window_name(HWND window) {
    const auto atom = static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(RemovePropW(window, property)));
    if (atom != 0) GlobalDeleteAtom(atom);
}

} // namespace brx
