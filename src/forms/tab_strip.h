#pragma once

#include "forms/form.h"

#include <string>
#include <vector>

namespace brx {

struct TabStripDesign {
    Place place;
    std::vector<std::string> captions; ///< with their accelerators; there is at least one tab
    int tab = 0;
    std::string accessible_name = {};
    bool enabled = true;
    bool visible = true;
    Anchor anchor = Anchor::top_left;
    Handler Click = {}; ///< another tab was selected, by a person or by code
};

/// A row of tabs, one of them selected, above an area for what belongs to it. What shows there is its form's
/// business. Tabs count from 1.
class TabStrip : public Control {
public:
    TabStrip(Container& container, const char* name, const TabStripDesign& design)
        : Control(container, name, look_of(design)), design_(design) {}

    const char* kind() const override { return "tab_strip"; }
    bool focusable() const override { return true; }

    int count() const { return static_cast<int>(design_.captions.size()); }
    const std::vector<std::string>& captions() const { return design_.captions; }
    /// Error 35600 when there is no such tab, here and below.
    const std::string& caption(int tab) const;

    int selected() const { return selected_; }
    void select(int tab);

    /// A person chose a tab. When the focus was on what this took away, it goes to the first control of what
    /// shows instead.
    bool user_select(int tab);
    /// A person went to the next tab or the one before, round the ends.
    bool user_turn(bool backwards);

    void reset() override;

protected:
    void read_content(Aspect aspects, Reading& into, int most_lines) const override;

private:
    TabStripDesign design_;
    int selected_ = 1;
};

/// The form's tab strip that a person can turn now; null when there is none.
TabStrip* tab_strip_of(const Form& form);

} // namespace brx
