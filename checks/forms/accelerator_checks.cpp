#include "forms/accelerator.h"
#include "one_form.h"

#include <gtest/gtest.h>

using namespace brx;
using namespace brx::checks;

// What Alt and a letter mean on a form.

namespace {

class Letters : public Form {
public:
    explicit Letters(Environment& on)
        : Form(on, {.name = "Letters", .caption = "Letters", .size = {300, 300}}) {}

    // clang-format off
    Label    name  {*this, "name",   {.place = {0, 0, 50, 15}, .caption = "R&&D &Name:", .tab = 1}};
    TextBox  box   {*this, "box",    {.place = {60, 0, 90, 23}, .tab = 2}};
    Label    data  {*this, "data",   {.place = {0, 30, 50, 15}, .caption = "&Zoo", .tab = 3, .mnemonic = false}};
    Label    kind  {*this, "kind",   {.place = {0, 60, 50, 15}, .caption = "&Sort &Kind:", .tab = 4}};
    ListBox  list  {*this, "list",   {.place = {60, 60, 90, 60}, .tab = 5}};
    Frame    frame {*this, "frame",  {.place = {0, 130, 290, 60}, .caption = "&Frame", .tab = 6}};
    Label    within{frame, "within", {.place = {0, 20, 50, 15}, .caption = "plain", .tab = 7}};
    CheckBox check {frame, "check",  {.place = {60, 20, 90, 17}, .caption = "S&hared", .tab = 8}};
    Button   go    {frame, "go",     {.place = {160, 20, 75, 23}, .caption = "&Go", .tab = 9}};
    Button   other {*this, "other",  {.place = {0, 200, 75, 23}, .caption = "Also s&hared", .tab = 10}};
    TabStrip tabs  {*this, "tabs",   {.place = {0, 230, 290, 60}, .captions = {"&1 One", "T&wo"}, .tab = 11}};
    Button   third {*this, "third",  {.place = {80, 200, 75, 23}, .caption = "T&hird &", .tab = 12}};
    Button   quick {*this, "quick",  {.place = {160, 200, 75, 23}, .caption = "Ju&&m&p", .tab = 12}};
    Label    last  {*this, "last",   {.place = {0, 280, 50, 15}, .caption = "&Last:", .tab = 13}};
    // clang-format on
};

struct Accelerators : testing::Test {
    FakeHost host;
    ScriptedEngine engine;
    Environment environment{engine, host, host, Locale{}};
    Letters form{environment};

    void while_open(const std::function<void()>& story) {
        engine.while_open = [&](Form&) { story(); };
        form.show_modal();
    }
    /// The control that answers, with an asterisk where no other one does.
    std::string answers(char letter) const {
        const Accelerator found = accelerator_of(form, letter);
        return found.control ? found.control->name() + (found.alone ? "*" : "") : "";
    }
};

} // namespace

TEST_F(Accelerators, TheLetterAfterTheFirstSingleAmpersandCountsInEitherCase) {
    while_open([&] {
        EXPECT_EQ(answers('n'), "name*");
        EXPECT_EQ(answers('N'), "name*");
        EXPECT_EQ(answers('d'), "") << "Two ampersands are one to be read.";
        EXPECT_EQ(answers('s'), "kind*");
        EXPECT_EQ(answers('k'), "");
        EXPECT_EQ(answers('g'), "go*");
        EXPECT_EQ(answers('l'), "last*");
        EXPECT_EQ(answers('p'), "quick*") << "It ends the caption.";
        EXPECT_EQ(answers('z'), "") << "It is data.";
        EXPECT_EQ(answers('x'), "");
    });
}

TEST_F(Accelerators, TheTabWithTheLetterIsSelected) {
    while_open([&] {
        EXPECT_EQ(answers('1'), "tabs*");
        EXPECT_EQ(answers('w'), "tabs*");
        EXPECT_EQ(tab_with(form.tabs, '1'), 1);
        EXPECT_EQ(tab_with(form.tabs, 'W'), 2);
        EXPECT_EQ(tab_with(form.tabs, 'o'), 0);
    });
}

TEST_F(Accelerators, OfSeveralTheNextOneAfterTheFocusAnswersAndRoundTheEnd) {
    while_open([&] {
        EXPECT_EQ(form.focused(), &form.box);
        EXPECT_EQ(answers('h'), "check");
        form.check.set_focus();
        EXPECT_EQ(answers('h'), "other");
        form.other.set_focus();
        EXPECT_EQ(answers('h'), "third");
        form.third.set_focus();
        EXPECT_EQ(answers('h'), "check");
    });
}

TEST_F(Accelerators, OnlyWhatShowsAndTakesInputAnswers) {
    while_open([&] {
        form.check.set_enabled(false);
        EXPECT_EQ(answers('h'), "other");
        form.other.set_visible(false);
        EXPECT_EQ(answers('h'), "third*");
        form.frame.set_visible(false);
        EXPECT_EQ(answers('g'), "");
        EXPECT_EQ(answers('f'), "");
    });
}

TEST_F(Accelerators, ALabelAndAFrameLeadToTheNextControlInTabOrder) {
    while_open([&] {
        EXPECT_EQ(focus_for(form.name), &form.box);
        EXPECT_EQ(focus_for(form.frame), &form.check);
        EXPECT_EQ(focus_for(form.go), &form.go);
        form.check.set_enabled(false);
        EXPECT_EQ(focus_for(form.within), &form.go);
        EXPECT_EQ(focus_for(form.last), nullptr);
    });
}
