#pragma once

#include "forms/list_view.h"
#include "forms/win32/control_peer.h"
#include "forms/win32/gdi.h"

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

namespace brx {

/// A table as the system's list in report style. It holds no rows: it asks for the text and look of those
/// that it draws, and selects only what the control makes of what a person did.
class ListViewPeer : public ControlPeer {
public:
    ListViewPeer(FormWindow& window, ListView& list);
    LRESULT notified_of(NMHDR& notification) override;
    void font_changed() override;

protected:
    void show(Aspect aspects) override;
    LRESULT handle_message(UINT message, WPARAM wparam, LPARAM lparam) override;

private:
    void show_colors();
    void show_rows();
    void add_columns();
    void fit_columns();
    void show_tip();
    bool is_cut(const ListRow& row, int index, int column, const std::wstring& text) const;
    void redraw(const std::vector<int>& positions);
    void show_selection();
    void make_bold_font();

    void press(POINT point, bool twice);
    void mouse_moved(POINT point);
    LRESULT dialog_code(WPARAM key, LPARAM lparam);
    bool take_key(WPARAM key);
    void report_selection();

    void answer(LVITEMW& asked);
    LRESULT find(const NMLVFINDITEMW& sought) const;
    LRESULT paint(NMLVCUSTOMDRAW& drawing) const;
    /// Null for one that the list has no more.
    const ListRow* row_at(int index) const;
    int selected_index() const;

    ListView& list_;
    FontHandle bold_;
    std::wstring answered_; ///< the text that was asked for last
    /// A column's width at 96 DPI while the list has its designed size, and as it is shown.
    struct ColumnWidth {
        double design;
        int shown;
    };
    std::vector<ColumnWidth> widths_;
    double shown_by_ = 1; ///< what the widths have been multiplied with
    POINT mouse_{-1, -1}; ///< where it was last over the rows
    std::wstring tip_;
    int shown_count_ = 0;
    int shown_selection_ = 0;   ///< what the window was brought to, or said last
    bool own_colors_ = false;   ///< other than the system's for windows
    bool taking_input_ = false; ///< the system deals with a person's input, and may change its mind
};

} // namespace brx
