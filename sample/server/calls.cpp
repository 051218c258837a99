#include "server/calls.h"

#include "com/bstr.h"
#include "com/failure.h"
#include "com/guid_text.h"
#include "com/type_info.h"

namespace brx::server {

namespace {

/// "OPCBrowser" of an interface's own name: some have a prefix there.
std::string called(std::string name) {
    for (const char* prefix : {"IOPCAuto", "IOPC"})
        if (name.starts_with(prefix)) return "OPC" + name.substr(std::string(prefix).size());
    return name;
}

/// The member at a position of an interface, by the type library that the program has inside.
std::wstring member_at(REFIID iid, WORD position) {
    const com_ptr<ITypeInfo> info = type_info_of(iid);
    // A dual interface is described as a dispatch interface; what it really is stands behind that.
    com_ptr<ITypeInfo> table;
    HREFTYPE behind = 0;
    if (FAILED(info->GetRefTypeOfImplType(static_cast<UINT>(-1), &behind)) ||
        FAILED(info->GetRefTypeInfo(behind, table.out())))
        table = info;
    Bstr name;
    check(table->GetDocumentation(MEMBERID_NIL, name.out(), nullptr, nullptr, nullptr));
    std::string text = called(name.text());
    FUNCDESC* found = nullptr;
    for (UINT i = 0; SUCCEEDED(table->GetFuncDesc(i, &found)); ++i) {
        const bool is_it = found->oVft == static_cast<SHORT>(position * sizeof(void*));
        if (is_it && SUCCEEDED(table->GetDocumentation(found->memid, name.out(), nullptr, nullptr, nullptr)))
            text += "." + name.text() + (found->invkind == INVOKE_PROPERTYPUT ? "=" : "");
        table->ReleaseFuncDesc(found);
        if (is_it) break;
    }
    return wide(text);
}

} // namespace

Calls::Calls(const Switches& with, const std::filesystem::path& log) : switches(with) {
    if (!log.empty()) log_.open(log, std::ios::app);
}

HRESULT Calls::QueryInterface(REFIID iid, void** object) {
    if (!object) return E_POINTER;
    *object = nullptr;
    if (iid != __uuidof(IUnknown) && iid != __uuidof(IMessageFilter)) return E_NOINTERFACE;
    *object = static_cast<IMessageFilter*>(this);
    AddRef();
    return S_OK;
}

void Calls::window_is_gone() {
    window = nullptr;
    switches.hold = false;
    switches.delay = 0;
}

DWORD Calls::HandleInComingCall(DWORD, HTASK, DWORD, INTERFACEINFO* info) noexcept {
    try {
        return answer_to(*info);
    } catch (...) {
        return SERVERCALL_ISHANDLED; // uncounted, but what is asked for can still be had
    }
}

DWORD Calls::answer_to(const INTERFACEINFO& call) {
    const std::wstring& name = name_of(call);
    if (name.empty()) return SERVERCALL_ISHANDLED;
    if (tries_ < switches.turn_away) {
        ++tries_;
        ++turned_away_;
        return SERVERCALL_RETRYLATER;
    }
    tries_ = 0;
    ++answered_;
    latest_ = name;
    if (log_.is_open()) log_ << utf8_of(std::wstring_view(name)) << std::endl;
    if (answered_ == switches.end_at) end_the_program();
    take_time();
    return SERVERCALL_ISHANDLED;
}

const std::wstring& Calls::name_of(const INTERFACEINFO& info) {
    const auto place = std::pair(guid_text(info.iid), info.wMethod);
    const auto found = names_.find(place);
    if (found != names_.end()) return found->second;
    std::wstring name;
    if (info.iid == __uuidof(IDispatch)) {
        name = L"A late bound one";
    } else {
        try {
            name = member_at(info.iid, info.wMethod);
        } catch (const Error&) {
            // What the system asks for itself, to create an object or to give one back.
        }
    }
    return names_.emplace(place, std::move(name)).first->second;
}

/// As if it had crashed. But Wine goes on sending clients to the class of a process that is gone, so that is
/// taken back.
void Calls::end_the_program() const {
    CoRevokeClassObject(offered);
    TerminateProcess(GetCurrentProcess(), 3);
    for (;;) Sleep(INFINITE);
}

void Calls::take_time() {
    waits_ = true;
    const ULONGLONG begun = GetTickCount64();
    // A person may change both meanwhile.
    for (;;) {
        const ULONGLONG passed = GetTickCount64() - begun;
        if (!switches.hold && passed >= switches.delay) break;
        serve_the_window();
        const ULONGLONG left = switches.hold ? 20 : switches.delay - passed;
        Sleep(static_cast<DWORD>(left < 20 ? left : 20));
    }
    waits_ = false;
}

void Calls::serve_the_window() const {
    MSG message{};
    while (window && PeekMessageW(&message, window, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

} // namespace brx::server
