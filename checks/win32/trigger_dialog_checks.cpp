#include "desk/desk.h"
#include "looks.h"

#include "host/fake_host.h"
#include "leaks/system_handles.h"
#include "tests/dlgEvaluation.h"

#include "forms/win32/dpi.h"

// The trigger dialog, which no public class opens by itself.

namespace brx::checks {

namespace {

class TriggerDialogTest : public OnWindows {
protected:
    TriggerDialogTest() {
        model.group->items->data_types["Line1.Speed"] = 3;
        model.group->items->has("Line1.Speed");
        form.set_configuration(model.configuration);
        form.set_TriggerOPCItemID("Line1.Speed");
        form.set_TriggerExpression(2);
        form.set_TriggerValue(std::int32_t{12});
    }

    static HWND window_of(Hands& hands, const char* control) {
        return hands.control("dlgEvaluation", control);
    }

    FakeHost model;
    dlgEvaluation form{environment};
};

/// How wide the control's text is in its own font.
LONG text_width(HWND control) {
    const std::wstring text = Hands::text(control);
    const HDC dc = GetDC(control);
    const auto font = reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0));
    const HGDIOBJ before = SelectObject(dc, font);
    RECT area{};
    DrawTextW(dc, text.c_str(), -1, &area, DT_CALCRECT | DT_SINGLELINE);
    SelectObject(dc, before);
    ReleaseDC(control, dc);
    return area.right;
}

} // namespace

TEST_F(TriggerDialogTest, IsFilledInAndConfirmedWithTheKeyboard) {
    show(form, [&](Hands& hands) {
        EXPECT_EQ(Hands::text(hands.form("dlgEvaluation")), L"Set Trigger");
        EXPECT_EQ(hands.focus(), window_of(hands, "cboItem"));
        for (const char* next : {"bnItem", "cboExpression", "txtValue", "bnOK", "bnCancel", "cboItem"}) {
            hands.key(VK_TAB);
            EXPECT_EQ(hands.focus(), window_of(hands, next)) << next;
        }
        hands.keys({VK_MENU, 'B'});
        EXPECT_EQ(hands.focus(), window_of(hands, "cboExpression"));
        hands.key(VK_END);
        hands.keys({VK_MENU, 'C'});
        EXPECT_EQ(hands.focus(), window_of(hands, "txtValue"));
        hands.type("7");
        const HWND window = hands.form("dlgEvaluation");
        Hands::strike({VK_RETURN});
        EXPECT_TRUE(Hands::eventually([&] { return !IsWindow(window); }));
    });
    EXPECT_TRUE(form.OkClicked());
    EXPECT_EQ(form.TriggerExpression(), 6);
    EXPECT_EQ(form.TriggerValue(), Variant(std::int32_t{7}));
    EXPECT_TRUE(host.reports.empty());
}

TEST_F(TriggerDialogTest, ShowsEachCaptionInFullAtEveryScale) {
    show(form, [&](Hands& hands) {
        const HWND window = hands.form("dlgEvaluation");
        for (const int dpi : {96, 120, 144, 192}) {
            const RECT proposed{10, 10, 500, 500};
            SendMessageW(window, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&proposed));
            for (const char* each : {"Label1", "Label2", "Label3", "bnItem", "bnOK", "bnCancel"})
                EXPECT_LE(text_width(window_of(hands, each)), client_size(window_of(hands, each)).cx)
                    << each << " at " << dpi;
        }
    });
}

TEST_F(TriggerDialogTest, LeavesNothingBehindWhenItIsShownAgainAndAgain) {
    constexpr int showings = 200;
    constexpr int slack = showings / 10;
    const auto show_once = [&] {
        form.set_configuration(model.configuration);
        show(form, [](Hands& hands) { hands.form("dlgEvaluation"); });
    };
    for (int i = 0; i < 20; ++i) show_once(); // what the system makes once is made now
    const SystemHandles before = system_handles();
    for (int i = 0; i < showings; ++i) show_once();
    const SystemHandles after = system_handles();
    EXPECT_LT(after.user - before.user, slack);
    EXPECT_LT(after.gdi - before.gdi, slack);
    for (const wchar_t* name : {L"dlgEvaluation", L"cboItem", L"txtValue"})
        EXPECT_EQ(GlobalFindAtomW(name), 0) << "The name of a window stayed.";
    EXPECT_EQ(model.configuration.use_count(), 1);
}

} // namespace brx::checks
