#pragma once

#include "forms/text_box.h"
#include "forms/win32/control_peer.h"

namespace brx {

class TextBoxPeer : public ControlPeer {
public:
    TextBoxPeer(FormWindow& window, TextBox& box);
    void notified(WORD code) override;

protected:
    void show(Aspect aspects) override;
    LRESULT handle_message(UINT message, WPARAM wparam, LPARAM lparam) override;
    void move_to(const RECT& place) override;

private:
    void show_box_text();
    LRESULT dialog_code(const MSG* message);
    LRESULT type(WPARAM character, LPARAM details);
    bool take_mouse();
    int line_offset() const;
    LRESULT measure_inside(WPARAM wparam, LPARAM lparam);
    void paint_above() const;

    TextBox& box_;
    std::wstring known_; ///< what the window held when it was last shown or reported
    bool selected_ = false;
    LONG above_ = 0; ///< what is left free within the edge, above the text
};

} // namespace brx
