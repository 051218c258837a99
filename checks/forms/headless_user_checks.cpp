#include "forms/headless/user.h"
#include "one_form.h"

#include <gtest/gtest.h>

#include <thread>

using namespace brx;
using namespace brx::checks;

// What the scripted user's hands do where windows come and go under them.

namespace {

struct HeadlessUsers : testing::Test {
    FakeHost host;
    Baton baton;
    HeadlessEngine engine{baton};
    Environment environment{engine, host, host, Locale{}};
    OneForm form{environment};
    HeadlessUser user{engine};

    HeadlessUsers() {
        form.on_load = [this] { form.list.add_line("one"); };
    }
    /// Shows the form while a person acts on another thread, whose last deed closes it.
    void show(const std::function<void()>& person) {
        std::thread hands(person);
        form.show_modal();
        hands.join();
    }
};

} // namespace

TEST_F(HeadlessUsers, TheSecondClickFollowsTheFirstOne) {
    show([&] {
        baton.hand_over_last([&] {
            form.notes.clear();
            EXPECT_TRUE(user.double_click("list", 0));
            EXPECT_EQ(form.notes, (Notes{"box_LostFocus", "list_Click", "list_DblClick"}));
            EXPECT_FALSE(user.double_click("list", 1)) << "There is no such line.";
            EXPECT_FALSE(user.double_click("nothing", 0));
            EXPECT_FALSE(user.double_click("check", 0)) << "It has no lines.";
            form.unload();
        });
    });
}

TEST_F(HeadlessUsers, TheSecondClickMissesAFormThatTheFirstOneClosed) {
    form.on_list = [&] { form.unload(); };
    show([&] { baton.hand_over_last([&] { EXPECT_FALSE(user.double_click("list", 0)); }); });
    EXPECT_EQ(form.notes.back(), "Form_Unload");
    EXPECT_EQ(std::count(form.notes.begin(), form.notes.end(), "list_DblClick"), 0);
}

TEST_F(HeadlessUsers, TheSecondClickMissesAListThatTheFirstOneDisabled) {
    form.on_list = [&] { form.list.set_enabled(false); };
    show([&] {
        baton.hand_over_last([&] {
            EXPECT_FALSE(user.double_click("list", 0));
            form.unload();
        });
    });
    EXPECT_EQ(std::count(form.notes.begin(), form.notes.end(), "list_DblClick"), 0);
}

TEST_F(HeadlessUsers, TheSecondClickMissesWhatAMessageCameOver) {
    bool twice = true;
    form.on_list = [&] { form.show_message({"Hello", 0, "Greeting"}); };
    show([&] {
        baton.hand_over([&] { twice = user.double_click("list", 0); });
        baton.hand_over([&] { engine.answer(message::ok); });
        baton.hand_over_last([&] { form.unload(); });
    });
    EXPECT_FALSE(twice);
    EXPECT_EQ(std::count(form.notes.begin(), form.notes.end(), "list_DblClick"), 0);
}

TEST_F(HeadlessUsers, ALetterTypedWhereNoCharactersAreTakenIsAnAccelerator) {
    show([&] {
        baton.hand_over_last([&] {
            for (const char* from : {"button", "check"}) {
                EXPECT_TRUE(user.focus(from));
                EXPECT_TRUE(user.type("tx"));
                EXPECT_EQ(form.focused(), &form.box) << from;
                EXPECT_EQ(form.box.text(), "x") << "The text was selected.";
            }
            EXPECT_TRUE(user.focus("button"));
            EXPECT_FALSE(user.type("z")) << "Nothing has this letter.";
            EXPECT_TRUE(user.type("h"));
            EXPECT_EQ(form.check.value(), 1);
            EXPECT_TRUE(user.focus("list"));
            EXPECT_FALSE(user.type("t")) << "A list looks for it among its lines.";
            form.unload();
        });
    });
}
