#include "forms/list_view.h"

#include "common/error.h"

#include <algorithm>

namespace brx {

bool ListRow::has(int column) const noexcept {
    return column >= 0 && column < std::max(1, static_cast<int>(list_.columns().size()));
}

const ListRow::Cell* ListRow::find(int column) const {
    if (!has(column)) throw Error(error::index_out_of_bounds);
    const auto index = static_cast<std::size_t>(column);
    return index < cells_.size() ? &cells_[index] : nullptr;
}

ListRow::Cell& ListRow::cell(int column) {
    if (!find(column)) cells_.resize(static_cast<std::size_t>(column) + 1);
    return cells_[static_cast<std::size_t>(column)];
}

const std::string& ListRow::text(int column) const {
    static const std::string nothing;
    const Cell* const found = find(column);
    return found ? found->text : nothing;
}

bool ListRow::reads(int column, std::string_view text) const noexcept {
    if (!has(column)) return false;
    const auto index = static_cast<std::size_t>(column);
    return index < cells_.size() ? cells_[index].text == text : text.empty();
}

void ListRow::set_text(int column, const std::string& text) {
    if (this->text(column) == text) return;
    cell(column).text = text;
    list_.note(*this);
}

CellLook ListRow::look(int column) const {
    const Cell* const found = find(column);
    return found ? found->look : CellLook{};
}

void ListRow::set_look(int column, const CellLook& look) {
    if (this->look(column) == look) return;
    cell(column).look = look;
    list_.note(*this);
}

ListView::ListView(Container& container, const char* name, const ListViewDesign& design)
    : Control(container, name, window_look_of(design)), design_(design) {}

void ListView::add_column(const std::string& caption, int width) {
    columns_.push_back({caption, width});
    fresh_columns_ = true;
    changed(Aspect::lines);
}

ListRow& ListView::add(const std::string& key, const std::string& text) {
    if (!key.empty() && by_key_.contains(key)) throw Error(error::key_not_unique);
    rows_.push_back(std::unique_ptr<ListRow>(new ListRow(*this, key)));
    ListRow& row = *rows_.back();
    if (!key.empty()) by_key_.emplace(row.key_, &row);
    row.cell(0).text = text;
    note_rows();
    return row;
}

ListRow& ListView::row(int position) const {
    if (position < 1 || position > count()) throw Error(error::index_out_of_bounds);
    return *rows_[static_cast<std::size_t>(position) - 1];
}

ListRow& ListView::row(const std::string& key) const {
    if (ListRow* const found = find(key)) return *found;
    throw Error(error::element_not_found);
}

ListRow* ListView::find(std::string_view key) const noexcept {
    const auto found = by_key_.find(key);
    return found == by_key_.end() ? nullptr : found->second;
}

void ListView::remove(int position) {
    ListRow& gone = row(position);
    if (!gone.key_.empty()) by_key_.erase(gone.key_);
    if (gone.stale_) --stale_rows_;
    rows_.erase(rows_.begin() + position - 1);
    note_rows();
    if (focus_row_ > position || focus_row_ > count()) --focus_row_;
    if (selected_ < position) return;
    selected_ = selected_ == position ? 0 : selected_ - 1;
    changed(Aspect::selection);
}

void ListView::clear() {
    if (rows_.empty()) return;
    by_key_.clear();
    rows_.clear();
    stale_rows_ = 0;
    note_rows();
    select(0);
    focus_row_ = 0;
}

void ListView::select(int position) {
    if (position != 0) static_cast<void>(row(position));
    if (selected_ == position) return;
    selected_ = position;
    if (position != 0) focus_row_ = position;
    changed(Aspect::selection);
}

bool ListView::user_select(int position) {
    return position >= 0 && position <= count() && by_person([&] { select(position); });
}

void ListView::note(ListRow& row) {
    if (row.stale_) return;
    row.stale_ = true;
    ++stale_rows_;
    changed(Aspect::lines);
}

void ListView::note_rows() {
    fresh_rows_ = true;
    changed(Aspect::lines);
}

ListView::Changes ListView::take_changes() {
    Changes changes;
    changes.columns = std::exchange(fresh_columns_, false);
    changes.rows = std::exchange(fresh_rows_, false);
    if (stale_rows_ == 0) return changes;
    stale_rows_ = 0;
    for (int position = 1; position <= count(); ++position) {
        ListRow& row = *rows_[static_cast<std::size_t>(position) - 1];
        if (std::exchange(row.stale_, false) && !changes.rows) changes.positions.push_back(position);
    }
    return changes;
}

void ListView::reset() {
    Control::reset();
    columns_.clear();
    by_key_.clear();
    rows_.clear();
    selected_ = focus_row_ = 0;
    stale_rows_ = 0;
    fresh_columns_ = fresh_rows_ = false;
}

void ListView::read_content(Aspect aspects, Reading& into, int most_lines) const {
    if (has(aspects, Aspect::lines)) {
        into.columns.clear();
        for (const Column& column : columns_) into.columns.push_back(column.caption);
        into.count = count();
        into.rows.clear();
        const int width = std::max(1, static_cast<int>(columns_.size()));
        for (int position = 1; position <= std::min(count(), most_lines); ++position) {
            Reading::Row& line = into.rows.emplace_back();
            for (int at = 0; at < width; ++at)
                line.push_back({row(position).text(at), row(position).look(at)});
        }
    }
    if (has(aspects, Aspect::lines | Aspect::selection)) {
        into.selected = selected_ - 1;
        into.text = selected_ == 0 ? std::string() : row(selected_).text();
    }
}

} // namespace brx
