#include "bench/series.h"

#include <algorithm>
#include <cstdio>

namespace brx::bench {

namespace {

void print_ratio(const char* what, double base, double measured, const char* unit, double target) {
    const double ratio = measured / base;
    std::printf("%-36s%9.1f %9.1f %-5s %6.2f %6.2f %-7s", what, base, measured, unit, ratio, target,
                ratio <= target ? "met" : "missed");
}

} // namespace

Series Series::over(const Series& next_to_nothing) const {
    const Cost least = {next_to_nothing.best(), next_to_nothing.processor()};
    Series result;
    for (const Cost& run : runs_) result.add(run - least);
    return result;
}

double Series::best() const {
    double best = runs_.front().elapsed;
    for (const Cost& run : runs_) best = std::min(best, run.elapsed);
    return best;
}

double Series::processor() const {
    double sum = 0;
    for (const Cost& run : runs_) sum += run.processor;
    return sum / static_cast<double>(runs_.size());
}

void print_heading() {
    std::printf("%-36s%9s %9s %-5s %6s %6s %-7s%20s %10s\n", "", "floor", "dialog", "", "ratio", "target", "",
                "median, runs", "processor");
}

void print_line(const char* what, const Series& base, const Series& measured, double target) {
    print_ratio(what, base.best(), measured.best(), "ms", target);
    std::vector<double> ratios;
    for (std::size_t i = 0; i < std::min(base.runs().size(), measured.runs().size()); ++i)
        ratios.push_back(measured.runs()[i].elapsed / base.runs()[i].elapsed);
    std::sort(ratios.begin(), ratios.end());
    std::printf("%6.2f, %4.2f to %4.2f %10.2f\n", ratios[ratios.size() / 2], ratios.front(), ratios.back(),
                measured.processor() / base.processor());
    std::fflush(stdout);
}

void print_line(const char* what, double base, double measured, double target) {
    print_ratio(what, base, measured, "bytes", target);
    std::printf("\n");
}

} // namespace brx::bench
