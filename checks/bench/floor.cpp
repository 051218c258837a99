#include "bench/floor.h"

#include "forms/win32/visual_styles.h"

#include <commctrl.h>

#include <algorithm>

namespace brx::bench {

namespace {

/// A window with a native control in it, of the same kind as the dialog's.
class PlainWindow {
public:
    PlainWindow(const wchar_t* control_class, DWORD style)
        : window_(CreateWindowExW(0, WC_DIALOG, L"", WS_OVERLAPPEDWINDOW, 100, 100, 600, 500, nullptr,
                                  nullptr, nullptr, nullptr)),
          control_(CreateWindowExW(WS_EX_CLIENTEDGE, control_class, L"", WS_CHILD | WS_VISIBLE | style, 10,
                                   10, 250, 350, window_, nullptr, nullptr, nullptr)),
          procedure_(reinterpret_cast<WNDPROC>(GetWindowLongPtrW(control_, GWLP_WNDPROC))) {
        SetWindowLongPtrW(window_, DWLP_DLGPROC, reinterpret_cast<LONG_PTR>(answer));
        send(WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)));
    }
    ~PlainWindow() { DestroyWindow(window_); }
    PlainWindow(const PlainWindow&) = delete;
    PlainWindow& operator=(const PlainWindow&) = delete;

    LRESULT send(UINT message, WPARAM wparam = 0, LPARAM lparam = 0) const {
        return CallWindowProcW(procedure_, control_, message, wparam, lparam);
    }
    void show() const {
        ShowWindow(window_, SW_SHOW);
        SetFocus(control_);
        serve();
    }
    /// Until there is nothing more to do.
    static void serve() {
        MSG message{};
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }

private:
    static INT_PTR CALLBACK answer(HWND, UINT, WPARAM, LPARAM) { return FALSE; }

    VisualStyles styles_;
    HWND window_;
    HWND control_;
    WNDPROC procedure_;
};

VARIANT variant(LONG value) {
    VARIANT result{};
    V_VT(&result) = VT_I4;
    V_I4(&result) = value;
    return result;
}

/// Asks for every name and throws it away. Gives how many there were.
int read_names(OPCBrowser& browser) {
    LONG count = 0;
    browser.get_Count(&count);
    for (LONG i = 1; i <= count; ++i) {
        BSTR name = nullptr;
        browser.Item(variant(i), &name);
        SysFreeString(name);
    }
    return static_cast<int>(count);
}

com_ptr<OPCBrowser> browser_of(IOPCAutoServer& server) {
    BSTR text = nullptr;
    server.get_ServerNode(&text);
    SysFreeString(text);
    server.get_ServerName(&text);
    SysFreeString(text);
    com_ptr<OPCBrowser> browser;
    server.CreateBrowser(browser.out());
    return browser;
}

/// What the dialog does before it knows which names it has to ask for.
void look_at_root(OPCBrowser& browser) {
    LONG answer = 0;
    browser.MoveToRoot();
    browser.ShowBranches();
    browser.get_Count(&answer);
    browser.get_Organization(&answer);
    browser.MoveToRoot();
}

int read_leaves(OPCBrowser& browser) {
    look_at_root(browser);
    VARIANT all{};
    V_VT(&all) = VT_BOOL;
    V_BOOL(&all) = VARIANT_TRUE;
    browser.ShowLeafs(all);
    return read_names(browser);
}

int read_root(OPCBrowser& browser) {
    look_at_root(browser);
    browser.ShowBranches();
    return read_names(browser);
}

int read_branch(OPCBrowser& browser) {
    LONG answer = 0;
    browser.get_Organization(&answer);
    browser.MoveToRoot();
    SAFEARRAY* path = SafeArrayCreateVector(VT_BSTR, 0, 1);
    LONG first = 0;
    SafeArrayPutElement(path, &first, SysAllocString(Names::of_branches().of(1).c_str()));
    browser.MoveTo(&path);
    SafeArrayDestroy(path);
    browser.ShowBranches();
    return read_names(browser);
}

void fill_list(const PlainWindow& list, int count) {
    Names names = Names::of_leaves();
    // Reserved before the first line it would be given back, and a long list take many times as long.
    const int reserve_at = std::min(count, 40'000);
    list.send(WM_SETREDRAW, FALSE);
    for (int i = 1; i <= count; ++i) {
        if (i == reserve_at)
            list.send(LB_INITSTORAGE, static_cast<WPARAM>(count - i + 1),
                      static_cast<LPARAM>(count - i + 1) *
                          static_cast<LPARAM>((names.of(i).size() + 1) * sizeof(wchar_t)));
        list.send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(names.of(i).c_str()));
    }
    list.send(WM_SETREDRAW, TRUE);
}

HTREEITEM fill_tree(const PlainWindow& tree, HTREEITEM parent, Names names, int count) {
    HTREEITEM first = nullptr;
    TVINSERTSTRUCTW insert{};
    insert.hParent = parent;
    insert.hInsertAfter = TVI_FIRST;
    insert.item.mask = TVIF_TEXT | TVIF_CHILDREN;
    insert.item.cChildren = 1; // shows the mark without a placeholder
    tree.send(WM_SETREDRAW, FALSE);
    for (int i = 1; i <= count; ++i) {
        insert.item.pszText = const_cast<wchar_t*>(names.of(i).c_str());
        insert.hInsertAfter =
            reinterpret_cast<HTREEITEM>(tree.send(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
        if (!first) first = insert.hInsertAfter;
    }
    tree.send(WM_SETREDRAW, TRUE);
    return first;
}

} // namespace

Opening open_list(const AddressSpace& space) {
    Opening result;
    const auto server = make_server(space);
    const Cost start = spent();
    const PlainWindow list(WC_LISTBOXW, LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_HSCROLL);
    fill_list(list, read_leaves(*browser_of(*server.get()).get()));
    list.show();
    result.shown = spent() - start;
    result.bytes = private_bytes();
    return result;
}

Opening open_tree(const AddressSpace& space) {
    Opening result;
    const auto server = make_server(space);
    Cost start = spent();
    const PlainWindow tree(WC_TREEVIEWW, TVS_HASLINES | TVS_HASBUTTONS | TVS_LINESATROOT | TVS_SHOWSELALWAYS);
    const auto browser = browser_of(*server.get());
    const HTREEITEM first = fill_tree(tree, TVI_ROOT, Names::of_branches(), read_root(*browser.get()));
    tree.show();
    result.shown = spent() - start;

    start = spent();
    fill_tree(tree, first, Names::of_sub_branches(), read_branch(*browser.get()));
    tree.send(TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(first));
    tree.send(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(first));
    PlainWindow::serve();
    result.expanded = spent() - start;
    result.bytes = private_bytes();
    return result;
}

} // namespace brx::bench
