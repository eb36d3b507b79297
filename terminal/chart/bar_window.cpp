#include "terminal/chart/bar_window.h"

#include <algorithm>
#include <cmath>

namespace jogeon::terminal::chart {

void BarWindow::SetBars(int count) {
    bars_ = count;
    barWidth_ = chosenWidth_;
    ToNewest();
}

void BarWindow::SetWidth(double pixels) {
    const bool atNewest = first_ >= NewestFirst();
    const double end = first_ + Visible();
    width_ = std::max(1.0, pixels);
    if (atNewest) return ToNewest();
    first_ = end - Visible();
    Clamp();
}

int BarWindow::FirstVisible() const {
    return std::clamp(static_cast<int>(std::floor(first_)), 0, bars_);
}

int BarWindow::EndVisible() const {
    return std::clamp(static_cast<int>(std::ceil(first_ + Visible())), 0, bars_);
}

int BarWindow::BarAt(double x) const {
    if (FirstVisible() == EndVisible()) return -1;
    const double bar = std::floor(first_ + x / barWidth_);
    return static_cast<int>(std::clamp<double>(bar, FirstVisible(), EndVisible() - 1));
}

void BarWindow::ZoomAt(double x, double factor) {
    const double under = first_ + x / barWidth_;
    barWidth_ *= factor;
    Clamp();  // the width first, then the place
    chosenWidth_ = barWidth_;
    first_ = under - x / barWidth_;
    Clamp();
}

void BarWindow::Pan(double pixels) {
    first_ -= pixels / barWidth_;
    Clamp();
}

void BarWindow::ToOldest() {
    first_ = 0;
    Clamp();
}

void BarWindow::ToNewest() {
    first_ = bars_ + kRoom;
    Clamp();
}

void BarWindow::ShowLast(int bar) {
    first_ = bar + 1 - Visible();
    Clamp();
}

// No narrower than what shows all bars.
void BarWindow::Clamp() {
    const double least = std::min(kWidthOfFew, width_ / (bars_ + kRoom));
    barWidth_ = std::clamp(barWidth_, least, kMostBarWidth);
    const double newest = NewestFirst();
    first_ = std::clamp(first_, std::min(0.0, newest), newest);
}

}  // namespace jogeon::terminal::chart
