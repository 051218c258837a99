#include "bench/item_browser.h"

#include "bench/component.h"
#include "bench/when_idle.h"

#include "com/failure.h"

#include <commctrl.h>

#include <brxOpcDlgs6.h>

#include <stdexcept>

namespace brx::bench {

namespace {

/// What happens to the dialog while it is open.
class Visit {
public:
    explicit Visit(const AddressSpace& space) : space_(space) {}

    const Opening& opening() const { return opening_; }
    bool complete() const { return complete_; }

private:
    void next(const Cost& cost) {
        if (!dialog_) {
            opening_.shown = cost - start_;
            opening_.bytes = private_bytes();
            dialog_ = GetActiveWindow();
            if (count(WC_LISTVIEWW, LVM_GETITEMCOUNT) != space_.leaves) return close();
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
        idle_.stop();
        PostMessageW(dialog_, WM_CLOSE, 0, 0);
    }

    LRESULT count(const wchar_t* window_class, UINT message) const {
        return SendMessageW(FindWindowExW(dialog_, nullptr, window_class, nullptr), message, 0, 0);
    }

    AddressSpace space_;
    Cost start_ = spent();
    HWND dialog_ = nullptr;
    bool complete_ = false;
    Opening opening_;
    WhenIdle idle_{[this](const Cost& cost) { next(cost); }};
};

} // namespace

Opening open_item_browser(const AddressSpace& space) {
    const auto server = make_server(space);
    const auto group = make_group();
    const auto browser = make_instance(CLSID_LeafSelect).as<_LeafSelect>();
    VARIANT_BOOL confirmed = VARIANT_FALSE;
    const Visit visit(space);
    check(browser->Show(server.get(), group.get(), &confirmed));
    if (!visit.complete()) throw std::runtime_error("the dialog did not show the address space");
    return visit.opening();
}

} // namespace brx::bench
