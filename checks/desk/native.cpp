#include "desk/native.h"

#include "com/bstr.h"
#include "common/values/text.h"
#include "desk/native_table.h"
#include "desk/native_tree.h"

#include <algorithm>
#include <array>

namespace brx::checks {

namespace {

constexpr const wchar_t* name_property = L"brx.Name";

ATOM name_atom_of(HWND window) {
    return static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(GetPropW(window, name_property)));
}

std::wstring class_of(HWND window) {
    std::array<wchar_t, 64> name{};
    const UINT length = RealGetWindowClassW(window, name.data(), static_cast<UINT>(name.size()));
    return {name.data(), length};
}

DWORD style_of(HWND window) { return static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE)); }

/// The messages by which a list box or combo box tells its lines.
struct ListMessages {
    UINT count;
    UINT selected;
    UINT length;
    UINT text;
};
constexpr ListMessages list_box_messages = {LB_GETCOUNT, LB_GETCURSEL, LB_GETTEXTLEN, LB_GETTEXT};
constexpr ListMessages combo_box_messages = {CB_GETCOUNT, CB_GETCURSEL, CB_GETLBTEXTLEN, CB_GETLBTEXT};

std::string line_of(HWND list, const ListMessages& messages, WPARAM line) {
    const auto length = static_cast<std::size_t>(std::max<LRESULT>(0, ask(list, messages.length, line)));
    std::wstring text(length + 1, L'\0');
    const LRESULT got = ask(list, messages.text, line, reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(std::clamp<LRESULT>(got, 0, static_cast<LRESULT>(length))));
    return brx::text_of(text.data(), text.size());
}

/// Null when it is no list.
const ListMessages* list_messages_of(HWND control) {
    switch (kind_of(control)) {
    case NativeKind::list_box:
        return &list_box_messages;
    case NativeKind::combo_box:
        return &combo_box_messages;
    default:
        return nullptr;
    }
}

std::int32_t icon_style(HWND icon) {
    const auto shown = reinterpret_cast<HICON>(ask(icon, STM_GETICON));
    const auto is = [&](const wchar_t* name) { return shown == LoadIconW(nullptr, name); };
    if (is(IDI_HAND)) return message::critical;
    if (is(IDI_QUESTION)) return message::question;
    if (is(IDI_EXCLAMATION)) return message::exclamation;
    if (is(IDI_ASTERISK)) return message::information;
    return 0;
}

BOOL CALLBACK add_if_visible(HWND window, LPARAM windows) noexcept {
    if (IsWindowVisible(window)) reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
    return TRUE;
}

std::vector<HWND> children_of(HWND window) {
    std::vector<HWND> children;
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        children.push_back(child);
    return children;
}

} // namespace

LRESULT ask(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    DWORD_PTR answer = 0;
    if (!SendMessageTimeoutW(window, message, wparam, lparam, SMTO_NORMAL, patience, &answer)) return 0;
    return static_cast<LRESULT>(answer);
}

std::string name_of(HWND window) {
    const ATOM atom = name_atom_of(window);
    if (atom == 0) return {};
    std::array<wchar_t, 256> name{};
    const UINT length = GlobalGetAtomNameW(atom, name.data(), static_cast<int>(name.size()));
    return brx::text_of(name.data(), length);
}

std::string text_of(HWND window) {
    const auto length = static_cast<std::size_t>(ask(window, WM_GETTEXTLENGTH));
    std::wstring text(length + 1, L'\0');
    const LRESULT got = ask(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    return brx::text_of(text.data(), static_cast<std::size_t>(got));
}

std::vector<HWND> windows_of(DWORD thread) {
    std::vector<HWND> windows;
    EnumThreadWindows(thread, add_if_visible, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

NamedWindows::NamedWindows(HWND form) { EnumChildWindows(form, add, reinterpret_cast<LPARAM>(this)); }

BOOL CALLBACK NamedWindows::add(HWND window, LPARAM self) noexcept {
    const ATOM name = name_atom_of(window);
    if (name != 0) reinterpret_cast<NamedWindows*>(self)->windows_.emplace_back(name, window);
    return TRUE;
}

HWND NamedWindows::find(const std::string& name) const {
    const ATOM wanted = GlobalFindAtomW(brx::wide(name).c_str());
    const auto found = std::ranges::find(windows_, wanted, &List::value_type::first);
    return wanted != 0 && found != windows_.end() ? found->second : nullptr;
}

HWND find_control(HWND form, const std::string& name) { return NamedWindows(form).find(name); }

NativeKind kind_of(HWND control) {
    const std::wstring name = class_of(control);
    if (name == L"Edit") return NativeKind::text_box;
    if (name == L"ListBox" || name == L"ComboLBox") return NativeKind::list_box;
    if (name == L"ComboBox") return NativeKind::combo_box;
    if (name == WC_TREEVIEWW) return NativeKind::tree;
    if (name == WC_LISTVIEWW) return NativeKind::table;
    if (name == WC_TABCONTROLW) return NativeKind::tabs;
    if (name == DATETIMEPICK_CLASSW) return NativeKind::date_picker;
    if (name == L"Static") return NativeKind::label;
    if (name != L"Button") return NativeKind::other;
    switch (style_of(control) & BS_TYPEMASK) {
    case BS_GROUPBOX:
        return NativeKind::group;
    case BS_CHECKBOX:
    case BS_AUTOCHECKBOX:
    case BS_3STATE:
    case BS_AUTO3STATE:
        return NativeKind::check_box;
    default:
        return NativeKind::push_button;
    }
}

bool takes_input(HWND window) {
    for (; window; window = GetAncestor(window, GA_PARENT)) {
        if (!IsWindowEnabled(window)) return false;
        if (!(style_of(window) & WS_CHILD)) return true;
    }
    return false;
}

int count_lines(HWND control) {
    const NativeKind kind = kind_of(control);
    if (kind == NativeKind::tree) return static_cast<int>(items_in_view(control).size());
    if (kind == NativeKind::table) return row_count(control);
    if (kind == NativeKind::tabs) return static_cast<int>(ask(control, TCM_GETITEMCOUNT));
    const ListMessages* messages = list_messages_of(control);
    return messages ? static_cast<int>(std::max<LRESULT>(0, ask(control, messages->count))) : 0;
}

std::vector<std::string> lines_of(HWND control, int most) {
    const NativeKind kind = kind_of(control);
    if (kind == NativeKind::tree) return tree_rows(control, static_cast<std::size_t>(most));
    if (kind == NativeKind::table) return table_rows(control, most);
    if (kind == NativeKind::tabs) return tab_captions(control);
    std::vector<std::string> lines;
    const ListMessages* messages = list_messages_of(control);
    for (int line = 0; line < std::min(count_lines(control), most); ++line)
        lines.push_back(line_of(control, *messages, static_cast<WPARAM>(line)));
    return lines;
}

Sight sight_of(HWND control, HWND focused) {
    Sight sight;
    if (!control) return sight;
    sight.exists = true;
    if (const ListMessages* messages = list_messages_of(control)) {
        sight.selected = static_cast<int>(ask(control, messages->selected));
        if (sight.selected >= 0)
            sight.text = line_of(control, *messages, static_cast<WPARAM>(sight.selected));
    } else if (const NativeKind kind = kind_of(control); kind == NativeKind::table) {
        sight.selected = selected_row_of(control);
        if (sight.selected >= 0) sight.text = cell_text(control, sight.selected, 0);
    } else if (kind == NativeKind::tabs) {
        const std::vector<std::string> captions = tab_captions(control);
        sight.selected = static_cast<int>(ask(control, TCM_GETCURSEL));
        if (sight.selected >= 0) sight.text = captions.at(static_cast<std::size_t>(sight.selected));
    } else if (kind == NativeKind::date_picker) {
        sight.text = date_text(control);
    } else if (kind == NativeKind::tree) {
        sight.selected = selected_row(control);
        if (sight.selected >= 0) sight.text = text_of_item(control, selected_item(control));
    } else {
        sight.text = text_of(control);
        if (kind == NativeKind::check_box) sight.selected = static_cast<int>(ask(control, BM_GETCHECK));
    }
    sight.enabled = takes_input(control);
    sight.visible = IsWindowVisible(control) != FALSE;
    sight.focused = focused == control || IsChild(control, focused);
    return sight;
}

HWND waiting_window() {
    HWND found = nullptr;
    while ((found = FindWindowExW(nullptr, found, L"#32770", nullptr)) != nullptr) {
        DWORD process = 0;
        GetWindowThreadProcessId(found, &process);
        if (process == GetCurrentProcessId() && IsWindowVisible(found) && name_of(found) == "Waiting")
            return found;
    }
    return nullptr;
}

bool is_message_box(HWND window) { return class_of(window) == L"#32770" && name_of(window).empty(); }

Message message_in(HWND box) {
    Message message;
    message.title = text_of(box);
    for (const HWND child : children_of(box)) {
        if (kind_of(child) != NativeKind::label) continue;
        if ((style_of(child) & SS_TYPEMASK) == SS_ICON)
            message.style += icon_style(child);
        else
            message.text = text_of(child);
    }
    const HWND cancel = GetDlgItem(box, IDCANCEL);
    if (cancel && GetDlgItem(box, IDOK)) message.style += message::ok_cancel;
    return message;
}

} // namespace brx::checks
