// The text of a box and its label stand on one line. Pickers of dates are left out: Wine's writes at the top
// of its window whatever its height, 2 pixels above its label at 96 DPI, 3 at 144 and 6 at 192. Only a lower
// window would bring the text down, and then pickers would be lower than all other boxes, on every system.

#include "pages.h"

#include "forms/list_control.h"

namespace brx::checks {

namespace {

class BaselineTest : public PagesTest {};

const char* const written = "11/21/2026";

/// Labels before boxes with the same text.
class Lines : public Form {
public:
    explicit Lines(Environment& on) : Form(on, {.name = "Lines", .caption = "Lines", .size = {300, 240}}) {}

    // clang-format off
    Label      Before1{*this, "Before1", {.place = {11, 15, 92, 15}, .caption = written, .tab = 1}};
    TextBox    Text   {*this, "Text",    {.place = {107, 11, 160, 23}, .tab = 2, .text = written}};
    Label      Before2{*this, "Before2", {.place = {11, 45, 92, 15}, .caption = written, .tab = 3}};
    TextBox    Shown  {*this, "Shown",   {.place = {107, 41, 160, 23}, .tab = 4, .text = written, .display_only = true}};
    Label      Before3{*this, "Before3", {.place = {11, 75, 92, 15}, .caption = written, .tab = 5}};
    ComboBox   Choice {*this, "Choice",  {.place = {107, 71, 160, 23}, .tab = 6}};
    Frame      Group  {*this, "Group",   {.place = {11, 131, 278, 60}, .caption = "", .tab = 9}};
    Label      Before5{Group, "Before5", {.place = {11, 24, 80, 15}, .caption = written, .tab = 10}};
    TextBox    Inside {Group, "Inside",  {.place = {96, 20, 140, 23}, .tab = 11, .text = written}};
    Button     OK     {*this, "OK",      {.place = {11, 205, 75, 23}, .caption = "OK", .tab = 12}};
    // clang-format on

    void Form_Load() override {
        Choice.add_line(written);
        Choice.select(0);
        OK.set_focus();
    }
};

struct Ink {
    int top = -1;
    int bottom = -1;
    bool operator==(const Ink&) const = default;
};
void PrintTo(const Ink& ink, std::ostream* to) { *to << ink.top << " to " << ink.bottom; }

/// From where to where in its form a control has text in it, its edges and buttons left out.
Ink ink_of(Hands& hands, HWND control, int dpi, int edge) {
    Ink ink;
    hands.run([&] {
        RedrawWindow(control, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW);
        RECT place{};
        GetWindowRect(control, &place);
        const HWND form = GetParent(control);
        POINT origin{place.left, place.top};
        ScreenToClient(form, &origin);
        const HDC dc = GetWindowDC(control);
        const int right = MulDiv(60, dpi, 96);
        for (int y = edge; y < place.bottom - place.top - edge; ++y)
            for (int x = 4; x < right; ++x) {
                const COLORREF color = GetPixel(dc, x, y);
                if (color == CLR_INVALID || GetRValue(color) + GetGValue(color) + GetBValue(color) > 300)
                    continue;
                if (ink.top < 0) ink.top = origin.y + y;
                ink.bottom = origin.y + y;
            }
        ReleaseDC(control, dc);
    });
    return ink;
}

} // namespace

TEST_F(BaselineTest, BoxesDropDownListsAndTheirLabelsHaveOneAtEveryScale) {
    Lines form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Lines");
        const std::pair<const char*, const char*> pairs[] = {
            {"Before1", "Text"}, {"Before2", "Shown"}, {"Before3", "Choice"}, {"Before5", "Inside"}};
        for (const int dpi : {96, 120, 144, 192, 96}) {
            set_scale(hands.control("Lines", "Text"), dpi);
            hands.wait_until_idle();
            for (const auto& [label, box] : pairs) {
                const Ink of_label = ink_of(hands, hands.control("Lines", label), dpi, 0);
                EXPECT_GT(of_label.top, 0) << label << " at " << dpi;
                EXPECT_EQ(of_label, ink_of(hands, hands.control("Lines", box), dpi, 4))
                    << box << " at " << dpi;
            }
        }
    });
}

} // namespace brx::checks
