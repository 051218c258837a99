#include "bench/floor.h"

#include "bench/plain_window.h"

#include <commctrl.h>

namespace brx::bench {

namespace {

/// Asks for every name and throws it away. Gives how many there were.
int read_names(OPCBrowser& browser) {
    LONG count = 0;
    browser.get_Count(&count);
    for (LONG i = 1; i <= count; ++i) {
        BSTR name = nullptr;
        browser.Item(number(i), &name);
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

Opening read_list(const AddressSpace& space) {
    Opening result;
    const auto server = make_server(space);
    const Cost start = spent();
    read_leaves(*browser_of(*server.get()).get());
    result.shown = spent() - start;
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
