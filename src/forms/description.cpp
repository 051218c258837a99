#include "forms/description.h"

namespace brx {

namespace {

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

/// The lines about one control, or the form.
class Lines {
public:
    Lines(std::string& all, const std::string& name, bool enabled, bool visible)
        : all_(all),
          name_(name),
          state_(std::string("\t") + (enabled ? '1' : '0') + '\t' + (visible ? '1' : '0')) {}

    void add(const char* kind, int number, int lines, const std::string& text) {
        all_ += name_ + '\t' + kind + state_ + '\t' + std::to_string(number) + '\t' + std::to_string(lines) +
                '\t' + escaped(text) + '\n';
    }
    void add(const Reading::Row& row) {
        const char* kind = "row";
        for (const Reading::Cell& cell : row) {
            const bool usual = cell.look.fore_color == CellLook().fore_color;
            add(kind, usual ? -1 : static_cast<int>(cell.look.fore_color), cell.look.bold ? 1 : 0, cell.text);
            kind = "cell";
        }
    }

private:
    std::string& all_;
    const std::string& name_;
    std::string state_;
};

} // namespace

std::string description_of(const Form& form, int most_lines) {
    std::string all;
    Lines(all, form.name(), form.in_front(), true).add("form", -1, 0, form.caption());
    for (const Control* control : form.controls()) {
        const Reading held = control->read(most_lines);
        Lines lines(all, control->name(), held.enabled, held.visible);
        lines.add(control->kind(), held.selected, held.count, held.text);
        for (const std::string& column : held.columns) lines.add("column", -1, 0, column);
        for (const std::string& line : held.lines) lines.add("row", -1, 0, line);
        for (const Reading::Row& row : held.rows) lines.add(row);
    }
    return all;
}

} // namespace brx
