#pragma once

#include "forms/list_view.h"
#include "forms/win32/gdi.h"
#include "forms/win32/rows_peer.h"

#include <vector>

namespace brx {

/// A table.
class ListViewPeer : public RowsPeer {
public:
    ListViewPeer(FormWindow& window, ListView& list);
    void font_changed() override;

protected:
    int row_count() const override { return list_.count(); }
    int column_count() const override { return static_cast<int>(list_.columns().size()); }
    int selected_row() const override { return list_.selected() - 1; }
    int focus_row() const override { return list_.focus_row() - 1; }
    std::string_view cell(int row, int column) const override { return list_.row(row + 1).text(column); }
    HFONT font_of(int row, int column) const override;
    int row_beginning_with(const std::string& text, int start) const override;

    bool select_row(int row) override { return list_.user_select(row + 1); }
    void press(int row, bool twice) override;
    void press_right(int row) override { press(row, false); }
    bool takes_enter() const override { return list_.takes_enter(); }
    void open_row() override;

    void show_rows() override;
    void fit_columns() override;
    LRESULT paint(NMLVCUSTOMDRAW& drawing) const override;

private:
    void add_columns();
    void make_bold_font();

    ListView& list_;
    FontHandle bold_;
    /// A column's width at 96 DPI while the list has its designed size, and as it is shown.
    struct ColumnWidth {
        double design;
        int shown;
    };
    std::vector<ColumnWidth> widths_;
    double shown_by_ = 1; ///< what the widths have been multiplied with
};

} // namespace brx
