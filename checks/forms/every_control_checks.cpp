// What holds for every kind of control: what a person cannot do, whatever engine says that she did it, and
// what a showing begins with.

#include "one_page.h"

#include "forms/tree_view.h"
#include "forms/turn.h"

#include <thread>

using namespace brx;
using namespace brx::checks;

namespace {

/// A frame with a control of each kind, ready to be used, and a panel.
class FullForm : public Form {
public:
    explicit FullForm(Environment& on) : Form(on, {.name = "Full", .caption = "Full", .size = {400, 300}}) {}

    Notes notes;

    // clang-format off
    Frame      frame {*this, "frame",  {.place = {0, 0, 400, 300}, .caption = "Frame", .tab = 1}};
    TextBox    box   {frame, "box",    {.place = {0, 0, 90, 23}, .tab = 2, .Change = note("box"),
                                        .KeyDown = [this](std::int32_t) { notes.emplace_back("down"); },
                                        .KeyPress = [this](std::int32_t&) { notes.emplace_back("press"); },
                                        .KeyUp = [this](std::int32_t) { notes.emplace_back("up"); }}};
    ListBox    list  {frame, "list",   {.place = {0, 30, 90, 60}, .tab = 3, .Click = note("list"), .DblClick = note("list twice")}};
    ComboBox   combo {frame, "combo",  {.place = {0, 90, 90, 23}, .tab = 4, .Click = note("combo")}};
    CheckBox   check {frame, "check",  {.place = {0, 120, 90, 17}, .caption = "Check", .tab = 5, .Click = note("check")}};
    Button     button{frame, "button", {.place = {0, 140, 75, 23}, .caption = "Button", .tab = 6, .Click = note("button")}};
    ListView   table {frame, "table",  {.place = {100, 0, 90, 60}, .tab = 7, .DblClick = note("table twice")}};
    TreeView   tree  {frame, "tree",   {.place = {100, 70, 90, 60}, .tab = 8,
                                        .Expand = [this](TreeNode&) { notes.emplace_back("expand"); },
                                        .NodeClick = [this](TreeNode&) { notes.emplace_back("node"); }, .Click = note("tree")}};
    TabStrip   tabs  {frame, "tabs",   {.place = {200, 0, 90, 60}, .captions = {"1", "2"}, .tab = 9, .Click = note("tabs")}};
    DatePicker day   {frame, "day",    {.place = {200, 70, 90, 23}, .tab = 10, .Change = note("day")}};
    Label      label {*this, "label",  {.place = {300, 70, 90, 15}, .caption = "Label", .tab = 12}};
    Panel      panel {*this, "panel",  {.place = {300, 0, 90, 60}, .tab = 11}};
    // clang-format on

    void Form_Load() override {
        for (ListControl* each : {static_cast<ListControl*>(&list), static_cast<ListControl*>(&combo)})
            each->add_line("one");
        table.add("", "Row");
        tree.add_child(tree.add("open", "Open"), "within", "Within");
        tree.add_child(tree.add("closed", "Closed"), "hidden", "Hidden");
    }

private:
    Handler note(const char* what) {
        return [this, what] { notes.emplace_back(what); };
    }
};

struct Attempt {
    const char* name;
    std::function<bool()> tried;
};

struct EveryControl : testing::Test {
    FakeHost host;
    ScriptedEngine engine;
    Environment environment{engine, host, host, Locale{}};
    FullForm form{environment};

    std::vector<Attempt> everything() {
        TreeView& tree = form.tree;
        return {{"typing", [&] { return form.box.user_text("typed"); }},
                {"a key", [&] { return form.box.user_key_down('A'); }},
                {"a character", [&] { return form.box.user_key_press('a') != 0; }},
                {"a press into a box", [&] { return form.box.user_press(); }},
                {"a line", [&] { return form.list.user_select(0); }},
                {"a press on a line", [&] { return form.list.user_press(0); }},
                {"a second one", [&] { return form.list.user_double_click(); }},
                {"a letter", [&] { return form.list.user_search("o"); }},
                {"a choice", [&] { return form.combo.user_select(0); }},
                {"a tick", [&] { return form.check.user_toggle(); }},
                {"a button", [&] { return form.button.user_click(); }},
                {"a row", [&] { return form.table.user_select(1); }},
                {"a second click", [&] { return form.table.user_double_click(); }},
                {"a node", [&] { return tree.user_click(tree.node("open")); }},
                {"a key to a node", [&] { return tree.user_select(tree.node("within")); }},
                {"opening", [&] { return tree.user_expand(tree.node("closed")); }},
                {"closing", [&] { return tree.user_collapse(tree.node("open")); }},
                {"a sign", [&] { return tree.user_toggle(tree.node("closed")); }},
                {"a tab", [&] { return form.tabs.user_select(2); }},
                {"the next tab", [&] { return form.tabs.user_turn(false); }},
                {"a date", [&] { return form.day.user_set(Date{1.0}); }},
                {"the focus", [&] { return form.day.user_focus(); }},
                {"the focus by key", [&] { return form.day.user_take_focus(); }}};
    }
    void expect_refused(const char* while_what) {
        form.notes.clear();
        for (const auto& [name, tried] : everything())
            EXPECT_FALSE(tried()) << name << " while " << while_what;
        EXPECT_EQ(form.notes, Notes{}) << while_what;
        EXPECT_EQ(form.box.text() + std::to_string(form.list.selected()) +
                      std::to_string(form.combo.selected()) + std::to_string(form.check.value()) +
                      std::to_string(form.table.selected()) + std::to_string(form.tabs.selected()),
                  "-1-1001")
            << while_what;
        EXPECT_EQ(form.tree.selected(), nullptr);
        EXPECT_EQ(form.tree.read().lines, (Notes{"-Open", "   Within", "+Closed"}));
    }
    void while_open(const std::function<void()>& story) {
        engine.while_open = [&](Form&) {
            form.tree.user_expand(form.tree.node("open"));
            story();
        };
        form.show_modal();
    }
};

} // namespace

TEST_F(EveryControl, APersonDoesNothingToWhatIsDisabledOrHidden) {
    while_open([&] {
        form.frame.set_enabled(false);
        expect_refused("what is around it is disabled");
        form.frame.set_enabled(true);
        form.frame.set_visible(false);
        expect_refused("what is around it is hidden");
        form.frame.set_visible(true);
        for (Control* each : form.controls()) each->set_enabled(each == &form.frame);
        expect_refused("it is disabled");
        for (Control* each : form.controls()) {
            each->set_enabled(true);
            each->set_visible(each == &form.frame);
        }
        expect_refused("it is hidden");
    });
}

TEST_F(EveryControl, APersonDoesNothingWhileCodeRunsOrAMessageIsUp) {
    while_open([&] {
        {
            const CodeTurn code;
            expect_refused("code runs");
            EXPECT_FALSE(form.user_close());
            EXPECT_FALSE(form.user_help());
        }
        const ModalTurn message(nullptr);
        expect_refused("a message is up");
    });
}

TEST(Turns, OnAFreshThreadNeitherCodeNorATimerRuns) {
    std::thread([] {
        EXPECT_FALSE(turn::is_code_running());
        EXPECT_FALSE(turn::is_timer_running());
        EXPECT_EQ(turn::top_form(), nullptr);
    }).join();
}

TEST_F(EveryControl, EverythingIsTakenOtherwise) {
    while_open([&] {
        for (const auto& [name, tried] : everything()) EXPECT_TRUE(tried()) << name;
    });
}

TEST_F(EveryControl, WhatIsReadBitByBitIsTheWhole) {
    while_open([&] {
        form.panel.bring_to_front();
        form.list.select(0);
        form.check.set_value(1);
        form.table.select(1);
        form.tree.select(form.tree.first());
        const std::vector<Aspect> aspects = {Aspect::text,    Aspect::lines,   Aspect::selection,
                                             Aspect::enabled, Aspect::visible, Aspect::colors,
                                             Aspect::place,   Aspect::value,   Aspect::order};
        const auto same_looks = [](const Reading& a, const Reading& b) {
            return a.place == b.place && a.enabled == b.enabled && a.visible == b.visible &&
                   a.back_color == b.back_color && a.fore_color == b.fore_color;
        };
        const auto same_content = [](const Reading& a, const Reading& b) {
            return a.text == b.text && a.selected == b.selected && a.count == b.count && a.lines == b.lines &&
                   a.rows == b.rows && a.columns == b.columns;
        };
        for (const Control* each : form.controls()) {
            const Reading whole = each->read();
            Reading bits;
            for (const Aspect aspect : aspects) each->read(aspect, bits);
            EXPECT_TRUE(same_looks(bits, whole)) << each->name();
            EXPECT_TRUE(same_content(bits, whole)) << each->name();
            Reading content;
            for (const Aspect aspect : {Aspect::enabled, Aspect::visible, Aspect::colors, Aspect::place})
                each->read(aspect, content);
            EXPECT_TRUE(same_looks(content, whole)) << each->name();
            EXPECT_TRUE(same_content(content, {})) << each->name();
            Reading looks;
            for (const Aspect aspect :
                 {Aspect::text, Aspect::lines, Aspect::selection, Aspect::value, Aspect::order})
                each->read(aspect, looks);
            EXPECT_TRUE(same_looks(looks, {})) << each->name();
        }
    });
}

TEST_F(EveryControl, WhateverItsKindAControlIsShownAgainAsItWasDesigned) {
    std::vector<Place> places;
    while_open([&] {
        for (Control* each : form.controls()) {
            places.push_back(each->place());
            each->set_place({1, 2, 3, 4});
            each->set_fore_color(color::red);
            each->set_enabled(false);
            each->set_visible(false);
        }
        form.panel.bring_to_front();
        form.box.set_text("other");
        form.box.select_all();
        for (ListControl* list :
             {static_cast<ListControl*>(&form.list), static_cast<ListControl*>(&form.combo)})
            list->select(0);
        form.check.set_value(1);
        form.table.select(1);
        form.tabs.select(2);
        form.day.set_value(Date{40'000.0});
        form.tree.select(form.tree.first());
    });
    while_open([&] {
        auto place = places.begin();
        for (const Control* each : form.controls()) {
            EXPECT_EQ(each->place(), *place++) << each->name();
            EXPECT_NE(each->fore_color(), color::red) << each->name();
            EXPECT_TRUE(each->enabled()) << each->name();
            EXPECT_TRUE(each->visible()) << each->name();
        }
        EXPECT_FALSE(form.panel.in_front());
        EXPECT_EQ(form.box.text(), "");
        EXPECT_EQ(form.list.selected(), -1);
        EXPECT_EQ(form.combo.selected(), -1);
        EXPECT_EQ(form.check.value(), 0);
        EXPECT_EQ(form.table.selected(), 0);
        EXPECT_EQ(form.tabs.selected(), 1);
        EXPECT_EQ(form.day.text(), "1899-12-30");
        EXPECT_EQ(form.tree.selected(), nullptr);
    });
}

TEST_F(EveryControl, APersonDoesNothingToWhatIsNotThereOrOutOfSight) {
    while_open([&] {
        TreeView& tree = form.tree;
        form.list.select(0);
        form.notes.clear();
        const std::vector<Attempt> deeds = {
            {"a line", [&] { return form.list.user_press(1); }},
            {"below the lines", [&] { return form.list.user_press(-1); }},
            {"a row", [&] { return form.table.user_select(2); }},
            {"before the rows", [&] { return form.table.user_select(-1); }},
            {"a tab", [&] { return form.tabs.user_select(3); }},
            {"a node", [&] { return tree.user_click(tree.node("hidden")); }},
            {"a key to it", [&] { return tree.user_select(tree.node("hidden")); }},
            {"a sign", [&] { return tree.user_toggle(tree.node("within")); }}};
        for (const auto& [name, tried] : deeds) EXPECT_FALSE(tried()) << name;
        EXPECT_EQ(form.notes, Notes{});
    });
}
