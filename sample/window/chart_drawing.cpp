#include "window/chart.h"

#include "window/com.h"
#include "window/screen.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace sample {

namespace {

constexpr int places = 60; ///< for values, side by side

// Lengths at 96 DPI.
constexpr int padding = 7;
constexpr int between_lines = 2;
constexpr int dot = 3; ///< radius
constexpr int pale_dot = 2;

/// Draws with one pen and one brush, and puts back what was there.
class Stroke {
public:
    Stroke(HDC dc, int color, int width, bool filled)
        : dc_(dc),
          pen_(CreatePen(PS_SOLID, width, GetSysColor(color))),
          former_pen_(SelectObject(dc, pen_)),
          former_brush_(SelectObject(dc, filled ? GetSysColorBrush(color) : GetSysColorBrush(COLOR_WINDOW))) {
    }
    Stroke(const Stroke&) = delete;
    Stroke& operator=(const Stroke&) = delete;
    ~Stroke() {
        SelectObject(dc_, former_brush_);
        SelectObject(dc_, former_pen_);
        DeleteObject(pen_);
    }

    void line(POINT from, POINT to) const {
        MoveToEx(dc_, from.x, from.y, nullptr);
        LineTo(dc_, to.x, to.y);
    }
    void circle(POINT middle, int radius) const {
        Ellipse(dc_, middle.x - radius, middle.y - radius, middle.x + radius + 1, middle.y + radius + 1);
    }

private:
    HDC dc_;
    HPEN pen_;
    HGDIOBJ former_pen_;
    HGDIOBJ former_brush_;
};

/// In the user's locale, with as many digits as the axis needs.
std::wstring number_text(double number, double span) {
    const int digits = static_cast<int>(std::clamp(std::ceil(1 - std::log10(span)), 0.0, 9.0));
    VARIANT value{};
    Text text;
    V_VT(&value) = VT_R8;
    V_R8(&value) = number;
    if (FAILED(VarFormatNumber(&value, digits, -1, 0, 0, 0, text.out()))) return {};
    return text.text();
}

/// The values that the axis goes from and to.
struct Scale {
    double low = 0;
    double high = 1;

    explicit Scale(const std::vector<ChartPoint>& points) {
        if (points.empty()) return;
        const auto [least, most] = std::ranges::minmax_element(points, {}, &ChartPoint::value);
        low = least->value;
        high = most->value;
        if (high > low) return;
        const double room = low == 0 ? 1 : std::abs(low) / 100;
        low -= room;
        high += room;
    }
};

class Drawing {
public:
    Drawing(HDC dc, const ChartContent& content, UINT dpi)
        : dc_(dc), content_(content), dpi_(dpi), scale_(content.points) {
        TEXTMETRICW metrics{};
        GetTextMetricsW(dc, &metrics);
        line_height_ = metrics.tmHeight;
        SetBkMode(dc, TRANSPARENT);
    }

    void draw(const RECT& area) {
        FillRect(dc_, &area, GetSysColorBrush(COLOR_WINDOW));
        FrameRect(dc_, &area, GetSysColorBrush(COLOR_BTNSHADOW));
        RECT inside = area;
        InflateRect(&inside, -px(padding), -px(padding));
        RECT text = inside;
        draw_legend(inside);
        DrawTextW(dc_, content_.text.c_str(), -1, &text, DT_NOPREFIX | DT_END_ELLIPSIS);
        inside.top += 2 * line_height_ + px(padding);
        if (content_.points.empty())
            DrawTextW(dc_, content_.hint.c_str(), -1, &inside,
                      DT_NOPREFIX | DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_END_ELLIPSIS);
        else if (inside.bottom - inside.top > 2 * line_height_)
            draw_values(inside);
    }

private:
    int px(int length) const { return scaled(length, dpi_); }
    int width_of(const std::wstring& text) const {
        SIZE size{};
        GetTextExtentPoint32W(dc_, text.data(), static_cast<int>(text.size()), &size);
        return static_cast<int>(size.cx);
    }
    void write(const std::wstring& text, int left, int top, int color) const {
        SetTextColor(dc_, GetSysColor(color));
        TextOutW(dc_, left, top, text.data(), static_cast<int>(text.size()));
    }

    /// What the signs mean, in the upper right corner if there is room.
    void draw_legend(const RECT& inside) const {
        SetTextColor(dc_, GetSysColor(COLOR_WINDOWTEXT));
        if (content_.points.empty()) return;
        const std::array<std::wstring, 3> words = {L"collected", L"not collected", L"mean of a subgroup"};
        const int sign = px(14);
        int left = inside.right;
        for (const std::wstring& word : words) left -= sign + width_of(word) + px(padding);
        left += px(padding);
        const std::wstring beside = content_.text.substr(0, content_.text.find(L'\n'));
        if (left < inside.left + width_of(beside) + 2 * px(padding)) return;
        const LONG middle = inside.top + line_height_ / 2;
        for (std::size_t i = 0; i < words.size(); ++i) {
            const POINT at{left + px(dot), middle};
            if (i == 0) Stroke(dc_, COLOR_HIGHLIGHT, px(1), true).circle(at, px(dot));
            if (i == 1) Stroke(dc_, COLOR_GRAYTEXT, px(1), false).circle(at, px(pale_dot));
            if (i == 2)
                Stroke(dc_, COLOR_WINDOWTEXT, px(2), true).line({left, middle}, {left + px(9), middle});
            write(words[i], left + sign, inside.top, COLOR_WINDOWTEXT);
            left += sign + width_of(words[i]) + px(padding);
        }
    }

    void draw_values(RECT area) {
        const double span = scale_.high - scale_.low;
        const std::wstring high = number_text(scale_.high, span);
        const std::wstring low = number_text(scale_.low, span);
        const int labels = std::max(width_of(high), width_of(low));
        write(high, area.left + labels - width_of(high), area.top, COLOR_WINDOWTEXT);
        write(low, area.left + labels - width_of(low), area.bottom - line_height_, COLOR_WINDOWTEXT);
        plot_ = {area.left + labels + px(padding), area.top + line_height_ / 2, area.right,
                 area.bottom - line_height_ / 2};
        {
            const Stroke frame(dc_, COLOR_BTNFACE, px(1), false);
            frame.line({plot_.left, plot_.top}, {plot_.right, plot_.top});
            frame.line({plot_.left, plot_.bottom}, {plot_.right, plot_.bottom});
        }
        draw_lines();
        draw_dots();
    }

    POINT place(std::size_t index, double value) const {
        const auto i = static_cast<int>(index);
        const double share = (value - scale_.low) / (scale_.high - scale_.low);
        return {plot_.left + MulDiv(2 * i + 1, plot_.right - plot_.left, 2 * places),
                plot_.bottom - static_cast<LONG>(std::lround(share * (plot_.bottom - plot_.top)))};
    }

    /// Of each subgroup the way from piece to piece, and its mean once it is complete.
    void draw_lines() const {
        const auto& points = content_.points;
        const int beyond = px(dot + 1);
        std::size_t last = 0;
        for (std::size_t first = 0; first < points.size(); first = last + 1) {
            last = first;
            const long number = points[first].subgroup;
            if (number == 0) continue;
            std::size_t next = first + 1;
            for (; next < points.size(); ++next) {
                if (points[next].subgroup == 0) continue;
                if (points[next].subgroup != number) break;
                Stroke(dc_, COLOR_HIGHLIGHT, px(1), false)
                    .line(place(last, points[last].value), place(next, points[next].value));
                last = next;
            }
            if (number > content_.complete_subgroups) continue;
            POINT from = place(first, points[first].mean);
            POINT to = place(last, points[first].mean);
            from.x -= beyond;
            to.x += beyond;
            Stroke(dc_, COLOR_WINDOWTEXT, px(2), false).line(from, to);
        }
    }

    void draw_dots() const {
        for (std::size_t i = 0; i < content_.points.size(); ++i) {
            const ChartPoint& point = content_.points[i];
            const bool collected = point.subgroup != 0;
            Stroke(dc_, collected ? COLOR_HIGHLIGHT : COLOR_GRAYTEXT, px(1), collected)
                .circle(place(i, point.value), px(collected ? dot : pale_dot));
        }
    }

    HDC dc_;
    const ChartContent& content_;
    UINT dpi_;
    Scale scale_;
    int line_height_ = 0;
    RECT plot_{};
};

} // namespace

void draw_chart(HDC dc, const RECT& area, const ChartContent& content, UINT dpi) {
    Drawing(dc, content, dpi).draw(area);
}

} // namespace sample
