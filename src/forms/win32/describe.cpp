#include "forms/win32/describe.h"

#include "forms/description.h"
#include "forms/win32/wide.h"

#include <algorithm>

namespace brx {

namespace {
constexpr UINT patience = 5'000; ///< milliseconds, for a window that asks and then hangs
}

UINT describe_message() {
    static const UINT message = RegisterWindowMessageW(L"brx.Describe");
    return message;
}

LRESULT describe(const Form& form, HWND window, WPARAM asking, LPARAM most_lines) {
    const int most = most_lines < 0 ? Reading::all_lines
                                    : static_cast<int>(std::min<LPARAM>(most_lines, Reading::all_lines));
    std::wstring text = to_wide(description_of(form, most));
    COPYDATASTRUCT answer{};
    answer.dwData = describe_message();
    answer.cbData = static_cast<DWORD>(text.size() * sizeof(wchar_t));
    answer.lpData = text.data();
    DWORD_PTR taken = FALSE;
    SendMessageTimeoutW(reinterpret_cast<HWND>(asking), WM_COPYDATA, reinterpret_cast<WPARAM>(window),
                        reinterpret_cast<LPARAM>(&answer), SMTO_ABORTIFHUNG, patience, &taken);
    return taken == TRUE ? 1 : 0;
}

} // namespace brx
