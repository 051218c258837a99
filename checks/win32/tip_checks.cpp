// What is told about the thing below the mouse.

#include "pages.h"

#include "forms/win32/wide.h"

namespace brx::checks {

namespace {

class TipTest : public PagesTest {
protected:
    /// The window that has the tip of a control, null for none.
    static HWND tips_with(TTTOOLINFOW& tool) {
        for (HWND each = GetTopWindow(nullptr); each; each = GetWindow(each, GW_HWNDNEXT)) {
            wchar_t name[64] = L"";
            GetClassNameW(each, name, 64);
            if (GetWindow(each, GW_OWNER) == tool.hwnd && std::wstring(name) == TOOLTIPS_CLASSW &&
                SendMessageW(each, TTM_GETTOOLINFOW, 0, reinterpret_cast<LPARAM>(&tool)))
                return each;
        }
        return nullptr;
    }
    static TTTOOLINFOW tool_of(HWND control) {
        TTTOOLINFOW tool{};
        tool.cbSize = TTTOOLINFOW_V2_SIZE;
        tool.hwnd = GetParent(control);
        tool.uId = reinterpret_cast<UINT_PTR>(control);
        return tool;
    }
    /// The tip of a control, "" for none.
    static std::wstring tip_of(Hands& hands, HWND control) {
        std::wstring text(300, L'\0');
        TTTOOLINFOW tool = tool_of(control);
        tool.lpszText = text.data();
        hands.run([&] { tips_with(tool); });
        return text.c_str();
    }
    /// With the mouse, at so many pixels behind the beginning of a cell.
    static void point_at(Hands& hands, HWND list, int row, int column, int behind = 20) {
        hands.wait_until_idle(); // the mouse is somewhere as the form opens, too
        RECT place{};
        place.left = LVIR_BOUNDS;
        place.top = column;
        hands.run([&] {
            SendMessageW(list, LVM_GETSUBITEMRECT, static_cast<WPARAM>(row),
                         reinterpret_cast<LPARAM>(&place));
            SendMessageW(list, WM_MOUSEMOVE, 0,
                         MAKELPARAM(place.left + behind, (place.top + place.bottom) / 2));
        });
        hands.wait_until_idle();
    }
    /// Gives a column room for a text and so many pixels more.
    static void fit_column(Hands& hands, HWND list, int column, const wchar_t* text, int more) {
        hands.run([&] {
            const HDC dc = GetDC(list);
            const auto font = reinterpret_cast<HGDIOBJ>(SendMessageW(list, WM_GETFONT, 0, 0));
            const HGDIOBJ before = SelectObject(dc, font);
            SIZE size{};
            GetTextExtentPoint32W(dc, text, static_cast<int>(wcslen(text)), &size);
            SelectObject(dc, before);
            ReleaseDC(list, dc);
            SendMessageW(list, LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column), size.cx + more);
        });
    }
};

const char* const long_text = "Line1.Filling station.Temperature of the left nozzle & more";

} // namespace

TEST_F(TipTest, AButtonTellsWhatItOpens) {
    class Browse : public Form {
    public:
        explicit Browse(Environment& on)
            : Form(on, {.name = "Browse", .caption = "Browse", .size = {200, 100}}) {}
        Button Pick{
            *this,
            "Pick",
            {.place = {10, 10, 23, 23}, .caption = "...", .accessible_name = "Pick an item", .tab = 1}};
        Button OK{*this, "OK", {.place = {10, 40, 75, 23}, .caption = "OK", .tab = 2}};
    };
    Browse form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Browse");
        EXPECT_EQ(tip_of(hands, hands.control("Browse", "Pick")), L"Pick an item");
        EXPECT_EQ(tip_of(hands, hands.control("Browse", "OK")), L"");
        TTTOOLINFOW tool = tool_of(hands.control("Browse", "Pick"));
        LRESULT milliseconds = 0;
        hands.run([&] { milliseconds = SendMessageW(tips_with(tool), TTM_GETDELAYTIME, TTDT_AUTOPOP, 0); });
        EXPECT_EQ(milliseconds, 32'767) << "the longest that there is";
    });
}

TEST_F(TipTest, ACellThatIsCutShowsItsWholeText) {
    PageForm form(environment);
    form.on_load = [&] {
        form.add_rows(3);
        for (const int column : {0, 1, 2}) form.List.row(2).set_text(column, long_text);
    };
    show_page(form, "List", [&](Hands& hands, HWND list) {
        for (const int column : {0, 1, 2}) {
            point_at(hands, list, 0, column);
            EXPECT_EQ(tip_of(hands, list), L"") << column;
            point_at(hands, list, 1, column);
            EXPECT_EQ(tip_of(hands, list), to_wide(long_text)) << column;
        }
        run(hands, form, [&] { form.List.row(2).set_text(2, "short"); });
        EXPECT_EQ(tip_of(hands, list), L"") << "Also while the mouse stays there.";
        run(hands, form, [&] { form.List.clear(); });
        point_at(hands, list, 1, 1);
        EXPECT_EQ(tip_of(hands, list), L"");
    });
}

TEST_F(TipTest, ACellOfWhichPartsAreOutOfViewShowsItsWholeText) {
    PageForm form(environment);
    form.on_load = [&] {
        form.add_rows(1);
        form.List.row(1).set_text(1, "A longer value");
        form.List.row(1).set_text(2, "Stopped");
    };
    show_page(form, "List", [&](Hands& hands, HWND list) {
        const auto tip = [&](int column, int behind = 20) {
            point_at(hands, list, 0, column, behind);
            return from_wide(tip_of(hands, list));
        };
        const auto set_width = [&](int column, int width) {
            hands.run([&] { SendMessageW(list, LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column), width); });
        };
        set_width(1, 100);
        EXPECT_EQ(tip(1), "");
        EXPECT_EQ(tip(2), "");
        set_width(0, 350); // the list is 380 wide
        EXPECT_EQ(tip(1, 10), "A longer value");
        hands.run([&] { SendMessageW(list, LVM_SCROLL, 150, 0); });
        EXPECT_EQ(tip(1), "");
        EXPECT_EQ(tip(0, 170), "Row 1") << "Its beginning is out of view.";
        EXPECT_EQ(tip(2), "");
    });
}

TEST_F(TipTest, ACellNeedsRoomBesideItsTextAtTheScaleOfTheMonitor) {
    PageForm form(environment);
    form.on_load = [&] {
        form.add_rows(1);
        for (const int column : {0, 1}) form.List.row(1).set_text(column, "12.5 mm");
    };
    show_page(form, "List", [&](Hands& hands, HWND list) {
        for (const int dpi : {96, 192})
            for (const int column : {0, 1}) {
                set_scale(list, dpi);
                hands.wait_until_idle();
                fit_column(hands, list, column, L"12.5 mm", 12 * dpi / 96);
                point_at(hands, list, 0, column);
                EXPECT_EQ(tip_of(hands, list), L"") << dpi;
                fit_column(hands, list, column, L"12.5 mm", 12 * dpi / 96 - 1);
                point_at(hands, list, 0, column);
                EXPECT_EQ(tip_of(hands, list), L"12.5 mm") << dpi;
            }
    });
}

TEST_F(TipTest, ACellThatHasRoomEnoughShowsNone) {
    PageForm form(environment);
    form.on_load = [&] {
        form.add_rows(1);
        form.List.row(1).set_text(1, long_text);
        form.List.row(1).set_text(2, "Stopped 12:30");
    };
    show_page(form, "List", [&](Hands& hands, HWND list) {
        point_at(hands, list, 0, 1);
        EXPECT_NE(tip_of(hands, list), L"");
        hands.run([&] {
            SendMessageW(list, LVM_SETCOLUMNWIDTH, 0, 20);
            SendMessageW(list, LVM_SETCOLUMNWIDTH, 1, 800);
        });
        point_at(hands, list, 0, 1);
        EXPECT_EQ(tip_of(hands, list), L"");
        // The same text is wider in bold.
        hands.run([&] { SendMessageW(list, LVM_SETCOLUMNWIDTH, 1, 80); });
        fit_column(hands, list, 2, L"Stopped 12:30", 13);
        point_at(hands, list, 0, 2);
        EXPECT_EQ(tip_of(hands, list), L"");
        run(hands, form, [&] { form.List.row(1).set_look(2, {.bold = true}); });
        point_at(hands, list, 0, 2);
        EXPECT_EQ(tip_of(hands, list), L"Stopped 12:30");
    });
}

} // namespace brx::checks
