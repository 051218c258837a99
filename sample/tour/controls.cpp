#include "tour/controls.h"

#include "tour/lent.h"

#include <commctrl.h>

#include <cstddef>
#include <iterator>

namespace tour {

namespace {

/// The messages of lists that hold their lines themselves.
struct Messages {
    UINT count, length, text;
};

/// Null for a list view.
const Messages* messages_of(HWND list) {
    static constexpr Messages list_box = {LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT};
    static constexpr Messages combo_box = {CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT};
    wchar_t name[16]{};
    GetClassNameW(list, name, 16);
    if (std::wstring(name) == L"ListBox") return &list_box;
    return std::wstring(name) == L"ComboBox" ? &combo_box : nullptr;
}

Lines lines_of(HWND list, const Messages& messages) {
    Lines lines;
    const LRESULT count = ask(list, messages.count);
    for (LRESULT i = 0; i < count; ++i) {
        const auto index = static_cast<WPARAM>(i);
        const LRESULT length = ask(list, messages.length, index);
        if (length < 0) break; // the list has grown shorter meanwhile
        std::wstring line(static_cast<std::size_t>(length) + 1, L'\0');
        ask(list, messages.text, index, reinterpret_cast<LPARAM>(line.data()));
        line.resize(static_cast<std::size_t>(length));
        lines.push_back(line);
    }
    return lines;
}

POINT middle_of_line(const Program& program, HWND list, int line) {
    if (messages_of(list)) {
        const auto height = static_cast<LONG>(ask(list, LB_GETITEMHEIGHT));
        return {20, line * height + height / 2};
    }
    ask(list, LVM_ENSUREVISIBLE, static_cast<WPARAM>(line));
    const Lent<RECT> there(program, {LVIR_BOUNDS, 0, 0, 0});
    ask(list, LVM_GETITEMRECT, static_cast<WPARAM>(line), there.address());
    const RECT bounds = there.read();
    return {20, (bounds.top + bounds.bottom) / 2};
}

} // namespace

std::wstring text_of(HWND window) {
    std::wstring text(static_cast<std::size_t>(ask(window, WM_GETTEXTLENGTH)) + 1, L'\0');
    const LRESULT length = ask(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

Lines lines_of(const Program& program, HWND list) {
    if (const Messages* messages = messages_of(list)) return lines_of(list, *messages);
    Lines lines;
    for (int row = 0; row < rows_of(list); ++row) lines.push_back(cell_of(program, list, row, 0));
    return lines;
}

std::wstring message_of(HWND box) {
    std::wstring all;
    for (HWND child = GetWindow(box, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        if (const std::wstring text = text_of(child); text.size() > all.size()) all = text;
    return all;
}

int rows_of(HWND list_view) { return static_cast<int>(ask(list_view, LVM_GETITEMCOUNT)); }

int selected_row(HWND list_view) {
    return static_cast<int>(ask(list_view, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

std::wstring cell_of(const Program& program, HWND list_view, int row, int column) {
    struct CellText {
        LVITEMW item;
        wchar_t text[300];
    };
    CellText wanted{};
    const Lent<CellText> there(program, wanted);
    wanted.item.iSubItem = column;
    wanted.item.pszText = reinterpret_cast<LPWSTR>(there.address() + LPARAM{offsetof(CellText, text)});
    wanted.item.cchTextMax = static_cast<int>(std::size(wanted.text));
    there.write(wanted);
    ask(list_view, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), there.address());
    return there.read().text;
}

void click(HWND control, POINT place) {
    const LPARAM at = MAKELPARAM(place.x, place.y);
    PostMessageW(control, WM_LBUTTONDOWN, MK_LBUTTON, at);
    PostMessageW(control, WM_LBUTTONUP, 0, at);
}

void press(HWND button) { PostMessageW(button, BM_CLICK, 0, 0); }

void type(HWND box, const std::wstring& text) {
    for (const wchar_t each : text) PostMessageW(box, WM_CHAR, each, 1);
}

void hit(HWND control, WPARAM key) {
    PostMessageW(control, WM_KEYDOWN, key, 1);
    PostMessageW(control, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
}

void click_line(const Program& program, HWND list, int line, bool twice) {
    const POINT place = middle_of_line(program, list, line);
    click(list, place);
    if (!twice) return;
    const LPARAM at = MAKELPARAM(place.x, place.y);
    PostMessageW(list, WM_LBUTTONDBLCLK, MK_LBUTTON, at);
    PostMessageW(list, WM_LBUTTONUP, 0, at);
}

void click_tab(const Program& program, HWND tab_strip, int tab) {
    const Lent<RECT> there(program, {});
    ask(tab_strip, TCM_GETITEMRECT, static_cast<WPARAM>(tab - 1), there.address());
    const RECT place = there.read();
    click(tab_strip, {(place.left + place.right) / 2, (place.top + place.bottom) / 2});
}

void type_fields(HWND picker, const Lines& fields) {
    click(picker, {6, 8});
    for (const std::wstring& field : fields) {
        type(picker, field);
        hit(picker, VK_RIGHT);
    }
}

void close(HWND window) { PostMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0); }

} // namespace tour
