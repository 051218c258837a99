#include "objects/error_object.h"

#include "com/bstr.h"
#include "com/dual.h"
#include "common/trap.h"
#include "host/words.h"
#include "objects/site.h"

#include "brxError6.h"
#include "hlxER01.h"

namespace brx::host {

namespace {

constexpr int text_in_box = 0xFFFF;

LRESULT CALLBACK find_box(int code, WPARAM wparam, LPARAM lparam);

class OpenBox;
thread_local OpenBox* innermost = nullptr;

/// An error from when its box is about to open until it has closed, or has not opened.
class OpenBox {
public:
    explicit OpenBox(const ReportedError& of)
        : error(of),
          outer(innermost),
          hook_(SetWindowsHookExW(WH_CBT, find_box, nullptr, GetCurrentThreadId())) {
        innermost = this;
    }
    OpenBox(const OpenBox&) = delete;
    OpenBox& operator=(const OpenBox&) = delete;
    ~OpenBox() {
        UnhookWindowsHookEx(hook_);
        innermost = outer;
        attempt([&] { site().errors.box_closed(error, seconds()); });
    }

    const ReportedError& error;
    std::string text;
    HWND window = nullptr;
    OpenBox* const outer;

private:
    HHOOK hook_;
};

/// The last line is kept free for how many more like it came: a box never grows.
std::string text_of(const OpenBox& box) {
    return box.text + "\r\n\r\n" + site().errors.more_like(box.error) + " ";
}

/// The first window that is made after it was set is the box.
LRESULT CALLBACK find_box(int code, WPARAM wparam, LPARAM lparam) {
    if (code == HCBT_ACTIVATE && innermost && !innermost->window)
        innermost->window = reinterpret_cast<HWND>(wparam);
    return CallNextHookEx(nullptr, code, wparam, lparam);
}

void tell_in_box(const ReportedError& error, BSTR source, BSTR application) {
    OpenBox box(error);
    box.text = error.description + " (error " + number_in_words(error.number) +
               ")\r\n\r\nLocation: " + error.location + "\r\nSource: " + brx::text_of(source) +
               "\r\nReported by: " + brx::text_of(application);
    MessageBoxW(GetActiveWindow(), wide(text_of(box)).c_str(), L"Unexpected Error",
                MB_OK | MB_ICONERROR | MB_TASKMODAL | MB_SETFOREGROUND);
}

void count_in_box(const ReportedError& error) {
    for (const OpenBox* box = innermost; box; box = box->outer)
        if (box->error.number == error.number && box->error.location == error.location)
            SetDlgItemTextW(box->window, text_in_box, wide(text_of(*box)).c_str());
}

template <class Interface> class ErrorObject final : public Dual<Interface> {
public:
    STDMETHODIMP Show(LONG number, BSTR description, BSTR source, BSTR location, BSTR application) override {
        return guard(__uuidof(Interface), [&] {
            const ReportedError error{number, brx::text_of(description), brx::text_of(location)};
            if (!site().errors.add(error, seconds())) return count_in_box(error);
            tell_in_box(error, source, application);
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
