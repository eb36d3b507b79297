// The numbers behind the progress display: a position in a range, as a width in pixels and as a text.
#pragma once

#include <string>

namespace jogeon {

struct ProgressState {
    int position = 0;
    int step = 1;  // kept for its owner; nothing here moves by it
    int maximum = 100;
    int minimum = 0;
    std::string text;  // fixed text, CP949; empty means the percentage
    bool showText = true;

    // The part of the range behind the position. Below 0 or above 1 for a position outside it; 0 for a range
    // that is empty or upside down.
    double Fraction() const;

    // The filled part of `width` pixels, truncated towards 0. It isn't cut to the width.
    int BarWidth(int width) const;

    // What is written over the bar, CP949; empty for nothing.
    std::string ShownText() const;
};

}  // namespace jogeon
