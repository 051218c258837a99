#include "sample_form.h"

#include "forms/win32/dpi.h"
#include "forms/win32/wide.h"

#include <commctrl.h>

namespace brx::checks {

namespace {

class LooksTest : public OnWindows {};

} // namespace

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
