#pragma once

#include "forms/geometry.h"

#include <limits>
#include <string>
#include <vector>

namespace brx {

/// How the text of one cell is written.
struct CellLook {
    bool bold = false;
    Color fore_color = color::window_text;
    bool operator==(const CellLook&) const = default;
};

/// What a person sees of a control, told by the control itself.
struct Reading {
    struct Cell {
        std::string text;
        CellLook look = {};
        bool operator==(const Cell&) const = default;
    };
    using Row = std::vector<Cell>;

    std::string text; ///< the caption, the text, or the selected line's
    int selected =
        -1;        ///< a line's position from 0, -1 for none; of a check box its value; of a panel 1 in front
    int count = 0; ///< of the lines or rows
    /// Of a list, the captions of a strip, and the nodes in view of a tree, which begin with two blanks for
    /// each level and "+" for a closed one, "-" for an open one or a blank for one without children. The
    /// first ones only when not all were asked for.
    std::vector<std::string> lines;
    std::vector<Row> rows;            ///< the same of a table, with a cell for each column
    std::vector<std::string> columns; ///< their captions, of a table
    bool enabled = false;             ///< its containers considered
    bool visible = false;             ///< the same
    Place place = {};
    Color back_color = 0;
    Color fore_color = 0;

    static constexpr int all_lines = std::numeric_limits<int>::max();
};

} // namespace brx
