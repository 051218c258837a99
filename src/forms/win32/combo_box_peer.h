#pragma once

#include "forms/list_control.h"
#include "forms/win32/control_peer.h"

namespace brx {

/// A drop-down list as the system's.
class ComboBoxPeer : public ControlPeer {
public:
    ComboBoxPeer(FormWindow& window, ComboBox& list);
    void notified(WORD code) override;
    void font_changed() override;
    void draw(const DRAWITEMSTRUCT& part) override;

protected:
    void show(Aspect aspects) override;
    void move_to(const RECT& place) override;

private:
    void show_lines();
    void fit_drop_down();
    void report_selection();
    void select(int index);

    ComboBox& list_;
};

} // namespace brx
