#include "forms/win32/describe.h"

#include "forms/button.h"
#include "forms/check_box.h"
#include "forms/date_picker.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/list_control.h"
#include "forms/list_rows.h"
#include "forms/tab_strip.h"
#include "forms/text_box.h"
#include "forms/tree_rows.h"
#include "forms/win32/wide.h"

#include <algorithm>

namespace brx {

namespace {

struct Description {
    const char* kind = "";
    int number = -1;
    int lines = 0;
    std::string text = {};
    std::vector<std::string> columns = {};
    std::vector<std::string> rows = {};
};

Description describe_list(const char* kind, const ListControl& list) {
    return {.kind = kind, .number = list.selected(), .lines = list.count(), .text = list.text()};
}

Description describe_tree(const TreeView& tree) {
    std::vector<std::string> rows = rows_of(tree);
    const int row = row_of(tree, tree.selected());
    return {.kind = "tree_view",
            .number = row,
            .lines = static_cast<int>(rows.size()),
            .text = row < 0 ? std::string() : tree.selected()->text(),
            .rows = std::move(rows)};
}

Description describe_table(const ListView& list) {
    const int selected = list.selected();
    Description all{.kind = "list_view",
                    .number = selected - 1,
                    .lines = list.count(),
                    .text = selected == 0 ? std::string() : list.row(selected).text(),
                    .rows = rows_of(list)};
    for (const ListView::Column& column : list.columns()) all.columns.push_back(column.caption);
    return all;
}

Description describe_tabs(const TabStrip& strip) {
    return {.kind = "tab_strip",
            .number = strip.selected() - 1,
            .lines = strip.count(),
            .text = strip.caption(strip.selected()),
            .rows = strip.captions()};
}

Description describe(const Control& control) {
    switch (control.kind()) {
    case Kind::label:
        return {.kind = "label", .text = dynamic_cast<const Label&>(control).caption()};
    case Kind::text_box:
        return {.kind = "text_box", .text = dynamic_cast<const TextBox&>(control).text()};
    case Kind::button:
        return {.kind = "button", .text = dynamic_cast<const Button&>(control).caption()};
    case Kind::check_box: {
        const auto& box = dynamic_cast<const CheckBox&>(control);
        return {.kind = "check_box", .number = box.value(), .text = box.caption()};
    }
    case Kind::list_box:
        return describe_list("list_box", dynamic_cast<const ListControl&>(control));
    case Kind::combo_box:
        return describe_list("combo_box", dynamic_cast<const ListControl&>(control));
    case Kind::tree_view:
        return describe_tree(dynamic_cast<const TreeView&>(control));
    case Kind::list_view:
        return describe_table(dynamic_cast<const ListView&>(control));
    case Kind::tab_strip:
        return describe_tabs(dynamic_cast<const TabStrip&>(control));
    case Kind::date_picker:
        return {.kind = "date_picker", .text = dynamic_cast<const DatePicker&>(control).text()};
    case Kind::frame:
        return {.kind = "frame", .text = dynamic_cast<const Frame&>(control).caption()};
    case Kind::panel:
        return {.kind = "panel", .number = dynamic_cast<const Panel&>(control).in_front() ? 1 : 0};
    case Kind::timer:
        return {.kind = "timer"};
    }
    return {};
}

std::string escaped(const std::string& text) {
    std::string result;
    for (const char each : text) {
        switch (each) {
        case '\\':
            result += "\\\\";
            break;
        case '\t':
            result += "\\t";
            break;
        case '\r':
            result += "\\r";
            break;
        case '\n':
            result += "\\n";
            break;
        case '\0':
            result += "\\0";
            break;
        default:
            result += each;
        }
    }
    return result;
}

std::string line(const std::string& name, bool enabled, bool visible, const Description& what) {
    return name + '\t' + what.kind + '\t' + (enabled ? '1' : '0') + '\t' + (visible ? '1' : '0') + '\t' +
           std::to_string(what.number) + '\t' + std::to_string(what.lines) + '\t' + escaped(what.text) + '\n';
}

} // namespace

UINT describe_message() {
    static const UINT message = RegisterWindowMessageW(L"brx.Describe");
    return message;
}

LRESULT describe(const Form& form, WPARAM capacity, LPARAM buffer) {
    std::string all = line(form.name(), form.in_front(), true, {.kind = "form", .text = form.caption()});
    for (const Control* control : form.controls()) {
        const Description what = describe(*control);
        const auto add = [&](const Description& part) {
            all += line(control->name(), control->takes_input(), control->shows(), part);
        };
        add(what);
        for (const std::string& column : what.columns) add({.kind = "column", .text = column});
        for (const std::string& row : what.rows) add({.kind = "row", .text = row});
    }
    const std::wstring answer = to_wide(all);
    if (buffer != 0 && capacity > 0) {
        auto* const to = reinterpret_cast<wchar_t*>(buffer);
        const std::size_t length = std::min<std::size_t>(answer.size(), capacity - 1);
        std::copy_n(answer.begin(), length, to);
        to[length] = L'\0';
    }
    return static_cast<LRESULT>(answer.size() + 1);
}

} // namespace brx
