// How a form describes itself to user-interface tests of hosts.

#include "forms/description.h"
#include "one_page.h"
#include "one_tree.h"

#include <gmock/gmock.h>

namespace brx::checks {

namespace {

using testing::HasSubstr;
using testing::Not;
using namespace std::string_literals;

TEST(Description, TellsWhatAFormAndItsControlsHold) {
    OpenForm open;
    OneForm& form = open.form;
    open.while_open([&] {
        form.frame.set_enabled(false);
        form.check.set_visible(false);
        form.check.set_value(2);
        form.box.set_text("tab\t return\r line\n back\\slash\0 end"s);
        form.list.add_line("one");
        form.list.add_line("two \xF0\x9F\x98\x80");
        form.list.select(1);
        EXPECT_EQ(description_of(form, Reading::all_lines),
                  "OneForm\tform\t1\t1\t-1\t0\tOne form\n"
                  "frame\tframe\t0\t1\t-1\t0\tFrame\n"
                  "panel\tpanel\t1\t1\t0\t0\t\n"
                  "label\tlabel\t0\t1\t-1\t0\t&Text:\n"
                  "box\ttext_box\t0\t1\t-1\t0\ttab\\t return\\r line\\n back\\\\slash\\0 end\n"
                  "list\tlist_box\t1\t1\t1\t2\ttwo \xF0\x9F\x98\x80\n"
                  "list\trow\t1\t1\t-1\t0\tone\n"
                  "list\trow\t1\t1\t-1\t0\ttwo \xF0\x9F\x98\x80\n"
                  "combo\tcombo_box\t1\t1\t-1\t0\t\n"
                  "check\tcheck_box\t1\t0\t2\t0\tC&heck\n"
                  "button\tbutton\t1\t1\t-1\t0\t&Go\n"
                  "leave\tbutton\t1\t1\t-1\t0\t&Leave\n"
                  "timer\ttimer\t1\t0\t-1\t0\t\n");
    });
}

TEST(Description, TellsThatAFormWaitsForAMessageBox) {
    OpenForm open;
    std::string told;
    open.engine.while_asking = [&](const Message&) {
        told = description_of(open.form, 0);
        return message::ok;
    };
    open.while_open([&] { open.form.show_message({.text = "Wait", .title = "Wait"}); });
    EXPECT_THAT(told, HasSubstr("OneForm\tform\t0\t1\t-1\t0\tOne form\n"));
}

TEST(Description, TellsTheFirstLinesOnlyOfALongList) {
    OpenForm open;
    OneForm& form = open.form;
    open.while_open([&] {
        for (const char* line : {"one", "two", "three"}) form.list.add_line(line);
        EXPECT_THAT(description_of(form, 2), HasSubstr("list\tlist_box\t1\t1\t-1\t3\t\n"
                                                       "list\trow\t1\t1\t-1\t0\tone\n"
                                                       "list\trow\t1\t1\t-1\t0\ttwo\n"
                                                       "combo\t"));
        EXPECT_THAT(description_of(form, 0), Not(HasSubstr("\trow\t")));
    });
}

TEST(Description, TellsATableCellByCellItsTabsAndItsDates) {
    OnePage page;
    BarePages& form = page.form;
    page.while_open([&] {
        form.list.add_column("Item", 50);
        form.list.add_column("Value", 50);
        form.list.add("a", "Row a").set_text(1, "1");
        form.list.add("b", "Row b").set_look(1, {.bold = true, .fore_color = color::red});
        form.list.select(2);
        form.day.set_value(OnePage::date(2026, 11, 21));
        form.time.set_value(OnePage::date(2026, 11, 21, 13 * 3600 + 4 * 60 + 5));
        const std::string all = description_of(form, Reading::all_lines);
        EXPECT_THAT(all, HasSubstr("tabs\ttab_strip\t1\t1\t0\t3\t&1 One\n"
                                   "tabs\trow\t1\t1\t-1\t0\t&1 One\n"
                                   "tabs\trow\t1\t1\t-1\t0\t&2 Two\n"
                                   "tabs\trow\t1\t1\t-1\t0\tThr&ee\n"
                                   "first\tpanel\t1\t1\t0\t0\t\n"));
        EXPECT_THAT(all, HasSubstr("list\tlist_view\t1\t1\t1\t2\tRow b\n"
                                   "list\tcolumn\t1\t1\t-1\t0\tItem\n"
                                   "list\tcolumn\t1\t1\t-1\t0\tValue\n"
                                   "list\trow\t1\t1\t-1\t0\tRow a\n"
                                   "list\tcell\t1\t1\t-1\t0\t1\n"
                                   "list\trow\t1\t1\t-1\t0\tRow b\n"
                                   "list\tcell\t1\t1\t255\t1\t\n"
                                   "go\t"));
        EXPECT_THAT(all, HasSubstr("day\tdate_picker\t1\t0\t-1\t0\t2026-11-21\n"));
        EXPECT_THAT(all, HasSubstr("time\tdate_picker\t1\t0\t-1\t0\t13:04:05\n"));
        form.first.bring_to_front();
        EXPECT_THAT(description_of(form, 0), HasSubstr("first\tpanel\t1\t1\t1\t0\t\n"));
    });
}

TEST(Description, TellsATreesNodesInViewRowByRow) {
    OneTree tree;
    tree.while_open([&] {
        tree.add_food();
        tree.tree.user_expand(tree.tree.node("fruit"));
        tree.tree.select(&tree.tree.node("apple"));
        EXPECT_THAT(description_of(tree.form, Reading::all_lines),
                    HasSubstr("Tree\ttree_view\t1\t1\t1\t4\tApple\n"
                              "Tree\trow\t1\t1\t-1\t0\t-Fruit\n"
                              "Tree\trow\t1\t1\t-1\t0\t   Apple\n"
                              "Tree\trow\t1\t1\t-1\t0\t  +Pear\n"
                              "Tree\trow\t1\t1\t-1\t0\t Spice\n"));
        EXPECT_THAT(description_of(tree.form, 1), HasSubstr("Tree\ttree_view\t1\t1\t1\t4\tApple\n"
                                                            "Tree\trow\t1\t1\t-1\t0\t-Fruit\n"));
        tree.tree.user_collapse(tree.tree.node("fruit"));
        tree.tree.select(&tree.tree.node("core"));
        EXPECT_THAT(description_of(tree.form, 0), HasSubstr("Tree\ttree_view\t1\t1\t-1\t2\tCore\n"))
            << "It is not in view.";
    });
}

} // namespace

} // namespace brx::checks
