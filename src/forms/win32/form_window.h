#pragma once

#include "common/trap.h"
#include "forms/form.h"
#include "forms/held_deeds.h"
#include "forms/win32/control_peer.h"
#include "forms/win32/palette.h"
#include "forms/win32/visual_styles.h"

#include <windows.h>

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace brx {

class Win32Engine;

/// An open form: a dialog window with a window for each control in it, in tab order.
class FormWindow : public Peer {
public:
    /// `owner` is the window that it will lie over, or null. Error 7 when the system has no room for it.
    FormWindow(Win32Engine& engine, Form& form, HWND owner);
    ~FormWindow() override;

    /// Null once the window is destroyed.
    HWND handle() const { return handle_; }
    Form& form() const { return form_; }

    /// Puts it on the screen, with the focus where the form has it.
    void open();
    void refresh(Aspect aspects) override;
    /// Deals with a message from the queue.
    void deal_with(MSG message);
    /// Does the next of what a person did while code ran; false when there is nothing.
    bool do_held();
    bool deals_with_character() const { return by_character_; }
    bool holds_deeds() const { return !held_.empty(); }
    /// Something comes before it: the rest of what was being done is not meant for that.
    void miss_held();

    // For the peers of its controls.

    /// Whether what a person does now has to wait, since code runs.
    bool has_to_wait() const;
    void hold(HeldDeeds::Deed deed) { held_.hold(std::move(deed)); }
    /// Whether it closes the form, or asks whether it may.
    bool leaves(const MSG& input) const;
    /// The same for a message to a window of the form; false when it need not wait.
    bool holds(HWND target, UINT message, WPARAM wparam, LPARAM lparam);
    HFONT font() const { return font_.get(); }
    unsigned dpi() const { return dpi_; }
    Palette& palette() { return palette_; }
    /// Where a line of text begins that stands in the middle of this height. All controls put theirs there,
    /// so that a box and its label have one baseline.
    LONG line_top(LONG top, LONG bottom) const { return (top + bottom - line_height_) / 2; }
    LONG line_height() const { return line_height_; }
    UINT_PTR next_id() { return next_id_++; }
    /// Where a control lies in the window at its present size and scale.
    RECT place_of(const Control& control) const { return area_of(&control).rect; }
    /// How much larger it is than it was designed.
    SIZE growth_of(const Control& control) const { return area_of(&control).growth; }
    /// Soon draws again what a window and those over it show.
    void redraw_area_of(HWND window) const;
    void focus_came_to(const ControlPeer& peer) noexcept;
    /// Shows `text` while the mouse is over a control; nothing when it is empty.
    void set_tip(HWND control, const std::wstring& text);

    /// Tells an element what a person did and returns its answer. The host's own context applies meanwhile.
    template <class Verb> auto deliver(Verb&& verb) noexcept {
        const HostContext::Scope host(host_);
        decltype(verb()) answer{};
        attempt([&] { answer = verb(); });
        return answer;
    }

    /// For its lifetime windows change because the form did: what they report is no person's doing.
    class Showing {
    public:
        explicit Showing(FormWindow& window) : window_(window) { ++window_.showing_; }
        ~Showing() { --window_.showing_; }
        Showing(const Showing&) = delete;
        Showing& operator=(const Showing&) = delete;

    private:
        FormWindow& window_;
    };
    bool is_showing() const { return showing_ != 0; }

private:
    struct Area {
        RECT rect;
        SIZE growth; ///< over the size that it was designed with
    };

    FormWindow(Win32Engine& engine, Form& form);
    void create(HWND owner);
    /// Gives back the former font, which the controls need until they have the new one.
    FontHandle renew_font();
    SIZE outer_size() const;
    void move_to(POINT position, SIZE size) const;
    POINT first_position(HWND owner, SIZE size) const;
    Area area_of(const Control* control) const;
    ControlPeer* peer_of(HWND control) const;
    void place_controls();
    void give_font_to_controls();
    void show_focus();
    void mark_default_button(HWND focused) const;

    /// To itself: the focus belongs elsewhere, put it there when the present change is over.
    static constexpr UINT focus_message = WM_APP;

    static INT_PTR CALLBACK procedure(HWND handle, UINT message, WPARAM wparam, LPARAM lparam) noexcept;
    INT_PTR handle_message(HWND handle, UINT message, WPARAM wparam, LPARAM lparam);
    bool command(WPARAM wparam, HWND sender);
    /// Deals with a message of its controls, here or in the dialog manager; false when it is neither's.
    bool takes(MSG& message);
    void press_again(MSG key, const std::array<BYTE, 256>& states);
    void forget_keys_of_then();
    void click_again(MSG click);
    /// The form's own where no control has the focus.
    HWND window_of(const Control* focused) const;
    bool takes_key(const MSG& message);
    bool turn_tabs();
    bool leaves_by_key(const MSG& held) const;
    bool take_accelerator(WPARAM character);
    bool take_shortcut(WPARAM key);
    void finish_typing();
    void tick(UINT_PTR timer);
    void dpi_changed(unsigned dpi, const RECT& proposed);
    void looks_changed();

    Win32Engine& engine_;
    Form& form_;
    HostContext host_;
    Palette palette_;
    FontHandle font_;
    std::vector<std::unique_ptr<Peer>> peers_;
    HWND handle_ = nullptr;
    HWND tips_ = nullptr;
    unsigned dpi_ = 96;
    LONG line_height_ = 0;
    UINT_PTR next_id_ = 100; // clear of the numbers that Enter and Escape send
    int showing_ = 0;
    HeldDeeds held_;
    bool keys_of_then_ = false; ///< those count as held down that were so when the present deed was held back
    bool holds_key_ = false;    ///< the key that was pressed last waits, and its characters with it
    bool by_key_ = false;       ///< a key is dealt with: where the focus comes, it comes from the keyboard
    bool by_character_ = false; ///< the dialog manager may look for the control that a character presses
};

} // namespace brx
