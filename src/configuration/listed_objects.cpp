#include "configuration/listed_objects.h"

#include "common/trap.h"

namespace brx {

namespace {

/// When `step` fails the host may have done it all the same: then it is looked again. A call that was not
/// made leaves no doubt.
void in_doubt(const std::function<void()>& step, const std::function<void()>& look_again) {
    try {
        step();
    } catch (const Stopped& stopped) {
        if (!stopped.was_not_made()) attempt(look_again);
        throw;
    } catch (...) {
        attempt(look_again);
        throw;
    }
}

} // namespace

RowDraft::Cell& RowDraft::cell(int column) {
    const auto index = static_cast<std::size_t>(column);
    if (cells_.size() <= index) cells_.resize(index + 1);
    return cells_[index];
}

void RowDraft::add_to(ListView& list) const {
    ListRow& row = list.add("", "");
    int column = 0;
    for (const Cell& each : cells_) {
        row.set_text(column, each.text);
        row.set_look(column++, each.look);
    }
    row.set_tag(tag_);
}

void ListedObjects::list(const std::function<void(Drafts&)>& read) {
    Drafts rows;
    notice_.set_caption("");
    try {
        read(rows);
    } catch (const Stopped&) {
        show_read_part(rows);
        const bool has_begun = listed_ == Listed::in_part && !rows.empty();
        notice_.set_caption("Reading the " + std::string(what_) + " was stopped" +
                            (has_begun ? " after " + std::to_string(rows.size()) : "") +
                            ". To read them all: open this dialog again.");
        return;
    } catch (...) {
        show_read_part(rows);
        throw;
    }
    show(rows);
    become(Listed::whole);
}

/// Of a list that could not be read to its end.
void ListedObjects::show_read_part(const Drafts& rows) {
    const bool is_no_shorter = static_cast<int>(rows.size()) >= list_.count();
    if (listed_ == Listed::never || (listed_ == Listed::in_part && is_no_shorter)) {
        show(rows);
        become(Listed::in_part);
    } else {
        become(Listed::uncertain);
    }
}

void ListedObjects::add(const std::function<void()>& make, const std::function<void()>& list_again) {
    in_doubt(make, list_again);
}

void ListedObjects::take_away(const std::function<void()>& remove, const std::function<void()>& list_again) {
    in_doubt(remove, [&] {
        listed_ = Listed::uncertain;
        list_again();
    });
}

/// While there are as many rows as before, the selected one stays selected.
void ListedObjects::show(const Drafts& rows) {
    const int count = list_.count();
    const int selected = list_.selected();
    list_.clear();
    for (const RowDraft& row : rows) row.add_to(list_);
    if (list_.count() == count) list_.select(selected);
}

void ListedObjects::become(Listed listed) {
    listed_ = listed;
    for (Button* button : {&edit_, &remove_}) button->set_enabled(listed != Listed::uncertain);
}

} // namespace brx
