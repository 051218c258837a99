#pragma once

#include "forms/form.h"
#include "forms/list_lines.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace brx {

struct ListDesign {
    Place place;
    int tab = 0;
    std::string accessible_name = {};
    bool enabled = true;
    bool visible = true;
    Anchor anchor = Anchor::top_left;
    Handler Click = {};
    Handler DblClick = {};
    Handler Change = {};
};

/// What list boxes and drop-down lists share: lines with a 32-bit number each, one of them selected or none.
class ListControl : public Control {
public:
    bool focusable() const override { return true; }

    /// Positions count from 0 here; error 5 for one that is not there.
    int count() const { return lines_.count(); }
    std::string text(int index) const { return std::string(line(index)); }
    std::int32_t data(int index) const { return lines_.data(checked(index)); }
    /// The same as `text` for whoever reads many lines; holds until the list is cleared.
    std::string_view line(int index) const { return lines_.text(checked(index)); }

    void add_line(std::string_view text, std::int32_t data = 0) { insert_line(count(), text, data); }
    void insert_line(int index, std::string_view text, std::int32_t data = 0);
    /// Empties the list; nothing is selected then, and nothing fires.
    void clear();
    /// How many lines from the first on are what they were at the last call.
    int take_kept_lines() { return std::exchange(kept_, count()); }

    /// The selected line, -1 for none.
    int selected() const { return selected_; }
    /// Selects a line (Click fires when it was another) or, with -1, none (without Click).
    void select(int index);
    /// Selects the first line with exactly this text; nothing changes when there is none.
    void select_text(std::string_view text);
    /// The selected line's text, "" when there is none.
    std::string text() const { return selected_ < 0 ? std::string() : text(selected_); }

    /// A person chose a line.
    bool user_select(int index) {
        if (index == selected_) return true;
        return index >= 0 && index < count() && by_person([&] { select(index); });
    }
    /// A person pressed the mouse on a line.
    virtual bool user_press(int index) { return user_select(index); }
    /// A person double-clicked the selected line.
    bool user_double_click() {
        return by_person([&] { fire(design_.DblClick); });
    }

    void reset() override;

protected:
    ListControl(Container& container, const char* name, const ListDesign& design)
        : Control(container, name, window_look_of(design)), design_(design) {}
    void fire_click() const { fire(design_.Click); }
    void read_content(Aspect aspects, Reading& into, int most_lines) const override;

private:
    int checked(int index) const;

    ListDesign design_;
    ListLines lines_;
    int kept_ = 0;
    int selected_ = -1;
};

class ListBox : public ListControl {
public:
    ListBox(Container& container, const char* name, const ListDesign& design)
        : ListControl(container, name, design) {}
    const char* kind() const override { return "list_box"; }
    /// On the selected line it is a click all the same.
    bool user_press(int index) override {
        if (index < 0 || index != selected()) return user_select(index);
        return by_person([this] { fire_click(); });
    }
    /// The first line that begins so, whatever the case, from `start` on and round the end; -1 for none.
    int line_beginning_with(std::string_view text, int start) const;
    /// A person typed a character: the next line that begins with it is chosen. The blank searches nothing.
    bool user_search(std::string_view character) {
        if (character == " ") return true;
        const int found = line_beginning_with(character, selected() + 1);
        return found >= 0 && user_select(found);
    }
};

/// A drop-down list: a person chooses a line and cannot type.
class ComboBox : public ListControl {
public:
    ComboBox(Container& container, const char* name, const ListDesign& design)
        : ListControl(container, name, design) {}
    const char* kind() const override { return "combo_box"; }
};

} // namespace brx
