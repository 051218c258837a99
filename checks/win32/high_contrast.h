#pragma once

#include <windows.h>

namespace brx::checks {

/// Where this program has the address of the system's function.
#ifdef _WIN64
extern decltype(&SystemParametersInfoW) parameters_import __asm__("__imp_SystemParametersInfoW");
#else
extern decltype(&SystemParametersInfoW) parameters_import __asm__("__imp__SystemParametersInfoW@16");
#endif

/// While this lives, the system says in this program that a person has chosen high contrast. To choose it
/// would change the looks of everything on a real desktop, and Wine cannot.
class HighContrast {
public:
    HighContrast() {
        system = parameters_import;
        write(answer);
    }
    ~HighContrast() { write(system); }
    HighContrast(const HighContrast&) = delete;
    HighContrast& operator=(const HighContrast&) = delete;

private:
    using Function = decltype(&SystemParametersInfoW);

    static BOOL WINAPI answer(UINT action, UINT number, void* data, UINT changes) {
        const BOOL done = system(action, number, data, changes);
        if (action == SPI_GETHIGHCONTRAST) static_cast<HIGHCONTRASTW*>(data)->dwFlags |= HCF_HIGHCONTRASTON;
        return done;
    }

    static void write(Function function) {
        DWORD protection = 0;
        VirtualProtect(&parameters_import, sizeof function, PAGE_READWRITE, &protection);
        parameters_import = function;
        VirtualProtect(&parameters_import, sizeof function, protection, &protection);
    }

    static inline Function system = nullptr;
};

} // namespace brx::checks
