#include "forms/busy_cursor.h"
#include "forms/setup_form.h"
#include "one_form.h"

#include <gtest/gtest.h>

using namespace brx;
using namespace brx::checks;

namespace {

struct Forms : testing::Test, OpenForm {};

/// A peer that notes what it is asked to show again.
struct NotingPeer : Peer {
    explicit NotingPeer(Element& element) : Peer(element) {}
    std::vector<Aspect> refreshed;
    void refresh(Aspect aspects) override { refreshed.push_back(aspects); }
};

} // namespace

TEST_F(Forms, LoadsBeforeItOpensAndUnloadsAfterItHasClosed) {
    form.show_modal();
    EXPECT_EQ(form.notes.front(), "Form_Load");
    EXPECT_EQ(form.notes.back(), "Form_Unload");
    EXPECT_EQ(engine.events, (Notes{"open OneForm", "close OneForm"}));
    EXPECT_FALSE(form.loaded());
}

TEST_F(Forms, AFormThatUnloadsWhileItLoadsNeverOpens) {
    form.on_load = [&] { form.unload(); };
    form.show_modal();
    EXPECT_TRUE(engine.events.empty());
    EXPECT_EQ(form.notes, (Notes{"Form_Load", "Form_Unload"}));
}

TEST_F(Forms, AFormThatCannotBeOpenedUnloadsAndItsCallerGetsTheError) {
    engine.while_open = [](Form&) { throw Error(error::out_of_memory); };
    try {
        form.show_modal();
        ADD_FAILURE() << "No error.";
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), error::out_of_memory);
    }
    EXPECT_EQ(form.notes, (Notes{"Form_Load", "box_GotFocus", "Form_Unload"}));
    EXPECT_FALSE(form.loaded());
    EXPECT_EQ(form.focused(), nullptr);
    EXPECT_EQ(turn::top_form(), nullptr);
    EXPECT_TRUE(host.reports.empty());

    while_open([&] { EXPECT_EQ(form.focused(), &form.box) << "It can be shown later."; });
}

TEST_F(Forms, AFormThatCannotBeOpenedOverAnotherLeavesThatOneInFront) {
    while_open([&] {
        form.on_click = [&] {
            OneForm over_it(environment);
            engine.while_open = [](Form&) { throw Error(error::out_of_memory); };
            EXPECT_THROW(over_it.show_modal(), Error);
            EXPECT_EQ(over_it.notes.back(), "Form_Unload");
            EXPECT_TRUE(turn::is_code_running());
        };
        EXPECT_TRUE(form.button.user_click());
        EXPECT_EQ(turn::front(), &form);
        EXPECT_TRUE(form.check.user_toggle());
    });
}

TEST_F(Forms, AnInstanceThatIsShownAgainStartsFromItsDesign) {
    while_open([&] {
        form.set_caption("Changed");
        form.set_help_topic(5);
        form.box.set_text("typed");
        form.list.add_line("left over");
        form.check.set_value(1);
        form.label.set_caption("changed");
        form.button.set_enabled(false);
        form.box.set_back_color(color::red);
        form.panel.bring_to_front();
        for (Control* control : form.controls()) control->set_visible(false);
    });
    while_open([&] {
        EXPECT_EQ(form.caption(), "One form");
        EXPECT_EQ(form.help_topic(), 0);
        EXPECT_EQ(form.box.text(), "design");
        EXPECT_EQ(form.list.count(), 0);
        EXPECT_EQ(form.check.value(), 0);
        EXPECT_EQ(form.label.caption(), "&Text:");
        EXPECT_TRUE(form.button.enabled());
        EXPECT_EQ(form.box.back_color(), color::window);
        EXPECT_FALSE(form.panel.in_front());
        for (const Control* control : form.controls())
            EXPECT_EQ(control->visible(), control != &form.timer) << control->name();
    });
}

TEST_F(Forms, SettingFieldsBeforeItIsShownDoesNotLoadIt) {
    EXPECT_FALSE(form.loaded());
    EXPECT_TRUE(form.notes.empty());
    EXPECT_FALSE(form.button.user_click()) << "Nobody can press a button of a form that is not open.";
}

TEST_F(Forms, ClosingTheWindowRunsNoButton) {
    while_open([&] {
        EXPECT_TRUE(form.user_close());
        EXPECT_FALSE(form.loaded());
        EXPECT_TRUE(form.notes.empty());
    });
}

TEST_F(Forms, KnowsItsDefaultAndItsCancelButton) {
    EXPECT_EQ(form.default_button(), &form.button);
    EXPECT_EQ(form.cancel_button(), &form.leave);
}

TEST_F(Forms, PeersAreBroughtUpToDateOnceWhenAHandlerReturns) {
    while_open([&] {
        NotingPeer peer(form.list);
        form.on_click = [&] {
            for (int i = 0; i < 1000; ++i) form.list.add_line("line");
            form.list.select(3);
            EXPECT_TRUE(peer.refreshed.empty());
        };
        form.button.user_click();
        EXPECT_EQ(peer.refreshed, (std::vector<Aspect>{Aspect::lines | Aspect::selection}));
    });
}

TEST_F(Forms, AnotherCaptionIsShown) {
    while_open([&] {
        NotingPeer peer(form);
        form.on_click = [&] { form.set_caption("Another"); };
        form.button.user_click();
        EXPECT_EQ(peer.refreshed, (std::vector<Aspect>{Aspect::text}));
    });
}

TEST_F(Forms, PeersAreBroughtUpToDateBeforeARepaintAMessageOrAFormInFront) {
    while_open([&] {
        NotingPeer peer(form.list);
        form.on_click = [&] {
            form.list.add_line("first");
            form.repaint();
            EXPECT_EQ(peer.refreshed.size(), 1U);
            EXPECT_EQ(engine.events.back(), "repaint OneForm");
            form.list.add_line("second");
            engine.while_asking = [&](const Message&) {
                EXPECT_EQ(peer.refreshed.size(), 2U);
                return message::ok;
            };
            form.show_message({"Hello", 0, "Greeting"});
            form.list.add_line("third");
            OneForm in_front(environment);
            engine.while_open = [&](Form&) { EXPECT_EQ(peer.refreshed.size(), 3U); };
            in_front.show_modal();
        };
        form.button.user_click();
    });
}

TEST_F(Forms, HidingAFrameIsTakenUpByEverythingInIt) {
    while_open([&] {
        NotingPeer inside(form.box);
        NotingPeer outside(form.list);
        form.on_click = [&] { form.frame.set_visible(false); };
        form.button.user_click();
        EXPECT_EQ(inside.refreshed, (std::vector<Aspect>{Aspect::visible}));
        EXPECT_TRUE(outside.refreshed.empty());
    });
}

TEST_F(Forms, AValueThatIsAlreadyThereIsNotShownAgain) {
    while_open([&] {
        NotingPeer peer(form.box);
        form.on_click = [&] {
            form.box.set_text("design");
            form.box.set_enabled(true);
            form.box.set_visible(true);
            form.box.set_place(form.box.place());
            form.box.set_back_color(color::window);
            form.box.set_fore_color(color::window_text);
            form.set_caption("One form");
            form.label.set_caption("&Text:");
        };
        NotingPeer label(form.label);
        NotingPeer whole(form);
        form.button.user_click();
        EXPECT_TRUE(peer.refreshed.empty());
        EXPECT_TRUE(whole.refreshed.empty());
        EXPECT_TRUE(label.refreshed.empty());
    });
}

TEST_F(Forms, AFormWithNothingThatTakesTheFocusOpensWithout) {
    struct Notice : Form {
        explicit Notice(Environment& environment)
            : Form(environment, {.name = "Notice", .caption = "", .size = {}}) {}
        Label text{*this, "text", {.place = {}, .caption = "Read this"}};
    };
    Notice notice(environment);
    engine.while_open = [&](Form&) { EXPECT_EQ(notice.focused(), nullptr); };
    notice.show_modal();
    EXPECT_TRUE(host.reports.empty());
}

TEST_F(Forms, WhileAFormIsInFrontTheOneBelowTakesNoInputButItsTimerTicks) {
    while_open([&] {
        form.on_click = [&] {
            OneForm in_front(environment);
            engine.while_open = [&](Form&) {
                EXPECT_FALSE(form.check.user_toggle());
                EXPECT_FALSE(form.user_close());
                EXPECT_TRUE(in_front.check.user_toggle());
                EXPECT_TRUE(form.timer.tick());
            };
            in_front.show_modal();
            EXPECT_TRUE(turn::is_code_running());
        };
        form.button.user_click();
        EXPECT_TRUE(form.check.user_toggle()) << "It is in front again.";
    });
}

TEST_F(Forms, SomethingThatEscapesAHandlerIsReportedAndGoesNoFurther) {
    while_open([&] {
        form.on_click = [] { throw Error(error::overflow); };
        EXPECT_TRUE(form.button.user_click());
        ASSERT_EQ(host.reports.size(), 1U);
        EXPECT_EQ(host.reports[0].what.number, error::overflow);
        EXPECT_EQ(host.reports[0].what.location, "OneForm.event");
        EXPECT_FALSE(turn::is_code_running());
    });
}

TEST_F(Forms, TheBusyCursorLastsAsLongAsItsOwner) {
    while_open([&] {
        engine.events.clear();
        {
            const BusyCursor busy(form);
            EXPECT_EQ(engine.events, (Notes{"hourglass on"}));
        }
        EXPECT_EQ(engine.events, (Notes{"hourglass on", "hourglass off"}));
    });
}

TEST_F(Forms, F1OpensTheHelpFileAtTheFormsTopic) {
    form.on_load = [&] { SetupForm(form, 193); };
    while_open([&] {
        EXPECT_TRUE(form.user_help());
        EXPECT_EQ(engine.events.back(), "help C:\\Plant\\collection.chm 193");
    });
}

TEST_F(Forms, F1AsksForTheHelpFileWhereNoDialogHasAndOpensItsContents) {
    while_open([&] {
        EXPECT_EQ(host.calls.count("hlxHelp.HelpFile"), 0);
        EXPECT_TRUE(form.user_help());
        EXPECT_EQ(engine.events.back(), "help C:\\Plant\\collection.chm 0");
        EXPECT_EQ(host.calls.count("hlxHelp.HelpFile"), 1);
    });
}

TEST_F(Forms, AHelpFileThatDoesNotOpenIsToldUnderTheComponentsNameAndReportedToNobody) {
    std::vector<Message> told;
    engine.while_asking = [&](const Message& message) {
        EXPECT_TRUE(turn::is_message_box_open());
        told.push_back(message);
        return message::ok;
    };
    while_open([&] {
        for (const HelpOutcome outcome : {HelpOutcome::missing, HelpOutcome::not_opened}) {
            engine.help = outcome;
            EXPECT_TRUE(form.user_help());
        }
    });
    EXPECT_EQ(told, (std::vector<Message>{{"The help file C:\\Plant\\collection.chm cannot be found.",
                                           message::exclamation, "brxOpcDlgs6"},
                                          {"The help file C:\\Plant\\collection.chm cannot be opened.",
                                           message::exclamation, "brxOpcDlgs6"}}));
    EXPECT_TRUE(host.all_reports.empty());
}

TEST_F(Forms, WhereTheMessageServiceFailsTheSystemsBoxTellsOfTheHelpFile) {
    host.message_service = std::make_shared<FakeMessageService>(host.calls);
    host.calls.fail_on("hlxMessage.Show");
    engine.help = HelpOutcome::missing;
    int told = 0;
    engine.while_asking = [&](const Message&) {
        ++told;
        return message::ok;
    };
    while_open([&] {
        form.user_help();
        EXPECT_EQ(told, 1);
        engine.while_asking = [](const Message&) -> std::int32_t { throw Error(error::out_of_memory); };
        form.user_help();
    });
    EXPECT_TRUE(host.all_reports.empty()) << "No procedure of the dialog has failed.";
}

TEST_F(Forms, F1DoesNothingWhereTheHostsHelpHasNoPath) {
    host.help_service->path = "";
    while_open([&] {
        form.user_help();
        EXPECT_EQ(engine.events.back(), "open OneForm");
    });
}

TEST_F(Forms, F1DoesNothingWhereTheHostHasNoHelp) {
    host.help_service = nullptr;
    form.on_load = [&] { SetupForm(form, 193); };
    while_open([&] {
        EXPECT_EQ(form.help_topic(), 193) << "The second step of the set-up runs all the same.";
        form.user_help();
        EXPECT_EQ(engine.events.back(), "open OneForm");
    });
    EXPECT_TRUE(host.reports.empty());
}

TEST_F(Forms, MessagesGoToTheHostsServiceWhereItHasOneAndToTheSystemOtherwise) {
    while_open([&] {
        Message asked;
        engine.while_asking = [&](const Message& message) {
            asked = message;
            return message::cancel;
        };
        EXPECT_EQ(form.show_message({"Text", message::question | message::ok_cancel, "Title"}),
                  message::cancel);
        EXPECT_EQ(asked, (Message{"Text", message::question | message::ok_cancel, "Title"}));
    });
    OpenForm with_service;
    with_service.host.message_service = std::make_shared<FakeMessageService>(with_service.host.calls);
    with_service.while_open([&] {
        with_service.engine.while_asking = [](const Message&) -> std::int32_t {
            ADD_FAILURE() << "The system's message box was used.";
            return 0;
        };
        EXPECT_EQ(with_service.form.show_message({"Text", message::critical, "Title"}), message::ok);
        EXPECT_EQ(with_service.host.message_service->shown, (std::vector<Message>{{"Text", 16, "Title"}}));
    });
}
