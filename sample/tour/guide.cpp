#include "tour/guide.h"

#include <algorithm>
#include <cstdio>

namespace tour {

namespace {

/// The part of the screen that shows the window and the one that it belongs to.
RECT area_of(HWND window) {
    RECT area{};
    GetWindowRect(window, &area);
    for (HWND owner = GetWindow(window, GW_OWNER); owner; owner = GetWindow(owner, GW_OWNER)) {
        RECT other{};
        GetWindowRect(owner, &other);
        UnionRect(&area, &area, &other);
    }
    return {std::max(area.left, LONG{0}), std::max(area.top, LONG{0}), area.right, area.bottom};
}

} // namespace

void Guide::step(const std::string& telling, const std::string& picture, const std::function<void()>& doing,
                 const std::wstring& outcome, const std::function<bool()>& come_out, int answers) {
    ++steps_;
    std::printf("%2d. %s\n", steps_, telling.c_str());
    std::fflush(stdout);
    doing();
    program_->wait_until(outcome, come_out, answers);
    take_picture(picture);
}

/// Whoever runs the tour takes the picture when told so; it is there when the file is.
void Guide::take_picture(const std::string& name) {
    Sleep(400); // what is still being drawn
    char file[128];
    std::snprintf(file, sizeof file, "%02d-%s.png", steps_, name.c_str());
    const RECT area = area_of(program_->front());
    std::printf("PICTURE %s %ldx%ld+%ld+%ld\n", file, area.right - area.left, area.bottom - area.top,
                area.left, area.top);
    std::fflush(stdout);
    const std::wstring path =
        folder_ + L"\\" + std::wstring(file, file + std::char_traits<char>::length(file));
    program_->wait_until(
        L"the picture " + path, [&] { return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES; },
        1200);
}

} // namespace tour
