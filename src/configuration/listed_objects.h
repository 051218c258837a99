#pragma once

#include "common/error.h"
#include "forms/button.h"
#include "forms/label.h"
#include "forms/list_view.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace brx {

/// A row that is not listed yet. It is filled as a row of a list is.
class RowDraft {
public:
    void set_text(const std::string& text) { set_text(0, text); }
    void set_text(int column, const std::string& text) { cell(column).text = text; }
    void set_look(int column, const CellLook& look) { cell(column).look = look; }
    void set_tag(std::int32_t tag) { tag_ = tag; }

    void add_to(ListView& list) const;

private:
    struct Cell {
        std::string text;
        CellLook look;
    };
    Cell& cell(int column);

    std::vector<Cell> cells_;
    std::int32_t tag_ = 0;
};

/// Ties the rows of a list to the host's objects at the same positions. What the list's buttons do goes by
/// position, so they rest while nobody knows whether these agree.
class ListedObjects {
public:
    /// `what` they are, in words; `notice` tells of reading that was stopped.
    ListedObjects(const char* what, ListView& list, Label& notice, Button& edit, Button& remove)
        : what_(what), list_(list), notice_(notice), edit_(edit), remove_(remove) {}

    /// The form loads.
    void start_afresh() { listed_ = Listed::never; }
    /// Whether there is a row for every object.
    bool is_whole() const { return listed_ == Listed::whole; }

    /// The position to edit or remove at, 0 for none: that of the selected row.
    int chosen() const { return listed_ == Listed::uncertain ? 0 : list_.selected(); }
    void select(int position) {
        if (position <= list_.count()) list_.select(position);
    }

    using Drafts = std::vector<RowDraft>;
    /// A draft of the next object, as far as it can be read. One that a person stops has no row.
    template <class Fill> static void draft(Drafts& rows, Fill&& fill) {
        RowDraft& row = rows.emplace_back();
        try {
            fill(row);
        } catch (const Stopped&) {
            rows.pop_back();
            throw;
        }
    }
    /// Lists the objects that `read` makes drafts of, in their order, and passes on its failure. The first
    /// time there are then rows for the objects up to it, and later for a list in part that did not become
    /// shorter; otherwise the rows stay as they were. That a person has stopped it is no failure, but said.
    void list(const std::function<void(Drafts&)>& read);

    /// Has the host add an object as the last one. When that fails the host may have it all the same: the
    /// objects are listed anew with `list_again`.
    void add(const std::function<void()>& make, const std::function<void()>& list_again);
    /// Takes an object away from the host. When that fails the host may have it or not: likewise, but rows
    /// that are not all read anew may have other positions now than their objects.
    void take_away(const std::function<void()>& remove, const std::function<void()>& list_again);

private:
    enum class Listed {
        never,
        in_part, ///< from the first one on
        whole,
        uncertain ///< as it was before it could not be read again
    };

    void show_read_part(const Drafts& rows);
    void show(const Drafts& rows);
    void become(Listed listed);

    const char* what_;
    ListView& list_;
    Label& notice_;
    Button& edit_;
    Button& remove_;
    Listed listed_ = Listed::never;
};

} // namespace brx
