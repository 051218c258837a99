#include "com/failure.h"

#include "com/bstr.h"
#include "common/call_gate.h"
#include "common/trace.h"
#include "win32/com_ptr.h"

#include <array>
#include <typeinfo>

namespace brx {

namespace {

constexpr int facility_of_run_time_errors = FACILITY_CONTROL;

std::string message_of(DWORD code) {
    std::array<wchar_t, 1024> text{};
    DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code,
                                  0, text.data(), static_cast<DWORD>(text.size()), nullptr);
    while (length > 0 && text[length - 1] <= L' ') --length;
    return text_of(text.data(), length);
}

std::string system_text(HRESULT code) {
    if (HRESULT_FACILITY(code) == facility_of_run_time_errors) return error_text(HRESULT_CODE(code));
    std::string text = message_of(static_cast<DWORD>(code));
    if (text.empty() && HRESULT_FACILITY(code) == FACILITY_WIN32)
        text = message_of(static_cast<DWORD>(HRESULT_CODE(code)));
    return text.empty() ? error_text(code) : text;
}

/// Always fetched, so that what one call left is not taken for the next one's; told only when the object says
/// that it leaves error information for this interface.
com_ptr<IErrorInfo> information_from(IUnknown* object, REFIID iid) {
    com_ptr<IErrorInfo> information;
    if (GetErrorInfo(0, information.out()) != S_OK || !object) return nullptr;
    const auto supported = com_ptr<IUnknown>(object).as<ISupportErrorInfo>();
    if (!supported || supported->InterfaceSupportsErrorInfo(iid) != S_OK) return nullptr;
    return information;
}

Error error_left_by(IUnknown* object, REFIID iid, HRESULT result) {
    Bstr description;
    Bstr source;
    if (const auto information = information_from(object, iid)) {
        information->GetDescription(description.out());
        information->GetSource(source.out());
    }
    return error_of(result, description.text(), source.text());
}

/// "N3brx10hlxOPCTestE" is what the compilers call brx::hlxOPCTest.
std::string name_of(const std::type_info& model) {
    const std::string coded = model.name();
    const std::size_t begin = coded.find_first_not_of("0123456789", 5);
    return coded.starts_with("N3brx") && begin < coded.size() ? coded.substr(begin, coded.size() - begin - 1)
                                                              : coded;
}

void leave(const Error& error, REFIID iid) {
    com_ptr<ICreateErrorInfo> created;
    check(CreateErrorInfo(created.out()));
    check(created->SetGUID(iid));
    check(created->SetSource(Bstr(error.source()).get()));
    check(created->SetDescription(Bstr(error.description()).get()));
    SetErrorInfo(0, created.as<IErrorInfo>().get());
}

} // namespace

Error error_of(HRESULT code, const std::string& description, const std::string& source) {
    const bool run_time_error =
        HRESULT_FACILITY(code) == facility_of_run_time_errors && HRESULT_CODE(code) != 0;
    return Error(run_time_error ? HRESULT_CODE(code) : code,
                 description.empty() ? system_text(code) : description,
                 source.empty() ? component_name : source);
}

void check(HRESULT result) {
    if (FAILED(result)) throw error_of(result);
}

void check(HRESULT result, IUnknown* object, REFIID iid) {
    if (FAILED(result)) throw error_left_by(object, iid, result);
}

void check_call(HRESULT result, IUnknown* object, REFIID iid, const std::type_info& model,
                const char* member) {
    if (SUCCEEDED(result)) return;
    // Cancelled, or turned away and not tried again.
    if (result == RPC_E_CALL_CANCELED || result == RPC_E_CALL_REJECTED ||
        result == RPC_E_SERVERCALL_RETRYLATER)
        call_gate::expect_no_stop();
    const Error error = error_left_by(object, iid, result);
    const std::string procedure = current_location();
    trace::line([&] {
        return "call of " + name_of(model) + "." + member + " failed: error " +
               std::to_string(error.number()) + ": " + error.description() + " (" + error.source() +
               "), in " + (procedure.empty() ? "a step that may fail" : procedure);
    });
    throw error;
}

HRESULT code_of(const Error& error) {
    const std::int32_t number = error.number();
    if (number > 0 && number <= 0xFFFF)
        return MAKE_HRESULT(SEVERITY_ERROR, facility_of_run_time_errors, number);
    return FAILED(number) ? number : E_FAIL;
}

HRESULT raise(const Error& error, REFIID iid) noexcept {
    try {
        leave(error, iid);
    } catch (...) {
        // The code alone must do.
        SetErrorInfo(0, nullptr);
    }
    return code_of(error);
}

} // namespace brx
