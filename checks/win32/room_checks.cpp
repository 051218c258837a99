// Forms that can be made larger, and what lies before what.

#include "looks.h"

#include "forms/button.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/list_control.h"
#include "forms/text_box.h"
#include "forms/tree_view.h"

namespace brx::checks {

namespace {

class RoomTest : public OnWindows {};

constexpr Anchor halves = Anchor::stretch_half_width | Anchor::stretch_height;

/// A tree and a list side by side, and a panel at the tree's place.
class Room : public Form {
public:
    explicit Room(Environment& on)
        : Form(on, {.name = "Room", .caption = "Room", .size = {301, 201}, .resizable = true}) {}

    // clang-format off
    TreeView Tree {*this, "Tree",  {.place = {11, 30, 136, 120}, .tab = 1, .anchor = halves}};
    Panel    Cover{*this, "Cover", {.place = {11, 30, 136, 120}, .anchor = halves, .edge = true}};
    Label    Name {*this, "Name",  {.place = {154, 11, 136, 15}, .caption = "&List:", .tab = 2, .anchor = Anchor::middle}};
    ListBox  List {*this, "List",  {.place = {154, 30, 136, 120}, .tab = 3, .anchor = Anchor::middle | halves}};
    TextBox  Box  {*this, "Box",   {.place = {11, 165, 197, 23}, .tab = 4,
                                    .anchor = Anchor::bottom | Anchor::stretch_width}};
    Button   Press{*this, "Press", {.place = {215, 165, 75, 23}, .caption = "Press", .tab = 5,
                                    .anchor = Anchor::right | Anchor::bottom}};
    // clang-format on
};

void change_scale(HWND window, int dpi) {
    const RECT proposed{10, 10, 20, 20};
    SendMessageW(window, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&proposed));
}

void grow(HWND window, int width, int height) {
    RECT outer{};
    GetWindowRect(window, &outer);
    SetWindowPos(window, nullptr, 0, 0, outer.right - outer.left + width, outer.bottom - outer.top + height,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

/// How many of a grid of points within a control have another colour.
int points_unlike(Hands& hands, HWND control, COLORREF color) {
    int unlike = 0;
    hands.wait_until_idle();
    hands.run([&] {
        RECT place = place_in_form(control);
        InflateRect(&place, -4, -4);
        // Not GetDC, from which Windows cuts the controls out.
        const HDC dc = GetDCEx(GetParent(control), nullptr, DCX_CACHE);
        for (LONG y = place.top; y < place.bottom; y += 5)
            for (LONG x = place.left; x < place.right; x += 5)
                if (GetPixel(dc, x, y) != color) ++unlike;
        ReleaseDC(GetParent(control), dc);
    });
    return unlike;
}

/// What the mouse hits there.
HWND hit_at_centre_of(Hands& hands, HWND window) {
    HWND hit = nullptr;
    hands.run([&] {
        RECT place{};
        GetWindowRect(window, &place);
        hit = WindowFromPoint({(place.left + place.right) / 2, (place.top + place.bottom) / 2});
    });
    return hit;
}

} // namespace

TEST_F(RoomTest, TheTwoHalvesShareTheRoomAtEveryScale) {
    Room form(environment);
    show(form, [&](Hands& hands) {
        const HWND window = hands.form("Room");
        for (const int dpi : {96, 144, 192})
            for (const int wider : {0, 100, 101}) {
                change_scale(window, dpi);
                grow(window, wider, 50);
                const auto at_scale = [&](LONG length) { return static_cast<LONG>(MulDiv(length, dpi, 96)); };
                const RECT tree = place_in_form(hands.control("Room", "Tree"));
                const RECT list = place_in_form(hands.control("Room", "List"));
                const RECT name = place_in_form(hands.control("Room", "Name"));
                EXPECT_EQ(tree,
                          (RECT{at_scale(11), at_scale(30), at_scale(147) + wider / 2, at_scale(150) + 50}))
                    << dpi << " " << wider;
                EXPECT_EQ(list,
                          (RECT{at_scale(154) + wider / 2, tree.top, at_scale(290) + wider, tree.bottom}))
                    << dpi << " " << wider;
                EXPECT_EQ(name.left, list.left);
                EXPECT_EQ(name.right - name.left, at_scale(290) - at_scale(154))
                    << "It moves and stays as it is.";
                EXPECT_EQ(place_in_form(hands.control("Room", "Cover")), tree);
            }
    });
}

TEST_F(RoomTest, AFormThatCanBeMadeLargerHasASizingFrameAndCanBeMaximized) {
    Room form(environment);
    show(form, [&](Hands& hands) {
        const HWND window = hands.form("Room");
        const auto style = static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE));
        EXPECT_EQ(style & (WS_THICKFRAME | WS_MAXIMIZEBOX | WS_MINIMIZEBOX),
                  DWORD{WS_THICKFRAME | WS_MAXIMIZEBOX});
        EXPECT_TRUE(client_size(window) == (SIZE{301, 201}));
        RECT before{};
        GetWindowRect(window, &before);
        PostMessageW(window, WM_SYSCOMMAND, SC_MAXIMIZE, 0);
        hands.wait_until_idle();
        EXPECT_TRUE(IsZoomed(window));
        RECT work{};
        SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
        const SIZE room = client_size(window);
        EXPECT_GT(room.cx, work.right - work.left - 20);
        EXPECT_EQ(place_in_form(hands.control("Room", "Press")).right, room.cx - 11);
        EXPECT_EQ(place_in_form(hands.control("Room", "List")).bottom, room.cy - (201 - 150));
        PostMessageW(window, WM_SYSCOMMAND, SC_RESTORE, 0);
        hands.wait_until_idle();
        RECT after{};
        GetWindowRect(window, &after);
        EXPECT_EQ(after, before);
        EXPECT_EQ(place_in_form(hands.control("Room", "Press")), rect_of(215, 165, 75, 23));
        grow(window, 100, 100);
    });
    show(form, [&](Hands& hands) {
        EXPECT_TRUE(client_size(hands.form("Room")) == (SIZE{301, 201})) << "It does not remember.";
    });
}

TEST_F(RoomTest, AFormCannotBeMadeSmallerThanItsDesignAtAnyScale) {
    Room form(environment);
    show(form, [&](Hands& hands) {
        const HWND window = hands.form("Room");
        for (const int dpi : {96, 144, 192}) {
            change_scale(window, dpi);
            grow(window, 200, 200);
            grow(window, -400, -500);
            EXPECT_TRUE(client_size(window) == (SIZE{MulDiv(301, dpi, 96), MulDiv(201, dpi, 96)})) << dpi;
        }
    });
}

TEST_F(RoomTest, NothingIsLeftOfWhatLayThereBefore) {
    Room form(environment);
    show(form, [&](Hands& hands) {
        const HWND window = hands.form("Room");
        const HWND list = hands.control("Room", "List");
        constexpr Color mint = 0x00C0F0C0;
        change_scale(window, 288); // where the list lay is partly the tree's place then, partly its own
        hands.run([&] { form.run_event([&] { form.Tree.set_back_color(mint); }); });
        EXPECT_EQ(points_unlike(hands, list, GetSysColor(COLOR_WINDOW)), 0);
        PostMessageW(window, WM_SYSCOMMAND, SC_MAXIMIZE, 0);
        EXPECT_EQ(points_unlike(hands, list, GetSysColor(COLOR_WINDOW)), 0);
        PostMessageW(window, WM_SYSCOMMAND, SC_RESTORE, 0);
        EXPECT_EQ(points_unlike(hands, list, GetSysColor(COLOR_WINDOW)), 0);
        EXPECT_EQ(points_unlike(hands, hands.control("Room", "Tree"), mint), 0);
    });
}

TEST_F(RoomTest, APanelInFrontCoversWhatLiesThere) {
    Room form(environment);
    show(form, [&](Hands& hands) {
        const HWND window = hands.form("Room");
        const HWND tree = hands.control("Room", "Tree");
        const HWND cover = hands.control("Room", "Cover");
        const auto expect_at_the_place = [&](HWND wanted, int color, const char* when) {
            EXPECT_EQ(hit_at_centre_of(hands, tree), wanted) << when;
            // In whatever order they are drawn.
            for (const HWND each : {tree, cover, tree}) {
                RedrawWindow(each, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
                EXPECT_EQ(points_unlike(hands, tree, GetSysColor(color)), 0) << when;
            }
        };
        expect_at_the_place(tree, COLOR_WINDOW, "as designed");
        hands.run([&] { form.run_event([&] { form.Cover.bring_to_front(); }); });
        EXPECT_EQ(GetWindow(window, GW_CHILD), cover);
        expect_at_the_place(cover, COLOR_BTNFACE, "in front");
        hands.run([&] { form.run_event([&] { form.Cover.send_to_back(); }); });
        expect_at_the_place(tree, COLOR_WINDOW, "sent back");
    });
    show(form, [&](Hands& hands) {
        hands.form("Room");
        EXPECT_EQ(hit_at_centre_of(hands, hands.control("Room", "Tree")), hands.control("Room", "Tree"));
    });
}

TEST_F(RoomTest, WhereAPanelLiesDoesNotMatterToTheTabOrder) {
    Room form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Room");
        for (const bool in_front : {false, true, false}) {
            hands.run([&] {
                form.run_event([&] {
                    if (in_front)
                        form.Cover.bring_to_front();
                    else
                        form.Cover.send_to_back();
                });
            });
            for (const char* next : {"List", "Box", "Press", "Tree"}) {
                hands.key(VK_TAB);
                EXPECT_EQ(hands.focus(), hands.control("Room", next)) << in_front;
            }
            hands.keys({VK_MENU, 'L'});
            EXPECT_EQ(hands.focus(), hands.control("Room", "List"));
            hands.keys({VK_SHIFT, VK_TAB});
            EXPECT_EQ(hands.focus(), hands.control("Room", "Tree"));
        }
    });
}

TEST_F(RoomTest, APanelHasAnEdgeWhereItIsDesignedSo) {
    class Panels : public Form {
    public:
        explicit Panels(Environment& on)
            : Form(on, {.name = "Panels", .caption = "Panels", .size = {200, 100}}) {}
        Panel Plain{*this, "Plain", {.place = {0, 0, 50, 50}}};
        Panel Edged{*this, "Edged", {.place = {60, 0, 50, 50}, .edge = true}};
    };
    Panels form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Panels");
        EXPECT_TRUE(client_size(hands.control("Panels", "Plain")) == (SIZE{50, 50}));
        EXPECT_TRUE(client_size(hands.control("Panels", "Edged")) == (SIZE{48, 48}));
    });
}

TEST_F(RoomTest, WhatIsInAFrameIsDrawnWithinIt) {
    class Framed : public Form {
    public:
        explicit Framed(Environment& on)
            : Form(on, {.name = "Framed", .caption = "Framed", .size = {200, 100}}) {}
        Button Press{*this, "Press", {.place = {0, 0, 10, 10}}}; // the focus is there
        Frame Group{*this, "Group", {.place = {10, 10, 180, 80}, .caption = "Group", .tab = 1}};
        Panel Area{Group, "Area", {.place = {10, 15, 160, 60}, .tab = 2}};
        ListBox List{Area, "List", {.place = {10, 5, 140, 50}, .tab = 3}};
    };
    Framed form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Framed");
        const HWND list = hands.control("Framed", "List");
        for (const HWND each :
             {list, hands.control("Framed", "Group"), hands.control("Framed", "Area"), list}) {
            EXPECT_EQ(points_unlike(hands, list, GetSysColor(COLOR_WINDOW)), 0);
            hands.run(
                [&] { RedrawWindow(each, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW); });
        }
        EXPECT_EQ(hit_at_centre_of(hands, list), list);
    });
}

TEST_F(RoomTest, AListIsDrawnInItsOwnColorAlsoWhileItIsDisabled) {
    Room form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Room");
        const HWND list = hands.control("Room", "List");
        hands.run([&] {
            form.run_event([&] {
                form.List.set_enabled(false);
                form.List.set_back_color(color::button_face);
            });
        });
        EXPECT_EQ(points_unlike(hands, list, GetSysColor(COLOR_BTNFACE)), 0);
        hands.run([&] {
            form.run_event([&] {
                form.List.set_enabled(true);
                form.List.set_back_color(color::window);
            });
        });
        EXPECT_EQ(points_unlike(hands, list, GetSysColor(COLOR_WINDOW)), 0);
    });
}

TEST_F(RoomTest, ATreeFollowsTheSystemsColorsWhileItIsOpen) {
    Room form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Room");
        const HWND tree = hands.control("Room", "Tree");
        const SystemColor dark(COLOR_WINDOW, 0x00100000);
        EXPECT_EQ(points_unlike(hands, tree, 0x00100000), 0);
        hands.run([&] { form.run_event([&] { form.Tree.set_back_color(color::button_face); }); });
        const SystemColor face(COLOR_BTNFACE, 0x00200000);
        EXPECT_EQ(points_unlike(hands, tree, 0x00200000), 0);
    });
}

} // namespace brx::checks
