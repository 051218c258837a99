#include "windows/described.h"

#include "com/bstr.h"
#include "common/values/text.h"
#include "desk/native.h"
#include "desk/native_table.h"

#include <commctrl.h>

#include <algorithm>
#include <stdexcept>

namespace brx::checks {

namespace {

constexpr std::size_t field_count = 7;
constexpr int most_rows = 2'000;    ///< of a tree or table are compared, after each deed
constexpr int most_of_a_list = 100; ///< whose lines have to be asked for one by one

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

/// One line of the answer, field by field.
struct Told {
    explicit Told(const std::string& line) : fields(split(line, "\t")) {
        if (fields.size() != field_count) throw std::runtime_error("brx.Describe answers \"" + line + "\"");
    }
    const std::string& name() const { return fields[0]; }
    const std::string& kind() const { return fields[1]; }
    int number() const { return std::stoi(fields[4]); }
    int lines() const { return std::stoi(fields[5]); }
    std::string text() const { return plain(fields[6]); }

    Described whole() const {
        Described all{.name = name(), .kind = kind(), .held = {}};
        all.held.enabled = fields[2] == "1";
        all.held.visible = fields[3] == "1";
        all.held.selected = number();
        all.held.count = lines();
        all.held.text = text();
        return all;
    }
    Reading::Cell cell() const {
        const CellLook usual;
        return {.text = text(),
                .look = {.bold = lines() == 1,
                         .fore_color = number() < 0 ? usual.fore_color : static_cast<Color>(number())}};
    }

    std::vector<std::string> fields;
};

void add_line(Described& control, const Told& told) {
    if (told.kind() == "column")
        control.held.columns.push_back(told.text());
    else if (control.kind != "list_view")
        control.held.lines.push_back(told.text());
    else if (told.kind() == "row")
        control.held.rows.push_back({told.cell()});
    else
        control.held.rows.back().push_back(told.cell());
}

/// Gets the answer.
class AskingWindow {
public:
    AskingWindow()
        : handle_(CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr,
                                  nullptr)) {
        SetWindowSubclass(handle_, procedure, 1, reinterpret_cast<DWORD_PTR>(this));
    }
    ~AskingWindow() { DestroyWindow(handle_); }
    AskingWindow(const AskingWindow&) = delete;
    AskingWindow& operator=(const AskingWindow&) = delete;

    std::wstring ask(HWND form, int most_lines) {
        static const UINT describe = RegisterWindowMessageW(L"brx.Describe");
        asked_ = describe;
        answer_.clear();
        if (SendMessageW(form, describe, reinterpret_cast<WPARAM>(handle_), most_lines) != 1) answer_.clear();
        return answer_;
    }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR,
                                      DWORD_PTR self) noexcept {
        if (message != WM_COPYDATA) return DefSubclassProc(window, message, wparam, lparam);
        const auto& copied = *reinterpret_cast<const COPYDATASTRUCT*>(lparam);
        auto& asking = *reinterpret_cast<AskingWindow*>(self);
        if (copied.dwData != asking.asked_) return FALSE;
        asking.answer_.assign(static_cast<const wchar_t*>(copied.lpData), copied.cbData / sizeof(wchar_t));
        return TRUE;
    }

    HWND handle_;
    UINT asked_ = 0;
    std::wstring answer_;
};

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

using Lines = std::vector<std::string>;

/// As far as both were read.
void compare_lines(const std::string& name, const char* what, const Lines& shown, const Lines& held,
                   Differences& differences) {
    for (std::size_t i = 0; i < std::min(shown.size(), held.size()); ++i)
        differences.compare(name, what, shown[i], held[i]);
}

void compare_columns(const Described& control, const Lines& shown, Differences& differences) {
    const Lines& held = control.held.columns;
    differences.compare(control.name, "the number of columns", static_cast<int>(shown.size()),
                        static_cast<int>(held.size()));
    compare_lines(control.name, "a column", shown, held, differences);
}

/// A panel lies before everything else or behind it.
void compare_order(HWND form, HWND panel, const Described& control, Differences& differences) {
    const bool in_front = GetWindow(form, GW_CHILD) == panel;
    differences.compare(control.name, "in front", in_front, control.held.selected == 1);
}

void compare_control(HWND form, HWND window, const Described& control, Differences& differences) {
    const std::string& name = control.name;
    const Reading& held = control.held;
    if (!window) return differences.add(name, "it has no window");
    const Sight shown = sight_of(window, nullptr);
    differences.compare(name, "the text", shown.text, held.text);
    // With something over the form, its controls hold the same and take no input.
    if (IsWindowEnabled(form)) differences.compare(name, "enabled", shown.enabled, held.enabled);
    differences.compare(name, "visible", shown.visible, held.visible);
    if (control.kind == "panel") return compare_order(form, window, control, differences);
    const bool is_tree = control.kind == "tree_view";
    const bool is_table = control.kind == "list_view";
    const bool is_list =
        control.kind == "list_box" || control.kind == "combo_box" || control.kind == "tab_strip";
    if (is_table) compare_columns(control, column_captions(window), differences);
    if (is_list || is_table || is_tree)
        compare_lines(name, "a row", lines_of(window, is_list ? most_of_a_list : most_rows),
                      is_table ? marked_rows(held.rows) : held.lines, differences);
    if (is_list || is_table || (is_tree && held.count < most_rows))
        differences.compare(name, "the number of lines", count_lines(window), held.count);
    if (is_list || is_table || is_tree || control.kind == "check_box")
        differences.compare(name, "the selected line or value", shown.selected, held.selected);
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

std::wstring answer_of(HWND form, int most) { return AskingWindow().ask(form, most); }

std::vector<Described> described(HWND form, int most) {
    const std::wstring answer = answer_of(form, most);
    if (answer.empty()) throw std::runtime_error(name_of(form) + " does not answer brx.Describe");
    std::vector<Described> all;
    for (const std::string& line : split(brx::text_of(answer.c_str(), answer.size()), "\n")) {
        if (line.empty()) continue;
        const Told told(line);
        const bool is_part = told.kind() == "row" || told.kind() == "cell" || told.kind() == "column";
        if (is_part && !all.empty() && all.back().name == told.name())
            add_line(all.back(), told);
        else
            all.push_back(told.whole());
    }
    return all;
}

std::string differences_in(HWND form) {
    const std::vector<Described> all = described(form, most_rows);
    const Described& whole = all.front();
    Differences differences(whole.name);
    differences.compare(whole.name, "the name", name_of(form), whole.name);
    differences.compare(whole.name, "the caption", text_of(form), whole.held.text);
    const NamedWindows windows(form);
    for (const Described& each : all)
        if (each.kind != "form" && each.kind != "timer")
            compare_control(form, windows.find(each.name), each, differences);
    compare_modality(form, differences);
    return differences.all();
}

} // namespace brx::checks
