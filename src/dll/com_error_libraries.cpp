#include "dll/com_error_libraries.h"

#include "com/bstr.h"
#include "com/failure.h"
#include "com/owned_variant.h"
#include "dll/com_object_factory.h"
#include "forms/turn.h"
#include "win32/com_ptr.h"

#include <algorithm>
#include <array>

namespace brx {

namespace {

thread_local bool reporting = false;

/// Reporting an error must not change what the thread knows of it: the host may still want to ask.
class ThreadErrorsKept {
public:
    ThreadErrorsKept() noexcept : last_error_(GetLastError()) { GetErrorInfo(0, information_.out()); }
    ThreadErrorsKept(const ThreadErrorsKept&) = delete;
    ThreadErrorsKept& operator=(const ThreadErrorsKept&) = delete;
    ~ThreadErrorsKept() {
        SetErrorInfo(0, information_.get());
        SetLastError(last_error_);
    }

private:
    DWORD last_error_;
    com_ptr<IErrorInfo> information_;
};

class ReportingNow {
public:
    ReportingNow() noexcept { reporting = true; }
    ReportingNow(const ReportingNow&) = delete;
    ReportingNow& operator=(const ReportingNow&) = delete;
    ~ReportingNow() { reporting = false; }
};

void show(IDispatch& error_object, const ErrorReport& report) {
    std::wstring name = L"Show";
    LPOLESTR names = name.data();
    DISPID member = DISPID_UNKNOWN;
    check(error_object.GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &member));

    // Arguments stand in reverse order.
    const std::array<OwnedVariant, 5> values = {
        OwnedVariant(report.application), OwnedVariant(report.location), OwnedVariant(report.source),
        OwnedVariant(report.description), OwnedVariant(report.number)};
    std::array<VARIANT, 5> arguments{};
    std::transform(values.begin(), values.end(), arguments.begin(),
                   [](const OwnedVariant& each) { return each.get(); });
    DISPPARAMS parameters{arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
    check(error_object.Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr,
                              nullptr, nullptr));
}

void report_to_host(ErrorLibrary library, const ErrorReport& report) {
    const ReportingNow now;
    // It may wait for the user in a box of its own: no timer of a dialog runs into it.
    const CodeTurn code;
    show(*create_host_object(error_class_name(library)).get(), report);
}

void write_for_debugger(const ErrorReport& report) {
    std::string line = told_in_a_line(report);
    std::replace_if(
        line.begin(), line.end(), [](char each) { return each == '\r' || each == '\n' || each == '\0'; },
        ' ');
    OutputDebugStringW(wide(line + "\n").c_str());
}

} // namespace

void ComErrorLibraries::Show(ErrorLibrary library, const ErrorReport& report,
                             const std::function<void()>& otherwise) noexcept {
    const ThreadErrorsKept kept;
    const bool inside_a_report = reporting;
    if (!inside_a_report && attempt([&] { report_to_host(library, report); })) return;
    attempt([&] { write_for_debugger(report); });
    if (!inside_a_report) otherwise();
}

} // namespace brx
