#include "objects/error_object.h"

#include "com/bstr.h"
#include "com/dual.h"
#include "objects/site.h"

#include <array>
#include <cstdio>

#include "brxError6.h"
#include "hlxER01.h"

namespace brx::host {

namespace {

/// Failure codes are known by their hexadecimal form, run-time errors by their number.
std::string name_of(LONG number) {
    if (number >= 0) return std::to_string(number);
    std::array<char, 16> code{};
    std::snprintf(code.data(), code.size(), "0x%08lX", static_cast<unsigned long>(number));
    return code.data();
}

template <class Interface> class ErrorObject final : public Dual<Interface> {
public:
    STDMETHODIMP Show(LONG number, BSTR description, BSTR source, BSTR location, BSTR application) override {
        return guard(__uuidof(Interface), [&] {
            const std::string what = text_of(description);
            site().log.add("Error " + name_of(number) + " in " + text_of(location) + ": " + what);
            const std::string text =
                what + " (error " + name_of(number) + ")\r\n\r\nLocation: " + text_of(location) +
                "\r\nSource: " + text_of(source) + "\r\nReported by: " + text_of(application);
            MessageBoxW(GetActiveWindow(), wide(text).c_str(), L"Unexpected Error",
                        MB_OK | MB_ICONERROR | MB_TASKMODAL | MB_SETFOREGROUND);
        });
    }
};

} // namespace

template <class Interface> com_ptr<IDispatch> new_error_object() {
    return make_com<ErrorObject<Interface>>();
}

template com_ptr<IDispatch> new_error_object<_Error>();
template com_ptr<IDispatch> new_error_object<_hlxError>();

} // namespace brx::host
