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

    // The averages after one more row; they live until the next call.
    const Column& Add(std::span<const double> row);

private:
    Smoother(std::size_t instruments, int n, double alpha);

    double period_;
    double alpha_;
    Column count_;  // values in the run so far
    Column sum_;    // of the run's first values
    Column average_;
};

}  // namespace jogeon::indicators
