#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace sample {

/// A value in the chart.
struct ChartPoint {
    double value = 0;
    long subgroup = 0; ///< its number from 1; 0 when it was not collected
    double mean = 0;   ///< of the subgroup
    bool operator==(const ChartPoint&) const = default;
};

struct ChartContent {
    std::wstring text;              ///< two lines: what there is, and how it goes on
    std::vector<ChartPoint> points; ///< the oldest first
    long complete_subgroups = 0;
    std::wstring hint = {}; ///< where there are no points
    bool operator==(const ChartContent&) const = default;
};

/// A window with the last values of a test as a run chart: collected ones as dots, joined within a subgroup,
/// with a line at the mean of each complete subgroup; the others pale. Its window text is what it says above.
class Chart {
public:
    static void register_class(HINSTANCE program);
    void create(HWND parent, int id);
    HWND handle() const { return window_; }

    void show(ChartContent content);

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
    void paint() const;

    HWND window_ = nullptr;
    HFONT font_ = nullptr; ///< the parent's
    ChartContent content_;
};

/// Draws the whole chart into an area of a window with so many dots per inch.
void draw_chart(HDC dc, const RECT& area, const ChartContent& content, UINT dpi);

} // namespace sample
