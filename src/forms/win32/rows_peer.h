#pragma once

#include "forms/win32/control_peer.h"

#include <windows.h>

#include <commctrl.h>

#include <array>
#include <string>
#include <string_view>

namespace brx {

/// Rows of a control as the system's list in report style. It holds no rows: it asks for the text and look of
/// those that it draws, and selects only what the control makes of what a person did. Rows count from 0 here,
/// and -1 is none.
class RowsPeer : public ControlPeer {
public:
    LRESULT notified_of(NMHDR& notification) override;

protected:
    /// Whoever makes a column wider tells it in 16 bits with a sign.
    static constexpr int widest_column = 0x7FFF;

    /// The style comes to those that every such list has.
    RowsPeer(FormWindow& window, Control& control, DWORD style);

    void show(Aspect aspects) override;
    LRESULT handle_message(UINT message, WPARAM wparam, LPARAM lparam) override;

    virtual int row_count() const = 0;
    virtual int column_count() const = 0;
    virtual int selected_row() const = 0;
    /// The row that the keyboard starts from where none is selected. There are rows.
    virtual int focus_row() const = 0;
    /// Both in range.
    virtual std::string_view cell(int row, int column) const = 0;
    /// In which a cell is drawn.
    virtual HFONT font_of(int row, int column) const = 0;
    /// The first row that begins so, whatever the case, from `start` on and round the end.
    virtual int row_beginning_with(const std::string& text, int start) const = 0;

    /// A person selected a row, or none.
    virtual bool select_row(int row) = 0;
    virtual void press(int row, bool twice) = 0;
    virtual void press_right(int row) = 0;
    /// Whether Enter opens the selected row and presses no button.
    virtual bool takes_enter() const { return false; }
    virtual void open_row() {}
    /// A person typed it; false leaves it to the system.
    virtual bool take_character(wchar_t character) {
        static_cast<void>(character);
        return false;
    }

    virtual void show_rows() = 0;
    virtual void fit_columns() = 0;
    virtual LRESULT paint(NMLVCUSTOMDRAW& drawing) const = 0;

    int shown_count() const { return shown_count_; }
    /// There are other rows than before, perhaps in another number.
    void show_all_rows();
    void redraw(int first, int last);
    bool in_range(int row, int column) const {
        return row >= 0 && row < row_count() && column >= 0 && column < column_count();
    }

private:
    void show_colors();
    void show_tip();
    bool is_cut(int row, int column, const std::wstring& text) const;
    void show_selection();

    int row_at(POINT point) const;
    void mouse_moved(POINT point);
    LRESULT dialog_code(WPARAM key, LPARAM lparam);
    bool take_key(WPARAM key);
    void report_selection();

    void answer(LVITEMW& asked);
    LRESULT find(const NMLVFINDITEMW& sought) const;
    void set_state(int row, UINT state) const;
    int selected_index() const;
    int focused_index() const;

    std::array<std::wstring, 2> answers_; ///< what was asked for last, and before: it is still looked at
    std::size_t next_answer_ = 0;
    POINT mouse_{-1, -1}; ///< where it was last over the rows
    std::wstring tip_;
    int shown_count_ = 0;
    int shown_selection_ = -1;  ///< what the window was brought to, or said last
    bool own_colors_ = false;   ///< other than the system's for windows
    bool taking_input_ = false; ///< the system deals with a person's input, and may change its mind
};

} // namespace brx
