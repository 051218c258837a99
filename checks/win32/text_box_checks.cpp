#include "desk/desk.h"

#include "forms/win32/wide.h"
#include "rules/box_form.h"

namespace brx::checks {

namespace {

class TextBoxTest : public OnWindows {};

std::pair<DWORD, DWORD> selection_of(HWND box) {
    DWORD from = 0;
    DWORD to = 0;
    SendMessageW(box, EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
    return {from, to};
}

void put_on_clipboard(const std::wstring& text) {
    ASSERT_TRUE(OpenClipboard(nullptr));
    EmptyClipboard();
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(wchar_t));
    text.copy(static_cast<wchar_t*>(GlobalLock(memory)), text.size());
    static_cast<wchar_t*>(GlobalLock(memory))[text.size()] = L'\0';
    GlobalUnlock(memory);
    SetClipboardData(CF_UNICODETEXT, memory);
    CloseClipboard();
}

} // namespace

TEST_F(TextBoxTest, AHandlerDiscardsOrReplacesTheTypedCharacter) {
    BoxForm form(environment);
    form.initial = "";
    form.on_key_press = [](std::int32_t& key) {
        if (key == 'b') key = 0;
        if (key == 'c') key = 'C';
        if (key == 'e') key = 0x20AC;
    };
    show(form, [&](Hands& hands) {
        hands.form("Boxes");
        hands.type("abcde");
        EXPECT_EQ(Hands::text(hands.control("Boxes", "Box")), L"aCd\u20AC");
    });
    EXPECT_EQ(form.Box.text(), "aCd\u20AC");
}

TEST_F(TextBoxTest, ControlAndVPastesAndControlAndASelectsEverything) {
    put_on_clipboard(L"new");
    BoxForm form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Boxes");
        hands.keys({VK_CONTROL, 'A'});
        EXPECT_EQ(selection_of(hands.focus()), (std::pair<DWORD, DWORD>{0, 5}));
        hands.keys({VK_CONTROL, 'V'});
        hands.run([&] { EXPECT_EQ(form.Box.text(), "new"); });
        hands.keys({VK_CONTROL, 'Z'});
        hands.run([&] { EXPECT_EQ(form.Box.text(), "start"); });
    });
}

TEST_F(TextBoxTest, TheEditCommandsOfTheKeyboardReachNoKeyPress) {
    put_on_clipboard(L"12x");
    BoxForm form(environment);
    form.on_key_press = [](std::int32_t& key) { key = 0; };
    show(form, [&](Hands& hands) {
        hands.form("Boxes");
        const auto reads = [&](const char* expected) {
            hands.run([&] { EXPECT_EQ(form.Box.text(), expected); });
        };
        hands.keys({VK_CONTROL, 'A'});
        hands.keys({VK_CONTROL, 'V'});
        reads("12x");
        hands.keys({VK_CONTROL, 'Z'});
        reads("start");
        hands.keys({VK_CONTROL, 'A'});
        hands.keys({VK_CONTROL, 'X'});
        reads("");
        hands.keys({VK_CONTROL, 'V'});
        hands.keys({VK_CONTROL, 'A'});
        hands.keys({VK_CONTROL, 'C'});
        hands.key(VK_END);
        hands.keys({VK_CONTROL, 'V'});
        reads("startstart");
        hands.run([&] { EXPECT_EQ(form.events.find("Press"), std::string::npos) << form.events; });
        hands.key(VK_BACK);
        reads("startstart");
        hands.run([&] { EXPECT_NE(form.events.find("Press8 "), std::string::npos) << form.events; });
    });
}

TEST_F(TextBoxTest, ADisplayOnlyBoxTakesTheFocusButNoText) {
    put_on_clipboard(L"pasted");
    BoxForm form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Boxes");
        const HWND box = hands.control("Boxes", "Fixed");
        hands.key(VK_TAB);
        EXPECT_EQ(hands.focus(), box);
        hands.type("a");
        hands.key(VK_DELETE);
        SendMessageW(box, WM_PASTE, 0, 0);
        EXPECT_EQ(Hands::text(box), L"fixed");
        // Programs can set it past its style, which is no person's doing either.
        SendMessageW(box, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"forced"));
        hands.wait_until_idle();
        EXPECT_EQ(Hands::text(box), L"fixed");
        SendMessageW(box, EM_SETSEL, 0, -1);
        SendMessageW(box, WM_COPY, 0, 0);
        ASSERT_TRUE(OpenClipboard(nullptr));
        EXPECT_STREQ(static_cast<const wchar_t*>(GlobalLock(GetClipboardData(CF_UNICODETEXT))), L"fixed");
        CloseClipboard();
    });
    EXPECT_EQ(form.Fixed.text(), "fixed");
    EXPECT_EQ(form.events, "");
}

TEST_F(TextBoxTest, WhatAnotherProgramSetsCountsAsTyped) {
    BoxForm form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Boxes");
        SendMessageW(hands.control("Boxes", "Box"), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"automated"));
    });
    EXPECT_EQ(form.Box.text(), "automated");
    EXPECT_EQ(form.events, "Change ");
}

TEST_F(TextBoxTest, TextOfAnyLengthAndAnyCharactersComesThroughWhole) {
    const std::wstring wide =
        L"\xD83D\xDE00 \xD800 lone \xDC00 \u202Eright to left\u202C a&b\t" + std::wstring(100'000, L'x');
    BoxForm form(environment);
    form.initial = from_wide(wide);
    show(form, [&](Hands& hands) {
        hands.form("Boxes");
        const HWND box = hands.control("Boxes", "Box");
        EXPECT_EQ(Hands::text(box), wide);
        hands.key(VK_END);
        hands.type("y");
        EXPECT_EQ(Hands::text(box), wide + L"y");
    });
    EXPECT_EQ(form.Box.text(), from_wide(wide) + "y");
}

TEST_F(TextBoxTest, ATextThatTheWindowCannotHoldStaysWholeInTheControl) {
    const std::string with_nul("before\0after", 12);
    BoxForm form(environment);
    form.initial = with_nul;
    show(form, [&](Hands& hands) {
        hands.form("Boxes");
        EXPECT_EQ(Hands::text(hands.control("Boxes", "Box")), L"before");
        hands.key(VK_TAB);
        hands.keys({VK_SHIFT, VK_TAB});
        hands.run([&] { form.run_event([&] { form.Fixed.set_enabled(false); }); });
        hands.run([&] { EXPECT_EQ(form.Box.text(), with_nul); });
    });
    EXPECT_EQ(form.events.find("Change"), std::string::npos) << form.events;
}

TEST_F(TextBoxTest, OpensWithTheWholeTextSelectedWhetherTheFormSelectedItOrNot) {
    for (const bool selected : {true, false}) {
        BoxForm form(environment);
        form.on_load = [&] {
            if (selected) form.Box.select_all();
        };
        show(form, [&](Hands& hands) {
            hands.form("Boxes");
            EXPECT_EQ(selection_of(hands.control("Boxes", "Box")), (std::pair<DWORD, DWORD>{0, 5}));
        });
    }
}

TEST_F(TextBoxTest, AClickIntoABoxThatSelectsItsTextLeavesItSelected) {
    BoxForm form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Boxes");
        const HWND other = hands.control("Boxes", "Other");
        hands.click(other, 30, 5);
        EXPECT_EQ(hands.focus(), other);
        EXPECT_EQ(selection_of(other), (std::pair<DWORD, DWORD>{0, 10}));
        hands.click(other, 30, 5);
        const auto [from, to] = selection_of(other);
        EXPECT_EQ(from, to);
    });
}

} // namespace brx::checks
