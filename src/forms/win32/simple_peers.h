#pragma once

#include "forms/button.h"
#include "forms/check_box.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/win32/control_peer.h"

namespace brx {

/// Labels that are data show what fits of it, and the whole as a tip.
class LabelPeer : public ControlPeer {
public:
    LabelPeer(FormWindow& window, Label& label);

protected:
    void show(Aspect aspects) override;
    void move_to(const RECT& place) override;
    LRESULT handle_message(UINT message, WPARAM wparam, LPARAM lparam) override;

private:
    void show_tip();

    Label& label_;
};

class ButtonPeer : public ControlPeer {
public:
    ButtonPeer(FormWindow& window, Button& button);
    void notified(WORD code) override;

protected:
    LRESULT handle_message(UINT message, WPARAM wparam, LPARAM lparam) override;

private:
    Button& button_;
};

class CheckBoxPeer : public ControlPeer {
public:
    CheckBoxPeer(FormWindow& window, CheckBox& box);
    void notified(WORD code) override;

protected:
    void show(Aspect aspects) override;

private:
    CheckBox& box_;
};

/// The line around a group. The controls in it are the form's children. They come after it in the tab order,
/// so it lies before them and has to be transparent: they do not draw over what lies before them.
class FramePeer : public ControlPeer {
public:
    FramePeer(FormWindow& window, Frame& frame);

protected:
    void move_to(const RECT& place) override;
};

class PanelPeer : public ControlPeer {
public:
    PanelPeer(FormWindow& window, Panel& panel);

protected:
    void show(Aspect aspects) override;

private:
    Panel& panel_;
};

} // namespace brx
