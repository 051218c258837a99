#include "desk.h"

#include "forms/button.h"
#include "forms/check_box.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/list_control.h"
#include "forms/text_box.h"
#include "forms/win32/dpi.h"
#include "forms/win32/wide.h"

#include <commctrl.h>

namespace brx::checks {

namespace {

class LooksTest : public OnWindows {};

constexpr Color mint = 0x00C0F0C0;

class Sample : public Form {
public:
    explicit Sample(Environment& on, bool resizable = false, const char* font = "")
        : Form(on, {.name = "Sample",
                    .caption = "Sample",
                    .size = {301, 201},
                    .resizable = resizable,
                    .font_family = font}) {}

    std::function<void()> on_press;

    // clang-format off
    TextBox  Box   {*this, "Box",    {.place = {11, 11, 101, 23}, .tab = 1, .anchor = Anchor::stretch_width}};
    TextBox  Fixed {*this, "Fixed",  {.place = {112, 11, 51, 23}, .tab = 2, .display_only = true,
                                      .anchor = Anchor::right}};
    Frame    Group {*this, "Group",  {.place = {11, 41, 201, 101}, .caption = "Group", .tab = 3,
                                      .anchor = Anchor::stretch_width | Anchor::stretch_height}};
    Panel    Area  {Group, "Area",   {.place = {7, 17, 101, 71}, .tab = 4,
                                      .anchor = Anchor::right | Anchor::stretch_height}};
    ListBox  List  {Area,  "List",   {.place = {5, 5, 51, 41}, .tab = 5, .anchor = Anchor::bottom}};
    Label    Data  {*this, "Data",   {.place = {11, 150, 61, 15}, .caption = "short", .tab = 6, .mnemonic = false}};
    CheckBox Tick  {*this, "Tick",   {.place = {90, 150, 61, 17}, .caption = "Tick", .tab = 7, .value = 2}};
    Button   Press {*this, "Press",  {.place = {215, 170, 75, 23}, .caption = "Press", .tab = 8,
                                      .anchor = Anchor::right | Anchor::bottom,
                                      .Click = [this] { if (on_press) on_press(); }}};
    // clang-format on
};

RECT place_in_form(HWND control) {
    RECT rect{};
    GetWindowRect(control, &rect);
    MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

RECT rect_of(LONG left, LONG top, LONG width, LONG height) { return {left, top, left + width, top + height}; }

SIZE client_size(HWND window) {
    RECT rect{};
    GetClientRect(window, &rect);
    return {rect.right, rect.bottom};
}

LOGFONTW font_of(HWND window) {
    LOGFONTW font{};
    GetObjectW(reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)), sizeof font, &font);
    return font;
}

/// What a control is told to paint with.
struct Paint {
    COLORREF text = 0;
    COLORREF background = 0;
    bool told = false;
};

Paint paint_of(Hands& hands, HWND control, UINT message) {
    Paint paint;
    hands.run([&] {
        const HDC dc = GetDC(control);
        SetTextColor(dc, 0x123456);
        const auto brush = reinterpret_cast<HBRUSH>(SendMessageW(
            GetParent(control), message, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(control)));
        LOGBRUSH look{};
        GetObjectW(brush, sizeof look, &look);
        paint = {GetTextColor(dc), look.lbColor,
                 GetTextColor(dc) != 0x123456 && GetBkColor(dc) == look.lbColor};
        ReleaseDC(control, dc);
    });
    return paint;
}

/// A colour of the system, changed as a person does in the settings, until the end.
class SystemColor {
public:
    SystemColor(int index, COLORREF color) : index_(index), before_(GetSysColor(index)) {
        SetSysColors(1, &index_, &color);
    }
    ~SystemColor() { SetSysColors(1, &index_, &before_); }
    SystemColor(const SystemColor&) = delete;
    SystemColor& operator=(const SystemColor&) = delete;

private:
    int index_;
    COLORREF before_;
};

bool operator==(const SIZE& a, const SIZE& b) { return a.cx == b.cx && a.cy == b.cy; }

} // namespace

} // namespace brx::checks

inline bool operator==(const RECT& a, const RECT& b) { return EqualRect(&a, &b) != FALSE; }
inline void PrintTo(const RECT& rect, std::ostream* to) {
    *to << rect.left << "," << rect.top << " to " << rect.right << "," << rect.bottom;
}

namespace brx::checks {

TEST_F(LooksTest, ControlsLieWhereTheyAreDesignedAtEveryScale) {
    Sample form(environment);
    show(form, [&](Hands& hands) {
        const HWND window = hands.form("Sample");
        for (const int dpi : {96, 120, 144, 192, 96}) {
            const RECT proposed{10, 10, 500, 500};
            SendMessageW(window, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&proposed));
            const auto at_scale = [&](LONG left, LONG top, LONG width, LONG height) {
                return RECT{MulDiv(left, dpi, 96), MulDiv(top, dpi, 96), MulDiv(left + width, dpi, 96),
                            MulDiv(top + height, dpi, 96)};
            };
            EXPECT_TRUE(client_size(window) == (SIZE{MulDiv(301, dpi, 96), MulDiv(201, dpi, 96)})) << dpi;
            EXPECT_EQ(place_in_form(hands.control("Sample", "Box")), at_scale(11, 11, 101, 23)) << dpi;
            const RECT group = at_scale(11, 41, 201, 101);
            EXPECT_EQ(place_in_form(hands.control("Sample", "Group")), group) << dpi;
            // What touches goes on touching.
            EXPECT_EQ(place_in_form(hands.control("Sample", "Box")).right,
                      place_in_form(hands.control("Sample", "Fixed")).left)
                << dpi;
            EXPECT_EQ(font_of(hands.control("Sample", "Press")).lfHeight,
                      message_font(static_cast<unsigned>(dpi)).lfHeight);
        }
        EXPECT_EQ(place_in_form(hands.control("Sample", "List")), rect_of(11 + 7 + 5, 41 + 17 + 5, 51, 41));
    });
}

TEST_F(LooksTest, AFormMadeLargerStretchesAndMovesItsControlsByTheirAnchors) {
    Sample form(environment, true);
    show(form, [&](Hands& hands) {
        const HWND window = hands.form("Sample");
        RECT outer{};
        GetWindowRect(window, &outer);
        SetWindowPos(window, nullptr, 0, 0, outer.right - outer.left + 100, outer.bottom - outer.top + 50,
                     SWP_NOMOVE);
        EXPECT_EQ(place_in_form(hands.control("Sample", "Box")), rect_of(11, 11, 201, 23));
        EXPECT_EQ(place_in_form(hands.control("Sample", "Fixed")), rect_of(212, 11, 51, 23));
        EXPECT_EQ(place_in_form(hands.control("Sample", "Group")), rect_of(11, 41, 301, 151));
        EXPECT_EQ(place_in_form(hands.control("Sample", "Area")), rect_of(118, 58, 101, 121));
        EXPECT_EQ(place_in_form(hands.control("Sample", "List")), rect_of(123, 113, 51, 41));
        EXPECT_EQ(place_in_form(hands.control("Sample", "Press")), rect_of(315, 220, 75, 23));
    });
}

TEST_F(LooksTest, AResizableFormCannotBeMadeSmallerThanItsDesign) {
    Sample form(environment, true);
    show(form, [&](Hands& hands) {
        const HWND window = hands.form("Sample");
        EXPECT_TRUE(GetWindowLongW(window, GWL_STYLE) & WS_THICKFRAME);
        SetWindowPos(window, nullptr, 0, 0, 50, 50, SWP_NOMOVE);
        EXPECT_TRUE(client_size(window) == (SIZE{301, 201}));
        EXPECT_EQ(place_in_form(hands.control("Sample", "Press")), rect_of(215, 170, 75, 23));
    });
}

TEST_F(LooksTest, AFixedFormIsADialogWithoutSizingMinimizingAndIcon) {
    Sample form(environment);
    show(form, [&](Hands& hands) {
        const HWND window = hands.form("Sample");
        const auto style = static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE));
        EXPECT_EQ(style & (WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX), 0u);
        EXPECT_EQ(style & (WS_CAPTION | WS_SYSMENU), static_cast<DWORD>(WS_CAPTION | WS_SYSMENU));
        EXPECT_TRUE(GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_DLGMODALFRAME);
        EXPECT_EQ(Hands::text(window), L"Sample");
    });
}

TEST_F(LooksTest, TheFontIsTheSystemsForMessagesUnlessTheDesignNamesAnother) {
    for (const char* family : {"", "Arial"}) {
        Sample form(environment, false, family);
        show(form, [&](Hands& hands) {
            hands.form("Sample");
            const LOGFONTW system = message_font(96);
            for (const char* each : {"Box", "Group", "List", "Data", "Tick", "Press"}) {
                const LOGFONTW font = font_of(hands.control("Sample", each));
                EXPECT_STREQ(font.lfFaceName, *family ? to_wide(family).c_str() : system.lfFaceName) << each;
                EXPECT_EQ(font.lfHeight, system.lfHeight) << each;
            }
        });
    }
}

TEST_F(LooksTest, ColorsSetByCodeAreShown) {
    Sample form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Sample");
        hands.run([&] {
            form.run_event([&] {
                form.Box.set_back_color(mint);
                form.Box.set_fore_color(color::red);
            });
        });
        const Paint paint = paint_of(hands, hands.control("Sample", "Box"), WM_CTLCOLOREDIT);
        EXPECT_TRUE(paint.told);
        EXPECT_EQ(paint.text, color::red);
        EXPECT_EQ(paint.background, mint);
    });
}

TEST_F(LooksTest, ColorsFollowTheSystemsEvenWhileTheFormIsOpen) {
    Sample form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Sample");
        const HWND box = hands.control("Sample", "Box");
        const HWND fixed = hands.control("Sample", "Fixed");
        EXPECT_EQ(paint_of(hands, box, WM_CTLCOLOREDIT).background, GetSysColor(COLOR_WINDOW));
        const SystemColor dark(COLOR_WINDOW, 0x00100000);
        const SystemColor light(COLOR_WINDOWTEXT, 0x00FFFFF0);
        const SystemColor face(COLOR_BTNFACE, 0x00200000);
        hands.wait_until_idle();
        EXPECT_EQ(paint_of(hands, box, WM_CTLCOLOREDIT).background, 0x00100000u);
        EXPECT_EQ(paint_of(hands, box, WM_CTLCOLOREDIT).text, 0x00FFFFF0u);
        EXPECT_EQ(paint_of(hands, fixed, WM_CTLCOLORSTATIC).background, 0x00200000u);
    });
}

TEST_F(LooksTest, ADisabledControlIsLeftToTheSystemsColors) {
    Sample form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Sample");
        hands.run([&] {
            form.run_event([&] {
                form.Box.set_back_color(mint);
                form.Box.set_enabled(false);
            });
        });
        EXPECT_FALSE(paint_of(hands, hands.control("Sample", "Box"), WM_CTLCOLORSTATIC).background == mint);
    });
}

TEST_F(LooksTest, AFrameDisablesAndHidesWhatIsInIt) {
    Sample form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Sample");
        const HWND list = hands.control("Sample", "List");
        EXPECT_TRUE(IsWindowVisible(list) && IsWindowEnabled(list));
        hands.run([&] { form.run_event([&] { form.Group.set_enabled(false); }); });
        EXPECT_FALSE(IsWindowEnabled(list));
        hands.run([&] { form.run_event([&] { form.Area.set_visible(false); }); });
        EXPECT_FALSE(IsWindowVisible(list));
        EXPECT_TRUE(IsWindowVisible(hands.control("Sample", "Group")));
        hands.run([&] {
            form.run_event([&] {
                form.List.add_line("added while hidden");
                form.Group.set_enabled(true);
            });
        });
        EXPECT_FALSE(IsWindowVisible(list));
        hands.run([&] { form.run_event([&] { form.Area.set_visible(true); }); });
        EXPECT_TRUE(IsWindowVisible(list) && IsWindowEnabled(list));
    });
}

TEST_F(LooksTest, CodeMovesControls) {
    Sample form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Sample");
        hands.run([&] { form.run_event([&] { form.Area.set_place({17, 27, 91, 61}); }); });
        EXPECT_EQ(place_in_form(hands.control("Sample", "Area")), rect_of(28, 68, 91, 61));
        EXPECT_EQ(place_in_form(hands.control("Sample", "List")), rect_of(33, 73, 51, 41));
    });
}

TEST_F(LooksTest, ACheckBoxIsGreyByCodeOnly) {
    Sample form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Sample");
        const HWND tick = hands.control("Sample", "Tick");
        EXPECT_EQ(SendMessageW(tick, BM_GETCHECK, 0, 0), BST_INDETERMINATE);
        for (const LRESULT expected : {BST_UNCHECKED, BST_CHECKED, BST_UNCHECKED}) {
            hands.press(tick);
            EXPECT_EQ(SendMessageW(tick, BM_GETCHECK, 0, 0), expected);
        }
    });
    EXPECT_EQ(form.Tick.value(), 0);
}

TEST_F(LooksTest, DataThatDoesNotFitItsLabelIsShownAsATip) {
    Sample form(environment);
    show(form, [&](Hands& hands) {
        const HWND window = hands.form("Sample");
        const auto tips = [&] {
            LRESULT count = 0;
            for (HWND each = GetTopWindow(nullptr); each; each = GetWindow(each, GW_HWNDNEXT)) {
                wchar_t name[64] = L"";
                GetClassNameW(each, name, 64);
                if (GetWindow(each, GW_OWNER) == window && std::wstring(name) == TOOLTIPS_CLASSW)
                    count += SendMessageW(each, TTM_GETTOOLCOUNT, 0, 0);
            }
            return count;
        };
        EXPECT_EQ(tips(), 0);
        hands.run(
            [&] { form.run_event([&] { form.Data.set_caption("PRODUCTION-LINE-7.Plant.Server & Co."); }); });
        EXPECT_EQ(tips(), 1);
        EXPECT_EQ(Hands::text(hands.control("Sample", "Data")), L"PRODUCTION-LINE-7.Plant.Server & Co.");
        hands.run([&] { form.run_event([&] { form.Data.set_caption("short"); }); });
        EXPECT_EQ(tips(), 0);
    });
}

// Only buttons with visual styles know their ideal size.
TEST_F(LooksTest, ControlsHaveVisualStylesAndTheHostsWindowsDoNot) {
    const auto has_styles = [](HWND button) {
        SIZE ideal{};
        return SendMessageW(button, BCM_GETIDEALSIZE, 0, reinterpret_cast<LPARAM>(&ideal)) != 0 &&
               ideal.cy > 0;
    };
    const HostWindow main;
    Sample form(environment);
    bool in_handler = true;
    form.on_press = [&] {
        const HWND button = CreateWindowExW(0, L"BUTTON", L"x", WS_CHILD, 0, 0, 50, 20, main.handle(),
                                            nullptr, nullptr, nullptr);
        in_handler = has_styles(button);
        DestroyWindow(button);
    };
    show(form, [&](Hands& hands) {
        hands.form("Sample");
        EXPECT_TRUE(has_styles(hands.control("Sample", "Press")));
        hands.press(hands.control("Sample", "Press"));
    });
    EXPECT_FALSE(in_handler);
}

} // namespace brx::checks
