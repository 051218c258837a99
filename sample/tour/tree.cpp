#include "tour/tree.h"

#include "tour/lent.h"

#include <commctrl.h>

#include <cstddef>
#include <cstring>

namespace tour {

namespace {

struct ItemText {
    TVITEMW item;
    wchar_t text[300];
};

} // namespace

Tree::Item Tree::neighbour(WPARAM relation, Item item) const {
    return ask(window_, TVM_GETNEXTITEM, relation, item);
}

std::wstring Tree::text_of(Item item) const {
    ItemText wanted{};
    const Lent<ItemText> there(program_, wanted);
    wanted.item.mask = TVIF_TEXT | TVIF_HANDLE;
    wanted.item.hItem = reinterpret_cast<HTREEITEM>(item);
    wanted.item.pszText = reinterpret_cast<LPWSTR>(there.address() + LPARAM{offsetof(ItemText, text)});
    wanted.item.cchTextMax = static_cast<int>(std::size(wanted.text));
    there.write(wanted);
    ask(window_, TVM_GETITEMW, 0, there.address());
    return there.read().text;
}

Lines Tree::rows() const {
    Lines rows;
    for (Item item = neighbour(TVGN_ROOT, 0); item; item = neighbour(TVGN_NEXTVISIBLE, item)) {
        std::wstring row = text_of(item);
        for (Item parent = neighbour(TVGN_PARENT, item); parent; parent = neighbour(TVGN_PARENT, parent))
            row.insert(0, L"  ");
        rows.push_back(row);
    }
    return rows;
}

RECT Tree::place_of(const std::wstring& text) const {
    for (Item item = neighbour(TVGN_ROOT, 0); item; item = neighbour(TVGN_NEXTVISIBLE, item)) {
        if (text_of(item) != text) continue;
        RECT place{};
        std::memcpy(&place, &item, sizeof item); // where the answer comes, the question goes
        const Lent<RECT> there(program_, place);
        if (ask(window_, TVM_GETITEMRECT, TRUE, there.address())) return there.read();
    }
    throw Disappointment{L"there is no node " + text};
}

void Tree::click_node(const std::wstring& text) const {
    const RECT place = place_of(text);
    click(window_, {(place.left + place.right) / 2, (place.top + place.bottom) / 2});
}

void Tree::click_sign(const std::wstring& text) const {
    const RECT place = place_of(text);
    const auto indent = static_cast<LONG>(ask(window_, TVM_GETINDENT));
    click(window_, {place.left - indent / 2, (place.top + place.bottom) / 2});
}

} // namespace tour
