// What is told about the thing below the mouse.

#include "pages.h"

#include "forms/win32/wide.h"

namespace brx::checks {

namespace {

class TipTest : public PagesTest {
protected:
    /// The tip of a control, "" for none.
    static std::wstring tip_of(Hands& hands, HWND control) {
        std::wstring text(300, L'\0');
        TTTOOLINFOW tool{};
        tool.cbSize = TTTOOLINFOW_V2_SIZE;
        tool.hwnd = GetParent(control);
        tool.uId = reinterpret_cast<UINT_PTR>(control);
        hands.run([&] {
            for (HWND each = GetTopWindow(nullptr); each; each = GetWindow(each, GW_HWNDNEXT)) {
                wchar_t name[64] = L"";
                GetClassNameW(each, name, 64);
                if (GetWindow(each, GW_OWNER) != tool.hwnd || std::wstring(name) != TOOLTIPS_CLASSW) continue;
                tool.lpszText = text.data();
                if (SendMessageW(each, TTM_GETTOOLINFOW, 0, reinterpret_cast<LPARAM>(&tool))) return;
            }
        });
        return text.c_str();
    }
    static void point_at(Hands& hands, HWND list, int row, int column) {
        hands.wait_until_idle(); // the mouse is somewhere as the form opens, too
        RECT place{};
        place.left = LVIR_BOUNDS;
        place.top = column;
        hands.run([&] {
            SendMessageW(list, LVM_GETSUBITEMRECT, static_cast<WPARAM>(row),
                         reinterpret_cast<LPARAM>(&place));
            SendMessageW(list, WM_MOUSEMOVE, 0, MAKELPARAM(place.left + 20, (place.top + place.bottom) / 2));
        });
        hands.wait_until_idle();
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
            *this, "Pick", {.place = {10, 10, 23, 23}, .caption = "...", .tip = "Pick an item", .tab = 1}};
        Button OK{*this, "OK", {.place = {10, 40, 75, 23}, .caption = "OK", .tab = 2}};
    };
    Browse form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Browse");
        EXPECT_EQ(tip_of(hands, hands.control("Browse", "Pick")), L"Pick an item");
        EXPECT_EQ(tip_of(hands, hands.control("Browse", "OK")), L"");
    });
}

TEST_F(TipTest, ACellThatIsCutShowsItsWholeText) {
    Pages form(environment);
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

TEST_F(TipTest, ACellThatHasRoomEnoughShowsNone) {
    Pages form(environment);
    form.on_load = [&] {
        form.add_rows(1);
        form.List.row(1).set_text(1, long_text);
        form.List.row(1).set_text(2, "Stopped 12:30");
    };
    show_page(form, "List", [&](Hands& hands, HWND list) {
        point_at(hands, list, 0, 1);
        EXPECT_NE(tip_of(hands, list), L"");
        hands.run([&] { SendMessageW(list, LVM_SETCOLUMNWIDTH, 1, 800); });
        point_at(hands, list, 0, 1);
        EXPECT_EQ(tip_of(hands, list), L"");
        // The same text is wider in bold.
        hands.run([&] {
            SendMessageW(list, LVM_SETCOLUMNWIDTH, 1, 80);
            const auto width = static_cast<LPARAM>(
                SendMessageW(list, LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(L"Stopped 12:30")));
            SendMessageW(list, LVM_SETCOLUMNWIDTH, 2, width + 13);
        });
        point_at(hands, list, 0, 2);
        EXPECT_EQ(tip_of(hands, list), L"");
        run(hands, form, [&] { form.List.row(1).set_look(2, {.bold = true}); });
        point_at(hands, list, 0, 2);
        EXPECT_EQ(tip_of(hands, list), L"Stopped 12:30");
    });
}

} // namespace brx::checks
