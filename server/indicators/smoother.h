// A recursive average across all instruments, fed one row after the other.
//
// It starts, in each unbroken run of known values, with the plain mean of the run's first n values, and goes
// on with average += alpha * (value - average). A missing value ends the run.
#pragma once

#include <span>

#include "server/indicators/market_day.h"

namespace jogeon::indicators {

class Smoother {
public:
    // alpha 2 / (n + 1), the exponential average.
    static Smoother Exponential(std::size_t instruments, int n) { return {instruments, n, 2.0 / (n + 1)}; }

    // alpha 1 / n. J. W. Wilder, New Concepts in Technical Trading Systems, 1978.
    static Smoother Wilder(std::size_t instruments, int n) { return {instruments, n, 1.0 / n}; }

    // Takes in one more row.
    void Add(std::span<const double> row);

    // The averages after the last row, missing where the run is shorter than n.
    Column Averages() const;

private:
    Smoother(std::size_t instruments, int n, double alpha);

    double period_;
    double alpha_;
    Column count_;  // values in the run so far
    Column level_;  // their sum up to the n-th, then the average
};

}  // namespace jogeon::indicators
