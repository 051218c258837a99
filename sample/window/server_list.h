#pragma once

#include "window/host_model.h"

#include <commctrl.h>

#include <vector>

namespace sample {

/// The list of configured servers: a list view with a line for each.
class ServerList {
public:
    void create(HWND parent, int id);
    HWND handle() const { return list_; }

    /// Shows these lines; only what differs is drawn anew. The selection stays where it is.
    void show(const std::vector<ServerLine>& lines);
    /// The position of the selected line from 1; 0 for none.
    long selected() const;
    void select(long position);
    void place(const RECT& rect, UINT dpi);
    /// What the parent answers to NM_CUSTOMDRAW: servers that are not connected are grey.
    LRESULT draw(NMLVCUSTOMDRAW& request) const;

private:
    void show_line(int index, const ServerLine& line);
    void fit_columns() const;

    HWND list_ = nullptr;
    UINT dpi_ = 0;
    std::vector<ServerLine> lines_;
};

} // namespace sample
