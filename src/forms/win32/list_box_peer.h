#pragma once

#include "forms/list_control.h"
#include "forms/win32/rows_peer.h"

namespace brx {

/// A list box: one column without a header, as wide as the widest line that was drawn.
class ListBoxPeer : public RowsPeer {
public:
    ListBoxPeer(FormWindow& window, ListBox& list);
    void font_changed() override;

protected:
    int row_count() const override { return list_.count(); }
    int column_count() const override { return 1; }
    int selected_row() const override { return list_.selected(); }
    int focus_row() const override { return list_.count() > 0 ? 0 : -1; }
    std::string_view cell(int row, int column) const override;
    HFONT font_of(int row, int column) const override;
    int row_beginning_with(const std::string& text, int start) const override;

    bool select_row(int row) override { return list_.user_select(row); }
    void press(int row, bool twice) override;
    void press_right(int row) override { static_cast<void>(row); }
    bool take_character(wchar_t character) override;

    void show_rows() override;
    void fit_columns() override;
    LRESULT paint(NMLVCUSTOMDRAW& drawing) const override;
    LRESULT handle_message(UINT message, WPARAM wparam, LPARAM lparam) override;
    bool colored_when_disabled() const override { return true; }

private:
    void draw_line(int row, HDC dc) const;

    /// To itself: the room or the lines have another width. Sent while it is painted, it would paint again.
    static constexpr UINT fit_message = WM_APP;

    ListBox& list_;
    mutable int widest_ = 0;
};

} // namespace brx
