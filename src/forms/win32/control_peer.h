#pragma once

#include "forms/control.h"
#include "forms/win32/wide.h"

#include <windows.h>

#include <memory>
#include <string>

namespace brx {

class FormWindow;

/// What a control is made of.
struct NativeControl {
    const wchar_t* window_class;
    DWORD style = 0;
    DWORD ex_style = 0;
    bool text_is_hidden = false; ///< its window's text shows nowhere: there readers find what it is called
};

/// A control as a window, a direct child of the form's.
class ControlPeer : public Peer {
public:
    ~ControlPeer() override;

    Control& control() const { return control_; }
    /// Null once the window is destroyed.
    HWND handle() const { return handle_; }

    void refresh(Aspect aspects) final;

    /// The window reports this (the high word of WM_COMMAND).
    virtual void notified(WORD code) { static_cast<void>(code); }
    /// The window reports this with WM_NOTIFY, and goes by the answer.
    virtual LRESULT notified_of(NMHDR& notification) {
        static_cast<void>(notification);
        return 0;
    }
    /// A part of it is to be drawn, of a control that does not draw itself.
    virtual void draw(const DRAWITEMSTRUCT& part) { static_cast<void>(part); }
    /// Enter or an accelerator acts now: what a person has begun to type counts.
    virtual void finish_typing() {}
    /// The form has another font or scale.
    virtual void font_changed();
    /// Sets its colours and returns the background; null leaves both to the system.
    HBRUSH set_colors(HDC dc) const;

protected:
    ControlPeer(FormWindow& window, Control& control, const NativeControl& native);

    /// Brings the window up to date. What the window reports meanwhile is an echo.
    virtual void show(Aspect aspects);
    virtual LRESULT handle_message(UINT message, WPARAM wparam, LPARAM lparam);
    virtual void move_to(const RECT& place);
    /// Whether the background of a disabled one is left to us.
    virtual bool colored_when_disabled() const { return false; }

    FormWindow& window() const { return window_; }
    void show_text(const std::string& text);
    LRESULT send(UINT message, WPARAM wparam = 0, LPARAM lparam = 0) const {
        return SendMessageW(handle_, message, wparam, lparam);
    }
    /// The same without asking this peer first, for messages that are sent by the thousand.
    LRESULT send_directly(UINT message, WPARAM wparam = 0, LPARAM lparam = 0) const {
        return CallWindowProcW(native_procedure_, handle_, message, wparam, lparam);
    }

private:
    /// Not the common controls' way to put one before a window's own, by which each message asks for a
    /// property of the window three times: on some systems that is a question to another process.
    static LRESULT CALLBACK procedure(HWND handle, UINT message, WPARAM wparam, LPARAM lparam) noexcept;

    FormWindow& window_;
    Control& control_;
    HWND handle_ = nullptr;
    WNDPROC native_procedure_ = DefWindowProcW;
    bool closing_ = false;
};

/// The peer that suits the control's kind.
std::unique_ptr<Peer> make_peer(FormWindow& window, Control& control);

} // namespace brx
