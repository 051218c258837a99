#include "desk.h"

#include "forms/button.h"
#include "forms/list_control.h"
#include "forms/win32/gdi.h"
#include "forms/win32/wide.h"

namespace brx::checks {

namespace {

class ListTest : public OnWindows {};

class Lists : public Form {
public:
    explicit Lists(Environment& on) : Form(on, {.name = "Lists", .caption = "Lists", .size = {400, 300}}) {}

    std::string events;
    std::function<void()> on_load;

    // clang-format off
    ListBox  Box  {*this, "Box",   {.place = {10, 10, 150, 100}, .tab = 1,
                                    .Click = [this] { events += "Click" + std::to_string(Box.selected()) + " "; },
                                    .DblClick = [this] { events += "DblClick "; }}};
    ComboBox Combo{*this, "Combo", {.place = {200, 10, 150, 23}, .tab = 2,
                                    .Click = [this] { events += "Combo" + std::to_string(Combo.selected()) + " "; }}};
    Button   Press{*this, "Press", {.place = {10, 200, 75, 23}, .caption = "Press", .tab = 3, .is_default = true,
                                    .Click = [this] { events += "Press "; }}};
    // clang-format on

    void Form_Load() override {
        if (on_load) on_load();
        events.clear();
    }
};

std::wstring line_of(HWND list, int index, UINT length_message = LB_GETTEXTLEN,
                     UINT text_message = LB_GETTEXT) {
    const LRESULT length = SendMessageW(list, length_message, static_cast<WPARAM>(index), 0);
    if (length < 0) return L"(none)";
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    SendMessageW(list, text_message, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

std::wstring combo_line_of(HWND list, int index) {
    return line_of(list, index, CB_GETLBTEXTLEN, CB_GETLBTEXT);
}

void add_three(ListControl& list) {
    for (const char* each : {"one", "two", "three"}) list.add_line(each);
}

const std::vector<std::wstring> odd_lines = {
    L"a & b && c",
    L"tab\there",
    L"  blanks around  ",
    L"\u05E9\u05DC\u05D5\u05DD \u202Ertl",
    L"\xD83D\xDE00 x",
    L"lone \xD800 surrogate",
    std::wstring(3000, L'w'),
    L"",
};

} // namespace

TEST_F(ListTest, LinesKeepTheirTextExactly) {
    Lists form(environment);
    form.on_load = [&] {
        for (const std::wstring& each : odd_lines) {
            form.Box.add_line(from_wide(each));
            form.Combo.add_line(from_wide(each));
        }
    };
    show(form, [&](Hands& hands) {
        hands.form("Lists");
        for (std::size_t i = 0; i < odd_lines.size(); ++i) {
            EXPECT_EQ(line_of(hands.control("Lists", "Box"), static_cast<int>(i)), odd_lines[i]);
            EXPECT_EQ(combo_line_of(hands.control("Lists", "Combo"), static_cast<int>(i)), odd_lines[i]);
        }
    });
}

TEST_F(ListTest, LinesAddedAtTheEndLeaveTheOthersAlone) {
    Lists form(environment);
    form.on_load = [&] { add_three(form.Box); };
    show(form, [&](Hands& hands) {
        hands.form("Lists");
        const HWND box = hands.control("Lists", "Box");
        SendMessageW(box, LB_SETITEMDATA, 1, 4711); // a mark that only the window knows
        hands.run([&] { form.run_event([&] { form.Box.add_line("four"); }); });
        EXPECT_EQ(SendMessageW(box, LB_GETCOUNT, 0, 0), 4);
        EXPECT_EQ(line_of(box, 3), L"four");
        EXPECT_EQ(SendMessageW(box, LB_GETITEMDATA, 1, 0), 4711);
    });
}

TEST_F(ListTest, AListFilledAnewWithAsManyLinesShowsTheNewOnes) {
    Lists form(environment);
    form.on_load = [&] {
        add_three(form.Box);
        add_three(form.Combo);
    };
    show(form, [&](Hands& hands) {
        hands.form("Lists");
        hands.run([&] {
            form.run_event([&] {
                for (ListControl* list :
                     {static_cast<ListControl*>(&form.Box), static_cast<ListControl*>(&form.Combo)}) {
                    list->clear();
                    for (const char* each : {"four", "five", "six"}) list->add_line(each);
                    list->select(2);
                }
            });
        });
        const HWND box = hands.control("Lists", "Box");
        EXPECT_EQ(SendMessageW(box, LB_GETCOUNT, 0, 0), 3);
        EXPECT_EQ(line_of(box, 0), L"four");
        EXPECT_EQ(line_of(box, 2), L"six");
        EXPECT_EQ(SendMessageW(box, LB_GETCURSEL, 0, 0), 2);
        const HWND combo = hands.control("Lists", "Combo");
        EXPECT_EQ(combo_line_of(combo, 0), L"four");
        EXPECT_EQ(Hands::text(combo), L"six");
    });
    EXPECT_EQ(form.events, "Click2 Combo2 ");
}

TEST_F(ListTest, ALineInsertedAboveMovesTheSelectionAlong) {
    Lists form(environment);
    form.on_load = [&] {
        add_three(form.Box);
        form.Box.select(1);
    };
    show(form, [&](Hands& hands) {
        hands.form("Lists");
        hands.run([&] { form.run_event([&] { form.Box.insert_line(0, "zero"); }); });
        const HWND box = hands.control("Lists", "Box");
        EXPECT_EQ(line_of(box, 0), L"zero");
        EXPECT_EQ(line_of(box, 3), L"three");
        EXPECT_EQ(SendMessageW(box, LB_GETCURSEL, 0, 0), 2);
    });
    EXPECT_EQ(form.events, "");
}

TEST_F(ListTest, AClickOnTheSelectedLineIsToldAndAKeyThatStaysThereIsNot) {
    Lists form(environment);
    form.on_load = [&] { add_three(form.Box); };
    show(form, [&](Hands& hands) {
        hands.form("Lists");
        const HWND box = hands.control("Lists", "Box");
        const int height = static_cast<int>(SendMessageW(box, LB_GETITEMHEIGHT, 0, 0));
        hands.click(box, 5, height + height / 2);
        hands.click(box, 5, height + height / 2);
        hands.key(VK_DOWN);
        hands.key(VK_DOWN);
        hands.click(box, 5, 90); // below the last one
    });
    EXPECT_EQ(form.events, "Click1 Click1 Click2 ");
}

TEST_F(ListTest, ADoubleClickCountsOnALineAndNotBelowTheLast) {
    Lists form(environment);
    form.on_load = [&] { add_three(form.Box); };
    show(form, [&](Hands& hands) {
        hands.form("Lists");
        const HWND box = hands.control("Lists", "Box");
        hands.double_click(box, 5, 5);
        hands.run([&] { EXPECT_EQ(form.events, "Click0 DblClick "); });
        hands.double_click(box, 5, 5);
        hands.run([&] { EXPECT_EQ(form.events, "Click0 DblClick Click0 DblClick "); });
        hands.double_click(box, 5, 80);
    });
    EXPECT_EQ(form.events.find("DblClick", 30), std::string::npos) << form.events;
}

TEST_F(ListTest, ASelectionThatIsRefusedIsTakenBack) {
    Lists form(environment);
    form.on_load = [&] {
        add_three(form.Box);
        form.Box.select(0);
    };
    show(form, [&](Hands& hands) {
        hands.form("Lists");
        const HWND box = hands.control("Lists", "Box");
        hands.run([&] {
            const CodeTurn busy;
            SendMessageW(box, LB_SETCURSEL, 2, 0);
            SendMessageW(GetParent(box), WM_COMMAND, MAKEWPARAM(0, LBN_SELCHANGE),
                         reinterpret_cast<LPARAM>(box));
        });
        EXPECT_EQ(SendMessageW(box, LB_GETCURSEL, 0, 0), 0);
    });
    EXPECT_EQ(form.events, "");
}

TEST_F(ListTest, TheKeyboardChoosesInADropDownList) {
    Lists form(environment);
    form.on_load = [&] { add_three(form.Combo); };
    show(form, [&](Hands& hands) {
        hands.form("Lists");
        hands.key(VK_TAB);
        hands.key(VK_DOWN);
        hands.key(VK_DOWN);
        EXPECT_EQ(Hands::text(hands.control("Lists", "Combo")), L"two");
        hands.type("t");
        hands.key(VK_F4);
        hands.key(VK_END);
        hands.key(VK_RETURN);
        EXPECT_EQ(Hands::text(hands.control("Lists", "Combo")), L"three");
    });
    EXPECT_EQ(form.events, "Combo0 Combo1 Combo2 ");
}

TEST_F(ListTest, ALongListIsThereAtOnce) {
    constexpr int many = 10'000;
    Lists form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Lists");
        const DWORD start = GetTickCount();
        hands.run([&] {
            form.run_event([&] {
                for (int i = 0; i < many; ++i) form.Box.add_line("Plant.Line.Item" + std::to_string(i));
            });
        });
        const DWORD once = GetTickCount() - start;
        EXPECT_LT(once, 3000u);
        EXPECT_EQ(SendMessageW(hands.control("Lists", "Box"), LB_GETCOUNT, 0, 0), many);
        std::printf("%d lines in %lu ms\n", many, once);
    });
}

TEST_F(ListTest, LinesTooLongForTheBoxCanBeScrolledAndDropDownsAreWideEnough) {
    Lists form(environment);
    const std::string name(120, 'W');
    form.on_load = [&] {
        form.Box.add_line(name);
        form.Combo.add_line(name);
        form.Box.add_line("short");
    };
    show(form, [&](Hands& hands) {
        hands.form("Lists");
        const HWND box = hands.control("Lists", "Box");
        const HWND combo = hands.control("Lists", "Combo");
        SIZE size{};
        hands.run([&] {
            const HDC dc = GetDC(box);
            SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(box, WM_GETFONT, 0, 0)));
            GetTextExtentPoint32W(dc, to_wide(name).c_str(), 120, &size);
            ReleaseDC(box, dc);
        });
        EXPECT_GT(size.cx, 500);
        EXPECT_GE(SendMessageW(box, LB_GETHORIZONTALEXTENT, 0, 0), size.cx);
        EXPECT_GE(SendMessageW(combo, CB_GETDROPPEDWIDTH, 0, 0), size.cx);
        hands.run([&] { form.run_event([&] { form.Box.clear(); }); });
        EXPECT_LT(SendMessageW(box, LB_GETHORIZONTALEXTENT, 0, 0), 150);
    });
}

TEST_F(ListTest, AListScrollsExactlyAsFarAsItsWidestLineIsWide) {
    Lists form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Lists");
        const HWND box = hands.control("Lists", "Box");
        for (std::wstring widest :
             {std::wstring(90, L'W'), std::wstring(200, L'i'), std::wstring(80, L'\u0416'),
              std::wstring(60, L'\u6F22'), L"tab\there and " + std::wstring(120, L'm')}) {
            int extent = 0;
            hands.run([&] {
                form.run_event([&] {
                    form.Box.clear();
                    form.Box.add_line("short");
                    form.Box.add_line(from_wide(widest));
                    form.Box.add_line("short again");
                });
                const TextMeasure measure(box, reinterpret_cast<HFONT>(SendMessageW(box, WM_GETFONT, 0, 0)));
                extent = measure.width(widest.data(), widest.size()) + 2 * GetSystemMetrics(SM_CXEDGE);
            });
            EXPECT_EQ(SendMessageW(box, LB_GETHORIZONTALEXTENT, 0, 0), extent);
        }
    });
}

TEST_F(ListTest, ADropDownListIsAsHighAsDesignedAndDropsForItsLines) {
    Lists form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Lists");
        const HWND combo = hands.control("Lists", "Combo");
        RECT closed{};
        GetWindowRect(combo, &closed);
        EXPECT_EQ(closed.bottom - closed.top, 23);
        const auto dropped_lines = [&] {
            COMBOBOXINFO info{};
            info.cbSize = sizeof info;
            SendMessageW(combo, CB_SHOWDROPDOWN, TRUE, 0);
            SendMessageW(combo, CB_GETCOMBOBOXINFO, 0, reinterpret_cast<LPARAM>(&info));
            RECT list{};
            GetClientRect(info.hwndList, &list);
            SendMessageW(combo, CB_SHOWDROPDOWN, FALSE, 0);
            return list.bottom / SendMessageW(combo, CB_GETITEMHEIGHT, 0, 0);
        };
        for (const auto& [lines, expected] : {std::pair{5, 5}, {12, 12}, {200, 20}}) {
            hands.run([&, count = lines] {
                form.run_event([&] {
                    form.Combo.clear();
                    for (int i = 0; i < count; ++i) form.Combo.add_line("line");
                });
            });
            EXPECT_EQ(dropped_lines(), expected);
            GetWindowRect(combo, &closed);
            EXPECT_EQ(closed.bottom - closed.top, 23);
        }
    });
}

} // namespace brx::checks
