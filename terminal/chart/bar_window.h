// Which bars a chart shows, and where: a window of fractional bars over a width in pixels.
//
// Knows nothing of what a bar is. Whatever is asked of it, at least one bar stays in view, and the newest
// never moves further from the right edge than a little room.
#pragma once

#include <algorithm>

namespace jogeon::terminal::chart {

class BarWindow {
public:
    static constexpr double kFirstBarWidth = 8;  // pixels, the gap to the next bar included
    static constexpr double kWidthOfFew = 24;    // the least where all bars fit in side by side
    static constexpr double kMostBarWidth = 64;
    static constexpr double kRoom = 1.5;  // bars that stay free right of the newest, where that is in view

    // Other bars: the newest in view, the bars as wide as last zoomed to if that can be.
    void SetBars(int count);

    // Pixels. What stands at the right edge stays there.
    void SetWidth(double pixels);

    int Bars() const { return bars_; }
    double BarWidth() const { return barWidth_; }

    // The bars that are in view, in part or whole: first and one past the last.
    int FirstVisible() const;
    int EndVisible() const;

    // Pixels from the left edge; of a bar in view or not.
    double CentreOf(int bar) const { return (bar + 0.5 - first_) * barWidth_; }

    // The bar in view that is nearest to `x`, -1 if there is none.
    int BarAt(double x) const;

    // Makes bars wider by `factor` while the place under `x` stays where it is.
    void ZoomAt(double x, double factor);
    void ZoomAtEnd(double factor) { ZoomAt(width_, factor); }

    // Moves the bars to the right, towards older ones.
    void Pan(double pixels);
    void PanBars(double bars) { Pan(bars * barWidth_); }
    void PanPages(double pages) { Pan(pages * width_); }

    void ToOldest();
    void ToNewest();
    void ShowLast(int bar);  // as the last in view

private:
    double Visible() const { return width_ / barWidth_; }
    double NewestFirst() const { return bars_ + std::clamp(Visible() - 1, 0.0, kRoom) - Visible(); }
    void Clamp();

    int bars_ = 0;
    double width_ = 1;
    double barWidth_ = kFirstBarWidth;
    double chosenWidth_ = kFirstBarWidth;  // without what too few bars make of it
    double first_ = 0;                     // the bar at the left edge, its part before it as a fraction
};

}  // namespace jogeon::terminal::chart
