#pragma once

#include "bench/opening.h"

#include <vector>

namespace brx::bench {

/// What the same thing cost in several runs.
class Series {
public:
    void add(const Cost& cost) { runs_.push_back(cost); }
    /// Every run without what it cost to do next to nothing.
    Series over(const Series& next_to_nothing) const;

    const std::vector<Cost>& runs() const { return runs_; }
    /// The shortest elapsed time.
    double best() const;
    /// The processor's mean time.
    double processor() const;

private:
    std::vector<Cost> runs_;
};

/// The table, line by line. A line is about the ratio of the best elapsed times. Beside it stand the median
/// and the range of the ratio from run to run, and the ratio of the processor's times: they tell how far to
/// trust it.
void print_heading();
void print_line(const char* what, const Series& base, const Series& measured, double target);
/// The same for two amounts of memory.
void print_line(const char* what, double base, double measured, double target);

} // namespace brx::bench
