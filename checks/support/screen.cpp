#include "screen.h"

namespace brx::checks {

std::vector<std::string> marked_rows(const std::vector<Reading::Row>& rows) {
    std::vector<std::string> marked;
    for (const Reading::Row& row : rows) {
        std::string text;
        for (const Reading::Cell& cell : row) {
            if (&cell != &row.front()) text += " | ";
            if (cell.look.bold) text += '*';
            if (cell.look.fore_color == color::red) text += "red:";
            text += cell.text;
            if (cell.look.bold) text += '*';
        }
        marked.push_back(std::move(text));
    }
    return marked;
}

} // namespace brx::checks
