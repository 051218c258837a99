#include "forms/win32/tab_peer.h"

#include "common/error.h"
#include "forms/win32/common_controls.h"
#include "forms/win32/form_window.h"
#include "forms/win32/gdi.h"

#include <commctrl.h>

#include <utility>

namespace brx {

namespace {

/// What a tab control leaves around the area is more than its edge, and has another colour than the form. So
/// much of it is cut away with the area, or less below the tabs, where the edge is further in.
constexpr int edge = 2;
constexpr int upper_edge = 1;

} // namespace

TabPeer::TabPeer(FormWindow& window, TabStrip& strip)
    : ControlPeer(window, strip,
                  {common_control(WC_TABCONTROLW), TCS_FOCUSONBUTTONDOWN | WS_TABSTOP, 0, true}),
      strip_(strip) {
    for (int tab = 1; tab <= strip.count(); ++tab) {
        std::wstring caption = to_wide(strip.caption(tab));
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = caption.data();
        if (send(TCM_INSERTITEMW, static_cast<WPARAM>(tab - 1), reinterpret_cast<LPARAM>(&item)) < 0)
            throw Error(error::out_of_memory);
    }
}

void TabPeer::show(Aspect aspects) {
    ControlPeer::show(aspects);
    if (!has(aspects, Aspect::selection)) return;
    const auto wanted = static_cast<WPARAM>(strip_.selected() - 1);
    if (static_cast<WPARAM>(send(TCM_GETCURSEL)) != wanted) send(TCM_SETCURSEL, wanted);
}

void TabPeer::move_to(const RECT& place) {
    RECT before{};
    GetClientRect(handle(), &before);
    ControlPeer::move_to(place);
    RECT now{};
    GetClientRect(handle(), &now);
    if (!EqualRect(&before, &now)) cut_area();
}

void TabPeer::font_changed() {
    ControlPeer::font_changed();
    if (handle()) cut_area();
}

void TabPeer::cut_area() {
    RECT all{};
    GetClientRect(handle(), &all);
    RECT area = all;
    send(TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&area));
    InflateRect(&area, edge, edge);
    area.top += edge - upper_edge;
    RegionHandle rest(CreateRectRgnIndirect(&all));
    if (area.left < area.right && area.top < area.bottom) {
        const RegionHandle hole(CreateRectRgnIndirect(&area));
        CombineRgn(rest.get(), rest.get(), hole.get(), RGN_DIFF);
    }
    // The window owns its region.
    if (SetWindowRgn(handle(), rest.get(), TRUE)) static_cast<void>(rest.release());
}

LRESULT TabPeer::notified_of(NMHDR& notification) {
    if (notification.code != TCN_SELCHANGE || window().is_showing()) return 0;
    const int tab = static_cast<int>(send(TCM_GETCURSEL)) + 1;
    if (tab != strip_.selected() && !window().deliver([&] { return strip_.user_select(tab); }))
        refresh(Aspect::selection);
    return 0;
}

} // namespace brx
