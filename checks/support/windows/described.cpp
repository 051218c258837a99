#include "windows/described.h"

#include "com/bstr.h"
#include "common/values/text.h"
#include "windows/native.h"
#include "windows/native_table.h"
#include "windows/native_tree.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace brx::checks {

namespace {

constexpr std::size_t field_count = 7;
constexpr std::size_t most_rows = 2'000; ///< of a tree or table are compared, after each deed

std::string plain(const std::string& escaped) {
    std::string text;
    for (std::size_t i = 0; i < escaped.size(); ++i) {
        if (escaped[i] != '\\' || i + 1 == escaped.size()) {
            text += escaped[i];
            continue;
        }
        switch (escaped[++i]) {
        case 't':
            text += '\t';
            break;
        case 'r':
            text += '\r';
            break;
        case 'n':
            text += '\n';
            break;
        case '0':
            text += '\0';
            break;
        default:
            text += escaped[i];
        }
    }
    return text;
}

Described described_in(const std::string& line) {
    const std::vector<std::string> fields = split(line, "\t");
    if (fields.size() != field_count) throw std::runtime_error("brx.Describe answers \"" + line + "\"");
    return {.name = fields[0],
            .kind = fields[1],
            .enabled = fields[2] == "1",
            .visible = fields[3] == "1",
            .number = std::stoi(fields[4]),
            .lines = std::stoi(fields[5]),
            .text = plain(fields[6]),
            .rows = {},
            .columns = {}};
}

/// Gathers what differs, a line each.
class Differences {
public:
    explicit Differences(std::string form) : form_(std::move(form)) {}

    template <class Value>
    void compare(const std::string& name, const char* what, const Value& shown, const Value& held) {
        if (shown != held)
            add(name, std::string(what) + " is " + told(shown) + ", but should be " + told(held));
    }
    void add(const std::string& name, const std::string& what) {
        all_ += form_ + (name == form_ ? "" : "." + name) + ": " + what + "\n";
    }
    const std::string& all() const { return all_; }

private:
    static std::string told(const std::string& text) { return "\"" + text + "\""; }
    static std::string told(bool value) { return value ? "true" : "false"; }
    static std::string told(int value) { return std::to_string(value); }

    std::string form_;
    std::string all_;
};

void compare_rows(const Described& held, const std::vector<std::string>& shown, Differences& differences) {
    for (std::size_t i = 0; i < std::min(shown.size(), held.rows.size()); ++i)
        differences.compare(held.name, "a row", shown[i], held.rows[i]);
}

void compare_columns(const Described& held, const std::vector<std::string>& shown, Differences& differences) {
    differences.compare(held.name, "the number of columns", static_cast<int>(shown.size()),
                        static_cast<int>(held.columns.size()));
    for (std::size_t i = 0; i < std::min(shown.size(), held.columns.size()); ++i)
        differences.compare(held.name, "a column", shown[i], held.columns[i]);
}

/// A panel lies before everything else or behind it.
void compare_order(HWND form, HWND panel, const Described& held, Differences& differences) {
    const bool in_front = GetWindow(form, GW_CHILD) == panel;
    differences.compare(held.name, "in front", in_front, held.number == 1);
}

void compare_control(HWND form, HWND window, const Described& held, Differences& differences) {
    if (!window) return differences.add(held.name, "it has no window");
    const Sight shown = sight_of(window, nullptr);
    differences.compare(held.name, "the text", shown.text, held.text);
    // With something over the form, its controls hold the same and take no input.
    if (IsWindowEnabled(form)) differences.compare(held.name, "enabled", shown.enabled, held.enabled);
    differences.compare(held.name, "visible", shown.visible, held.visible);
    const bool is_tree = held.kind == "tree_view";
    const bool is_table = held.kind == "list_view";
    const bool is_tabs = held.kind == "tab_strip";
    const bool is_list = held.kind == "list_box" || held.kind == "combo_box" || is_table || is_tabs;
    if (is_table) compare_columns(held, column_captions(window), differences);
    if (is_table) compare_rows(held, table_rows(window, static_cast<int>(most_rows)), differences);
    if (is_tabs) compare_rows(held, tab_captions(window), differences);
    if (is_tree) compare_rows(held, tree_rows(window, most_rows), differences);
    if (is_list || (is_tree && held.rows.size() < most_rows))
        differences.compare(held.name, "the number of lines", count_lines(window), held.lines);
    if (held.kind == "panel") compare_order(form, window, held, differences);
    if (is_list || is_tree || held.kind == "check_box")
        differences.compare(held.name, "the selected line or value", shown.selected, held.number);
}

bool is_child(HWND window) { return (GetWindowLongW(window, GWL_STYLE) & WS_CHILD) != 0; }

/// Every other window of the thread has to wait, but for what belongs to the form: tips, lists that dropped
/// down.
void compare_modality(HWND form, Differences& differences) {
    if (!IsWindowEnabled(form)) return;
    for (const HWND other : windows_of(GetWindowThreadProcessId(form, nullptr)))
        if (other != form && IsWindowEnabled(other) && GetWindow(other, GW_OWNER) != form && !is_child(other))
            differences.add(name_of(form), "\"" + text_of(other) + "\" takes input at the same time");
}

} // namespace

std::vector<Described> described(HWND form) {
    static const UINT describe = RegisterWindowMessageW(L"brx.Describe");
    std::wstring answer(static_cast<std::size_t>(SendMessageW(form, describe, 0, 0)), L'\0');
    if (answer.empty()) throw std::runtime_error(name_of(form) + " does not answer brx.Describe");
    SendMessageW(form, describe, answer.size(), reinterpret_cast<LPARAM>(answer.data()));
    std::vector<Described> all;
    for (const std::string& line : split(brx::text_of(answer.c_str(), answer.size() - 1), "\n")) {
        if (line.empty()) continue;
        Described each = described_in(line);
        const bool goes_on = !all.empty() && all.back().name == each.name;
        if (each.kind == "row" && goes_on)
            all.back().rows.push_back(std::move(each.text));
        else if (each.kind == "column" && goes_on)
            all.back().columns.push_back(std::move(each.text));
        else
            all.push_back(std::move(each));
    }
    return all;
}

std::string differences_in(HWND form) {
    const std::vector<Described> all = described(form);
    Differences differences(all.front().name);
    differences.compare(all.front().name, "the name", name_of(form), all.front().name);
    differences.compare(all.front().name, "the caption", text_of(form), all.front().text);
    const NamedWindows windows(form);
    for (const Described& each : all)
        if (each.kind != "form" && each.kind != "timer")
            compare_control(form, windows.find(each.name), each, differences);
    compare_modality(form, differences);
    return differences.all();
}

} // namespace brx::checks
