// The line in which a person finds an item or a group by any part of its name.

#include "browse/dlgItemSelect.h"
#include "common/values/part_of.h"
#include "forms/focus.h"

#include <algorithm>
#include <iterator>

namespace brx {

/// Which of the names have the part.
struct dlgItemSelect::Hits {
    int all = 0;
    int chosen = -1; ///< its index among the names
    int rank = 0;    ///< which of the hits it is, from 1
};

/// The first hit from the selected name on, round the end; or the last one before it, round the beginning.
template <class NameOf>
dlgItemSelect::Hits dlgItemSelect::find_hits(const std::string& text, int count, int selected, Towards where,
                                             NameOf&& name_of) {
    const PartOf part(text);
    const bool backwards = where == Towards::previous;
    const int from = where == Towards::next ? selected + 1 : std::max(selected, 0);
    Hits hits;
    int first = -1;
    int last = -1;
    for (int i = 0; i < count; ++i) {
        if (!part.is_in(name_of(i))) continue;
        ++hits.all;
        if (first < 0) first = i;
        last = i;
        const bool better = backwards ? i < from : i >= from && hits.chosen < 0;
        if (!better) continue;
        hits.chosen = i;
        hits.rank = hits.all;
    }
    if (hits.chosen < 0 && hits.all > 0) {
        hits.chosen = backwards ? last : first;
        hits.rank = backwards ? hits.all : 1;
    }
    return hits;
}

bool dlgItemSelect::takes(Shortcut which) {
    const bool open = txtFind.visible();
    switch (which) {
    case Shortcut::find:
        if (!open) finds_groups_ = false;
        show_find_line(true);
        hlxFocus::select_text(txtFind);
        return true;
    case Shortcut::find_next:
    case Shortcut::find_previous:
        if (open) find(which == Shortcut::find_next ? Towards::next : Towards::previous);
        return open;
    case Shortcut::leave:
        if (!open) return false;
        show_find_line(false);
        if (finds_groups_ ? TrView.can_focus() : lstItem.can_focus())
            finds_groups_ ? TrView.set_focus() : lstItem.set_focus();
        return true;
    }
    return false;
}

void dlgItemSelect::show_find_line(bool shown) {
    lblFind.set_visible(shown);
    txtFind.set_visible(shown);
    lblFound.set_visible(shown);
}

void dlgItemSelect::txtFind_Change() {
    trap("txtFind_Change", [&] { find(Towards::here); });
}

/// In the list, and where nothing of it has the part among the groups; from there it goes on where it was.
void dlgItemSelect::find(Towards where) {
    lblFound.set_caption("");
    if (txtFind.text().empty()) return;
    const bool goes_on = where != Towards::here;
    std::string found;
    if (finds_groups_) found = find_group(where);
    if (found.empty() && !(goes_on && finds_groups_)) {
        found = find_item(where);
        finds_groups_ = found.empty();
        if (finds_groups_) found = find_group(where);
        finds_groups_ = finds_groups_ && !found.empty();
    }
    lblFound.set_caption(found.empty() ? "Not found" : found);
}

/// Selects it as a person would. Nothing is asked of the server but what that asks.
std::string dlgItemSelect::find_item(Towards where) {
    const Hits hits = find_hits(txtFind.text(), lstItem.count(), lstItem.selected(), where,
                                [&](int i) { return lstItem.line(i); });
    if (hits.all > 0) lstItem.select(hits.chosen);
    return told(hits);
}

std::string dlgItemSelect::find_group(Towards where) {
    const std::vector<TreeNode*> all = groups();
    const auto here = std::find(all.begin(), all.end(), TrView.selected());
    const int selected = here == all.end() ? -1 : static_cast<int>(std::distance(all.begin(), here));
    const auto name_of = [&](int i) -> std::string_view { return all[static_cast<std::size_t>(i)]->text(); };
    const Hits hits = find_hits(txtFind.text(), static_cast<int>(all.size()), selected, where, name_of);
    if (hits.all > 0 && hits.chosen != selected) {
        TreeNode& node = *all[static_cast<std::size_t>(hits.chosen)];
        TrView.bring_into_view(node);
        TrView.select(&node);
        TrView_NodeClick(node);
    }
    return told(hits);
}

std::string dlgItemSelect::told(const Hits& hits) const {
    const Locale& locale = environment().locale;
    return hits.all == 0 ? std::string() : grouped(hits.rank, locale) + " of " + grouped(hits.all, locale);
}

/// The branches that have been read, from the top down.
std::vector<TreeNode*> dlgItemSelect::groups() const {
    std::vector<TreeNode*> all;
    std::vector<TreeNode*> open;
    if (TrView.first()) open.push_back(TrView.first());
    while (!open.empty()) {
        TreeNode* const node = open.back();
        open.pop_back();
        if (node->next()) open.push_back(node->next());
        if (is_placeholder(*node)) continue;
        all.push_back(node);
        if (node->child()) open.push_back(node->child());
    }
    return all;
}

} // namespace brx
