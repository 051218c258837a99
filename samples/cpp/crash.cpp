// A host that crashes: a member of its own faults while a dialog calls it. It writes where all that was, each
// place as the distance from where its module was loaded, and ends; brxResolve of the kit tells function and
// line.
//
//     crash [DLL]     the DLL is not registered when it is named

#include <brxModel.h>
#include <brxOpcDlgs6.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

class Servers : public brxModel::hlxOPCServers {
public:
    HRESULT STDMETHODCALLTYPE get_Count(LONG* count) override {
        volatile LONG* const nowhere = nullptr;
        *count = *nowhere;
        return S_OK;
    }
};

void write_place(std::uintptr_t address) {
    HMODULE module = nullptr;
    wchar_t path[MAX_PATH] = L"";
    if (!GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                                GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                            reinterpret_cast<LPCWSTR>(address), &module))
        return;
    GetModuleFileNameW(module, path, MAX_PATH);
    const wchar_t* name = path;
    for (const wchar_t* each = path; *each; ++each)
        if (*each == L'\\') name = each + 1;
    std::printf("%ls+0x%llx\n", name,
                static_cast<unsigned long long>(address - reinterpret_cast<std::uintptr_t>(module)));
}

// Who called is found by the tables of the system in 64 bits, by the chain of frames in 32.
#ifdef _WIN64
void write_stack(CONTEXT context) {
    for (int depth = 0; depth < 64 && context.Rip != 0; ++depth) {
        // A call is one place before the one that it returns to.
        write_place(static_cast<std::uintptr_t>(depth == 0 ? context.Rip : context.Rip - 1));
        DWORD64 base = 0;
        RUNTIME_FUNCTION* const function = RtlLookupFunctionEntry(context.Rip, &base, nullptr);
        if (function) {
            void* data = nullptr;
            DWORD64 frame = 0;
            RtlVirtualUnwind(UNW_FLAG_NHANDLER, base, context.Rip, function, &context, &data, &frame,
                             nullptr);
        } else {
            context.Rip = *reinterpret_cast<const DWORD64*>(context.Rsp);
            context.Rsp += sizeof(DWORD64);
        }
    }
}
#else
void write_stack(const CONTEXT& context) {
    const auto* const thread = reinterpret_cast<const NT_TIB*>(NtCurrentTeb());
    const auto end = reinterpret_cast<std::uintptr_t>(thread->StackBase);
    write_place(context.Eip);
    std::uintptr_t frame = context.Ebp;
    std::uintptr_t last = context.Esp;
    for (int depth = 0; depth < 64 && frame > last && frame + 2 * sizeof frame <= end; ++depth) {
        const auto* const words = reinterpret_cast<const std::uintptr_t*>(frame);
        write_place(words[1] - 1); // a call is one place before the one that it returns to
        last = frame;
        frame = words[0];
    }
}
#endif

LONG WINAPI write_crash(EXCEPTION_POINTERS* crash) {
    std::printf("Exception 0x%08lx\n", static_cast<unsigned long>(crash->ExceptionRecord->ExceptionCode));
    write_stack(*crash->ContextRecord);
    std::fflush(stdout);
    TerminateProcess(GetCurrentProcess(), 3);
    return EXCEPTION_EXECUTE_HANDLER;
}

_ServerSelect* create(const wchar_t* dll) {
    _ServerSelect* dialog = nullptr;
    if (!dll) {
        CoCreateInstance(CLSID_ServerSelect, nullptr, CLSCTX_INPROC_SERVER, IID__ServerSelect,
                         reinterpret_cast<void**>(&dialog));
        return dialog;
    }
    using Entry = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
    const HMODULE module = LoadLibraryW(dll);
    if (!module) return nullptr;
    const auto entry =
        reinterpret_cast<Entry>(reinterpret_cast<void*>(GetProcAddress(module, "DllGetClassObject")));
    IClassFactory* factory = nullptr;
    if (!entry || FAILED(entry(CLSID_ServerSelect, IID_IClassFactory, reinterpret_cast<void**>(&factory))))
        return nullptr;
    factory->CreateInstance(nullptr, IID__ServerSelect, reinterpret_cast<void**>(&dialog));
    factory->Release();
    return dialog;
}

} // namespace

int main(int, char**) {
    int count = 0;
    wchar_t** const arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    OleInitialize(nullptr);
    SetUnhandledExceptionFilter(write_crash);
    _ServerSelect* const dialog = create(arguments && count > 1 ? arguments[1] : nullptr);
    if (!dialog) {
        std::fputs("The component could not be created.\n", stderr);
        return 1;
    }
    IDispatch* servers = new Servers;
    VARIANT_BOOL chosen = VARIANT_FALSE;
    dialog->Show(&servers, &chosen);
    std::fputs("Nothing crashed.\n", stderr);
    return 1;
}
