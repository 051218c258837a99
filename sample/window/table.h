#pragma once

#include <windows.h>

#include <commctrl.h>

#include <span>
#include <string>
#include <vector>

namespace sample {

struct TableColumn {
    const wchar_t* title;
    int width; ///< at 96 DPI; 0 for the one that takes what is left
};

/// How a line stands out.
enum class Tone { plain, pale, alarm };

struct TableLine {
    std::vector<std::wstring> cells;
    Tone tone = Tone::plain;
    bool operator==(const TableLine&) const = default;
};

/// A list view of lines in columns, of which one can be selected.
class Table {
public:
    /// The columns must outlive the table.
    void create(HWND parent, int id, std::span<const TableColumn> columns);
    HWND handle() const { return list_; }

    /// Shows these lines; only what differs is drawn anew. The selection stays where it is.
    void show(const std::vector<TableLine>& lines);
    long count() const { return static_cast<long>(lines_.size()); }
    /// The position of the selected line from 1; 0 for none.
    long selected() const;
    void select(long position);
    void place(const RECT& rect, UINT dpi);
    /// What the parent answers to NM_CUSTOMDRAW.
    LRESULT draw(NMLVCUSTOMDRAW& request) const;

private:
    void show_line(int index, const TableLine& line);
    void fit_columns() const;

    HWND list_ = nullptr;
    UINT dpi_ = 0;
    std::span<const TableColumn> columns_;
    std::vector<TableLine> lines_;
};

} // namespace sample
