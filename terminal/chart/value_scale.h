// From values to pixels of a pane, and the round values that its axis names.
#pragma once

#include <string>
#include <vector>

#include "terminal/chart/series.h"

namespace jogeon::terminal::chart {

// Low is less than high once it holds a value.
struct ValueRange {
    double low = market::kMissing;
    double high = market::kMissing;

    bool Empty() const { return !(low <= high); }
    void Add(double value);                               // NaN adds nothing
    void Add(const Series& series, int first, int end);   // the values of these bars
    ValueRange Padded(double above, double below) const;  // by so much of its size
};

class ValueScale {
public:
    // `top` and `bottom` are pixels; a range of one value is widened around it.
    ValueScale(ValueRange range, double top, double bottom);

    double YOf(double value) const { return bottom_ - (value - range_.low) * pixels_; }
    double Top() const { return range_.high; }
    double ValueAt(double y) const { return range_.low + (bottom_ - y) / pixels_; }

    // Multiples of 1, 2 or 5 times a power of ten inside the range, at least `apart` pixels from each other.
    // `least` is the smallest step that makes sense.
    std::vector<double> Ticks(double apart, double least) const;

private:
    ValueRange range_;
    double bottom_;
    double pixels_;  // of one unit
};

// The smallest 1, 2 or 5 times a power of ten that is at least `size`.
double NiceStep(double size);

}  // namespace jogeon::terminal::chart
