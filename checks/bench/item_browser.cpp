#include "bench/item_browser.h"

#include "com/failure.h"
#include "com/module.h"

#include <commctrl.h>

#include <brxOpcDlgs6.h>

#include <cstring>
#include <stdexcept>

namespace brx::bench {

namespace {

using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);

GetClassObject load_component() {
    const std::wstring program = module_path();
    const std::wstring file = program.substr(0, program.rfind(L'\\') + 1) + L"" BRX_DLL_FROM_PROGRAM;
    const HMODULE module = LoadLibraryW(file.c_str());
    const FARPROC found = module ? GetProcAddress(module, "DllGetClassObject") : nullptr;
    if (!found) throw std::runtime_error("the component cannot be loaded");
    GetClassObject entry = nullptr;
    static_assert(sizeof entry == sizeof found);
    std::memcpy(&entry, &found, sizeof entry);
    return entry;
}

com_ptr<_LeafSelect> make_leaf_select() {
    static const GetClassObject get_class_object = load_component();
    com_ptr<IClassFactory> factory;
    void* made = nullptr;
    check(get_class_object(CLSID_LeafSelect, IID_IClassFactory, &made));
    factory = com_ptr<IClassFactory>::adopt(static_cast<IClassFactory*>(made));
    check(factory->CreateInstance(nullptr, __uuidof(_LeafSelect), &made));
    return com_ptr<_LeafSelect>::adopt(static_cast<_LeafSelect*>(made));
}

/// What happens to the dialog while it is open. A timer of the thread's own drives it: its messages come when
/// no other message is left.
class Visit {
public:
    explicit Visit(const AddressSpace& space)
        : space_(space), timer_(SetTimer(nullptr, 0, USER_TIMER_MINIMUM, tick)) {
        current_ = this;
    }
    ~Visit() {
        KillTimer(nullptr, timer_);
        current_ = nullptr;
    }
    Visit(const Visit&) = delete;
    Visit& operator=(const Visit&) = delete;

    const Opening& opening() const { return opening_; }
    bool complete() const { return complete_; }

private:
    static void CALLBACK tick(HWND, UINT, UINT_PTR, DWORD) {
        const Cost cost = spent();
        if (current_) current_->next(cost);
    }

    void next(const Cost& cost) {
        if (!dialog_) {
            opening_.shown = cost - start_;
            opening_.bytes = private_bytes();
            dialog_ = GetActiveWindow();
            if (count(WC_LISTBOXW, LB_GETCOUNT) != space_.leaves) return close();
            if (space_.branches > 0) return expand();
        } else {
            opening_.expanded = cost - start_;
        }
        complete_ = count(WC_TREEVIEWW, TVM_GETCOUNT) >= space_.branches + space_.sub_branches;
        close();
    }

    void expand() {
        const HWND tree = FindWindowExW(dialog_, nullptr, WC_TREEVIEWW, nullptr);
        const LRESULT first = SendMessageW(tree, TVM_GETNEXTITEM, TVGN_ROOT, 0);
        start_ = spent();
        SendMessageW(tree, TVM_EXPAND, TVE_EXPAND, first);
    }

    void close() {
        KillTimer(nullptr, timer_);
        PostMessageW(dialog_, WM_CLOSE, 0, 0);
    }

    LRESULT count(const wchar_t* window_class, UINT message) const {
        return SendMessageW(FindWindowExW(dialog_, nullptr, window_class, nullptr), message, 0, 0);
    }

    static inline Visit* current_ = nullptr;

    AddressSpace space_;
    UINT_PTR timer_;
    Cost start_ = spent();
    HWND dialog_ = nullptr;
    bool complete_ = false;
    Opening opening_;
};

} // namespace

Opening open_item_browser(const AddressSpace& space) {
    const auto server = make_server(space);
    const auto group = make_group();
    const auto browser = make_leaf_select();
    VARIANT_BOOL confirmed = VARIANT_FALSE;
    const Visit visit(space);
    check(browser->Show(server.get(), group.get(), &confirmed));
    if (!visit.complete()) throw std::runtime_error("the dialog did not show the address space");
    return visit.opening();
}

} // namespace brx::bench
