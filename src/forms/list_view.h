#pragma once

#include "forms/form.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace brx {

class ListView;

/// One row of a list view, which owns it. It lives until it is removed. Column 0 is the row's own text, the
/// columns from 1 on are its sub-items.
class ListRow {
public:
    ListRow(const ListRow&) = delete;
    ListRow& operator=(const ListRow&) = delete;

    /// Unique in the list, compared exactly; "" for a row that is never looked up.
    const std::string& key() const { return key_; }
    const std::string& text() const { return text(0); }
    void set_text(const std::string& text) { set_text(0, text); }
    /// "" where nothing was ever set. Error 35600 for a column that the list has not.
    const std::string& text(int column) const;
    void set_text(int column, const std::string& text);
    /// Whether the cell reads so. False for a column that the list has not.
    bool reads(int column, std::string_view text) const noexcept;
    CellLook look(int column) const;
    void set_look(int column, const CellLook& look);

    /// What code keeps with the row; never shown.
    std::int32_t tag() const { return tag_; }
    void set_tag(std::int32_t tag) { tag_ = tag; }

private:
    friend class ListView;
    struct Cell {
        std::string text;
        CellLook look;
    };
    ListRow(ListView& list, std::string key) : list_(list), key_(std::move(key)) {}
    Cell& cell(int column);
    bool has(int column) const noexcept;
    const Cell* find(int column) const;

    ListView& list_;
    std::string key_;
    std::vector<Cell> cells_; ///< as far as any was set
    std::int32_t tag_ = 0;
    bool stale_ = false;
};

struct ListViewDesign {
    Place place;
    int tab = 0;
    std::string accessible_name = {};
    bool enabled = true;
    bool visible = true;
    Anchor anchor = Anchor::top_left;
    Handler DblClick = {};
};

/// A table of rows under column headers, one row selected or none. Rows and their positions count from 1.
class ListView : public Control {
public:
    struct Column {
        std::string caption;
        int width; ///< pixels at 96 DPI
    };

    ListView(Container& container, const char* name, const ListViewDesign& design);

    const char* kind() const override { return "list_view"; }
    bool focusable() const override { return true; }

    void add_column(const std::string& caption, int width);
    const std::vector<Column>& columns() const { return columns_; }

    int count() const { return static_cast<int>(rows_.size()); }
    /// Appends a row. Error 35602 when the list has the key.
    ListRow& add(const std::string& key, const std::string& text);
    /// Error 35600 when there is none.
    ListRow& row(int position) const;
    /// Error 35601 when there is none.
    ListRow& row(const std::string& key) const;
    /// The same; null when there is none.
    ListRow* find(std::string_view key) const noexcept;
    /// Removes a row. When it was the selected one, none is selected. Error 35600 when there is none.
    void remove(int position);
    /// Removes every row; the columns stay.
    void clear();

    /// The position of the selected row, 0 for none.
    int selected() const { return selected_; }
    /// 0 selects none. Nothing fires.
    void select(int position);
    /// The row that the keyboard starts from: the one that is or was selected, or after its removal the one
    /// in its place; 0 while there was none.
    int focus_row() const { return focus_row_; }

    /// A person selected a row or, with 0, clicked beside the rows.
    bool user_select(int position);
    /// A person double-clicked, on the selected row or beside the rows.
    bool user_double_click() {
        return by_person([&] { fire(design_.DblClick); });
    }
    /// Whether Enter opens the selected row, as a double click does, and presses no button.
    bool takes_enter() const { return selected_ != 0 && design_.DblClick; }

    /// What an engine has to show again since the last call.
    struct Changes {
        bool columns = false;
        bool rows = false;          ///< rows came or went: all of them
        std::vector<int> positions; ///< otherwise: the rows that read differently, in order
    };
    Changes take_changes();

    void forget_changes() override { take_changes(); }
    void reset() override;

protected:
    void read_content(Aspect aspects, Reading& into, int most_lines) const override;

private:
    friend class ListRow;
    void note(ListRow& row);
    void note_rows();

    ListViewDesign design_;
    std::vector<Column> columns_;
    std::vector<std::unique_ptr<ListRow>> rows_;
    std::unordered_map<std::string_view, ListRow*> by_key_;
    int selected_ = 0;
    int focus_row_ = 0;
    bool fresh_columns_ = false;
    bool fresh_rows_ = false;
    int stale_rows_ = 0;
};

} // namespace brx
