#include "window/com.h"

#include <array>

namespace sample {

namespace {

std::wstring system_text(HRESULT code) {
    std::array<wchar_t, 512> text{};
    DWORD length =
        FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                       static_cast<DWORD>(code), 0, text.data(), static_cast<DWORD>(text.size()), nullptr);
    while (length > 0 && text[length - 1] <= L' ') --length;
    if (length > 0) return {text.data(), length};
    std::array<wchar_t, 32> number{};
    swprintf(number.data(), number.size(), L"Error 0x%08lX", static_cast<unsigned long>(code));
    return number.data();
}

} // namespace

void check(HRESULT result) {
    if (SUCCEEDED(result)) return;
    Ref<IErrorInfo> information;
    Text description;
    if (GetErrorInfo(0, information.out()) == S_OK) information->GetDescription(description.out());
    std::wstring text = description.text();
    throw Failure{result, text.empty() ? system_text(result) : text};
}

void check_made(HRESULT result) {
    if (FAILED(result)) throw Failure{result, system_text(result), true};
}

HRESULT create_untyped(const wchar_t* class_name, REFIID iid, void** object) {
    CLSID clsid{};
    const HRESULT found = CLSIDFromProgID(class_name, &clsid);
    return FAILED(found) ? found : CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, iid, object);
}

} // namespace sample
