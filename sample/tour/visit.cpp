#include "tour/visit.h"

#include <algorithm>

namespace tour {

bool Visit::can_press(const std::wstring& button) const {
    const HWND window = program_.control(button);
    return IsWindowVisible(window) && IsWindowEnabled(window);
}

bool Visit::message_starts(const std::wstring& headline) const {
    return at(L"message") && message_of(program_.front()).rfind(headline, 0) == 0;
}

Lines Visit::cells(const std::wstring& list, int row, int columns) const {
    const HWND window = program_.control(list);
    Lines all;
    for (int column = 0; column < columns; ++column) all.push_back(cell_of(program_, window, row, column));
    return all;
}

void Visit::press(const std::wstring& button) const {
    program_.wait_until(L"the button " + button, [&] { return can_press(button); });
    tour::press(program_.control(button));
}

void Visit::click_on(const std::wstring& list, const std::wstring& line, bool twice) const {
    const Lines all = lines(list);
    const auto found = std::ranges::find(all, line);
    if (found == all.end()) throw Disappointment{L"There is no line " + line};
    click_line(program_, program_.control(list), static_cast<int>(found - all.begin()), twice);
}

void Visit::fill_in(const std::wstring& box, const std::wstring& text) const {
    const HWND window = program_.control(box);
    click(window, {8, 8});
    hit(window, VK_HOME);
    for (std::size_t i = text_of(window).size(); i > 0; --i) hit(window, VK_DELETE);
    type(window, text);
    program_.wait_until(L"the text " + text, [&] { return reads(box) == text; });
}

void Visit::turn_to(int tab, const std::wstring& control) const {
    click_tab(program_, program_.control(L"TabStrip1"), tab);
    program_.wait_until(L"the tab", [&] { return is_visible(control); });
}

void Visit::answer(const std::wstring& dialog) const {
    PostMessageW(program_.front(), WM_COMMAND, IDOK, 0);
    program_.wait_until(L"the dialog again", [&] { return at(dialog); });
}

} // namespace tour
