#include "desk/desk.h"

#include "forms/busy_cursor.h"
#include "forms/button.h"
#include "forms/check_box.h"
#include "forms/description.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/list_control.h"
#include "forms/text_box.h"
#include "forms/timer.h"
#include "forms/win32/describe.h"
#include "forms/win32/wide.h"
#include "windows/described.h"

#include <algorithm>

namespace brx::checks {

namespace {

class ServicesTest : public OnWindows {};

class Office : public Form {
public:
    explicit Office(Environment& on)
        : Form(on, {.name = "Office", .caption = "The\tOffice", .size = {300, 200}}) {}

    std::function<void()> on_load;
    std::function<void()> on_press;
    int ticks = 0;

    // clang-format off
    Frame    Group{*this, "Group", {.place = {5, 5, 290, 150}, .caption = "Group", .tab = 1, .enabled = false}};
    Label    Text {Group, "Text",  {.place = {10, 20, 80, 15}, .caption = "&Text:", .tab = 2}};
    TextBox  Box  {Group, "Box",   {.place = {100, 20, 80, 23}, .tab = 3, .text = "back\\slash"}};
    CheckBox Tick {Group, "Tick",  {.place = {10, 50, 80, 17}, .caption = "Tick", .tab = 4, .value = 2,
                                    .visible = false}};
    ListBox  List {*this, "List",  {.place = {10, 70, 80, 70}, .tab = 5}};
    ComboBox Combo{*this, "Combo", {.place = {100, 70, 80, 23}, .tab = 6}};
    Panel    Area {*this, "Area",  {.place = {100, 100, 50, 20}, .tab = 7}};
    Button   Press{*this, "Press", {.place = {10, 160, 75, 23}, .caption = "Press", .tab = 8,
                                    .Click = [this] { if (on_press) on_press(); }}};
    Timer    Clock{*this, "Clock", {.interval = 20, .Timer = [this] { ++ticks; }}};
    // clang-format on

    using Form::show_message;

    void Form_Load() override {
        List.add_line("one");
        List.add_line("two \xF0\x9F\x98\x80");
        List.select(1);
        if (on_load) on_load();
    }
};

/// Handles are numbers of slots in a table. Where the system does not count its objects, the slots that new
/// ones get tell how many there are, roughly.
struct Handles {
    int windows = 0;
    int gdi = 0;
    int top_level = 0;
    int names = 0;
};

BOOL CALLBACK count_window(HWND, LPARAM count) {
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

Handles handles_in_use() {
    Handles used;
    std::vector<HWND> made;
    std::vector<HBRUSH> brushes;
    const auto slot = [](const void* handle) {
        return static_cast<int>(LOWORD(reinterpret_cast<ULONG_PTR>(handle)));
    };
    for (int i = 0; i < 40; ++i) {
        made.push_back(
            CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr));
        brushes.push_back(CreateSolidBrush(static_cast<COLORREF>(i + 1)));
        used.windows = std::max(used.windows, slot(made.back()));
        used.gdi = std::max(used.gdi, slot(brushes.back()));
    }
    for (HWND each : made) DestroyWindow(each);
    for (HBRUSH each : brushes) DeleteObject(each);
    if (const DWORD counted = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS))
        used.windows = static_cast<int>(counted);
    if (const DWORD counted = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS))
        used.gdi = static_cast<int>(counted);
    EnumThreadWindows(GetCurrentThreadId(), count_window, reinterpret_cast<LPARAM>(&used.top_level));
    for (const wchar_t* each : {L"Office", L"Long", L"Press"})
        used.names += GlobalFindAtomW(each) != 0 ? 1 : 0;
    return used;
}

HCURSOR cursor(const wchar_t* name) { return LoadCursorW(nullptr, name); }

HCURSOR cursor_over(HWND window) {
    SendMessageW(window, WM_SETCURSOR, reinterpret_cast<WPARAM>(window), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    return GetCursor();
}

} // namespace

TEST_F(ServicesTest, AFormTellsItsDescriptionToTheWindowThatAsks) {
    Office form(environment);
    show(form, [&](Hands& hands) {
        const HWND window = hands.form("Office");
        std::string whole;
        hands.run([&] {
            whole = brx::description_of(form, Reading::all_lines);
            EXPECT_EQ(from_wide(answer_of(window, -1)), whole);
            EXPECT_EQ(from_wide(answer_of(window, 1)), brx::description_of(form, 1));
            EXPECT_NE(answer_of(window, 1), answer_of(window, 0));
        });
        EXPECT_EQ(from_wide(answer_of(window, -1)), whole) << "asked from another thread";
    });
}

TEST_F(ServicesTest, AFormSaysWhetherTheWindowThatAskedTookItsDescription) {
    Office form(environment);
    show(form, [&](Hands& hands) {
        const HWND window = hands.form("Office");
        EXPECT_EQ(SendMessageW(window, describe_message(), 0, -1), 0) << "Nobody asks.";
        const HWND deaf = hands.control("Office", "Text");
        EXPECT_EQ(SendMessageW(window, describe_message(), reinterpret_cast<WPARAM>(deaf), -1), 0);
    });
}

TEST_F(ServicesTest, EveryWindowOfAFormBearsItsNameUntilItCloses) {
    Office form(environment);
    show(form, [&](Hands& hands) {
        const HWND window = hands.form("Office");
        for (const char* each : {"Group", "Text", "Box", "Tick", "List", "Combo", "Area", "Press"})
            EXPECT_TRUE(hands.control("Office", each));
        for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
            EXPECT_TRUE(GetPropW(child, L"brx.Name"));
        EXPECT_NE(GlobalFindAtomW(L"Office"), 0);
    });
    for (const wchar_t* each : {L"Office", L"Group", L"Tick", L"Press"}) EXPECT_EQ(GlobalFindAtomW(each), 0);
}

TEST_F(ServicesTest, ALabelStandsRightBeforeTheControlThatItNames) {
    Office form(environment);
    show(form, [&](Hands& hands) {
        hands.form("Office");
        EXPECT_EQ(GetWindow(hands.control("Office", "Text"), GW_HWNDNEXT), hands.control("Office", "Box"));
    });
}

TEST_F(ServicesTest, AMessageBoxLiesOverTheFormAndEverythingElseIsDisabled) {
    const HostWindow main;
    Office form(environment);
    std::int32_t pressed = 0;
    form.on_press = [&] {
        pressed = form.show_message(
            {.text = "Are you sure?", .style = message::ok_cancel | message::question, .title = "Question"});
    };
    show(form, [&](Hands& hands) {
        const HWND window = hands.form("Office");
        PostMessageW(hands.control("Office", "Press"), BM_CLICK, 0, 0);
        const HWND box = hands.message_box();
        EXPECT_EQ(Hands::text(box), L"Question");
        EXPECT_EQ(GetWindow(box, GW_OWNER), window);
        EXPECT_FALSE(IsWindowEnabled(window));
        EXPECT_FALSE(IsWindowEnabled(main.handle()));
        const int before = form.ticks;
        EXPECT_TRUE(Hands::eventually([&] { return form.ticks > before + 2; })) << "timers stand still";
        EXPECT_EQ(answer_of(window, 0).substr(0, 13), L"Office\tform\t0");
        PostMessageW(box, WM_COMMAND, IDCANCEL, 0);
        EXPECT_EQ(hands.form("Office"), window);
        hands.run([&] { EXPECT_EQ(GetActiveWindow(), window); });
        EXPECT_EQ(hands.focus(), hands.control("Office", "Press"));
        EXPECT_FALSE(IsWindowEnabled(main.handle()));
    });
    EXPECT_EQ(pressed, message::cancel);
    EXPECT_TRUE(IsWindowEnabled(main.handle()));
}

TEST_F(ServicesTest, AMessageBeforeTheFormIsOpenLiesOverTheHost) {
    const HostWindow main;
    const HostWindow other({0, 0, 100, 100}, WS_OVERLAPPEDWINDOW);
    SetForegroundWindow(main.handle());
    SetFocus(main.edit());
    while_showing([&] { engine.message_box({.text = "Hello", .title = ""}); },
                  [&](Hands& hands) {
                      const HWND box = hands.message_box();
                      EXPECT_EQ(Hands::text(box), L"brxOpcDlgs6");
                      EXPECT_EQ(GetWindow(box, GW_OWNER), main.handle());
                      EXPECT_FALSE(IsWindowEnabled(main.handle()));
                      EXPECT_FALSE(IsWindowEnabled(other.handle()));
                  });
    EXPECT_TRUE(IsWindowEnabled(main.handle()));
    EXPECT_TRUE(IsWindowEnabled(other.handle()));
    EXPECT_EQ(GetFocus(), main.edit());
}

TEST_F(ServicesTest, AMessageWithoutAnyWindowDisablesTheHiddenOnes) {
    const HostWindow hidden({0, 0, 100, 100}, WS_OVERLAPPEDWINDOW);
    while_showing([&] { EXPECT_EQ(engine.message_box({.text = "Hello", .title = "T"}), message::ok); },
                  [&](Hands& hands) {
                      const HWND box = hands.message_box();
                      EXPECT_FALSE(GetWindow(box, GW_OWNER));
                      EXPECT_FALSE(IsWindowEnabled(hidden.handle()));
                  });
    EXPECT_TRUE(IsWindowEnabled(hidden.handle()));
}

TEST_F(ServicesTest, TheHourglassShowsAsLongAsTheOutermostProcedureOfTheForm) {
    Office form(environment);
    Office inner(environment);
    bool looked = false;
    form.on_press = [&] {
        const HWND window = GetActiveWindow();
        {
            const BusyCursor outer(form);
            EXPECT_EQ(GetCursor(), cursor(IDC_WAIT));
            { const BusyCursor nested(form); }
            EXPECT_EQ(cursor_over(window), cursor(IDC_WAIT));
            EXPECT_EQ(cursor_over(GetWindow(window, GW_CHILD)), cursor(IDC_WAIT));
            EXPECT_FALSE(engine.is_busy(inner));
        }
        EXPECT_EQ(cursor_over(window), cursor(IDC_ARROW));
        looked = true;
    };
    show(form, [&](Hands& hands) {
        hands.form("Office");
        hands.press(hands.control("Office", "Press"));
    });
    EXPECT_TRUE(looked);
    {
        const BusyCursor before_it_opens(form);
        EXPECT_EQ(GetCursor(), cursor(IDC_WAIT));
    }
    EXPECT_NE(GetCursor(), cursor(IDC_WAIT));
}

TEST_F(ServicesTest, RepaintingShowsALineWhileTheHandlerGoesOn) {
    Office form(environment);
    bool looked = false;
    form.on_press = [&] {
        form.List.clear();
        form.List.add_line("PLEASE WAIT...");
        form.repaint();
        for (HWND child = GetWindow(GetActiveWindow(), GW_CHILD); child;
             child = GetWindow(child, GW_HWNDNEXT)) {
            EXPECT_FALSE(GetUpdateRect(child, nullptr, FALSE));
            wchar_t name[16] = L"";
            GetClassNameW(child, name, 16);
            if (std::wstring(name) != WC_LISTVIEWW) continue;
            EXPECT_EQ(SendMessageW(child, LVM_GETITEMCOUNT, 0, 0), 1);
            looked = true;
        }
    };
    show(form, [&](Hands& hands) {
        hands.form("Office");
        hands.press(hands.control("Office", "Press"));
    });
    EXPECT_TRUE(looked);
}

TEST_F(ServicesTest, ALabelOfDataIsAStaticControl) {
    class Told : public Office {
    public:
        explicit Told(Environment& on) : Office(on) {}
        Label Data{*this, "Data", {.place = {0, 0, 10, 15}, .caption = "R&D", .mnemonic = false}};
    } form(environment);
    show(form, [&](Hands& hands) {
        EXPECT_EQ(SendMessageW(hands.control("Office", "Data"), WM_GETDLGCODE, 0, 0), DLGC_STATIC);
    });
}

TEST_F(ServicesTest, ManyShowingsLeaveNothingBehind) {
    const HostWindow main;
    class Brief : public Office {
    public:
        explicit Brief(Environment& on) : Office(on) {}
        Label Long{
            *this, "Long", {.place = {0, 0, 10, 15}, .caption = "much too long for it", .mnemonic = false}};
        Timer End{*this, "End", {.interval = 1, .Timer = [this] { unload(); }}};
    } form(environment);
    form.on_load = [&] { form.Press.set_back_color(0x00ABCDEF); };
    for (int i = 0; i < 5; ++i) form.show_modal();
    const Handles before = handles_in_use();
    constexpr int many = 200;
    for (int i = 0; i < many; ++i) form.show_modal();
    const Handles after = handles_in_use();
    EXPECT_LT(after.windows, before.windows + many / 2);
    EXPECT_LT(after.gdi, before.gdi + many / 2);
    EXPECT_EQ(after.top_level, before.top_level);
    EXPECT_EQ(after.names, 0);
}

} // namespace brx::checks
