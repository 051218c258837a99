#pragma once

#include "forms/tab_strip.h"
#include "forms/win32/control_peer.h"

namespace brx {

/// Tabs with the edge of the area below them. The area itself is a hole in the window: what lies there is the
/// form's, in front of the tabs or behind them in the tab order, and looks and takes the mouse as anywhere
/// else.
class TabPeer : public ControlPeer {
public:
    TabPeer(FormWindow& window, TabStrip& strip);
    LRESULT notified_of(NMHDR& notification) override;
    void font_changed() override;

protected:
    void show(Aspect aspects) override;
    void move_to(const RECT& place) override;

private:
    void cut_area();

    TabStrip& strip_;
};

} // namespace brx
