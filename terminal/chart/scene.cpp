#include "terminal/chart/scene.h"

#include <cmath>

#include "terminal/texts/value_texts.h"

namespace jogeon::terminal::chart {
namespace {

constexpr double kPriceShare = 0.78, kPriceShareWithLower = 0.60;
constexpr double kVolumeShareWithLower = 0.18;
constexpr double kAbovePrice = 0.04, kBelowPrice = 0.08;  // room for the marks under the lowest bar
constexpr double kAboveVolume = 0.15;
constexpr double kAroundLower = 0.08;

constexpr double kMillion = 1e6, kThousand = 1e3;

ValueScale PriceScaleOf(const Content& content, const BarWindow& window, const QRect& pane) {
    ValueRange range;
    const int first = window.FirstVisible(), end = window.EndVisible();
    for (int bar = first; bar < end; ++bar) {
        range.Add(content.At(bar).low);
        range.Add(content.At(bar).high);
    }
    for (const Curve& curve : content.study.averages) range.Add(curve.values, first, end);
    for (const Curve& curve : content.study.bands) range.Add(curve.values, first, end);
    return {range.Padded(kAbovePrice, kBelowPrice), double(pane.top()), double(pane.bottom())};
}

ValueScale VolumeScaleOf(const Content& content, const BarWindow& window, const QRect& pane) {
    ValueRange range{0, 1};
    const int end = window.EndVisible();
    for (int bar = window.FirstVisible(); bar < end; ++bar) range.Add(content.At(bar).volume);
    return {range.Padded(kAboveVolume, 0), double(pane.top()), double(pane.bottom())};
}

ValueScale LowerScaleOf(const Content& content, const BarWindow& window, const QRect& pane) {
    ValueRange range = content.study.lowerRange;
    const int first = window.FirstVisible(), end = window.EndVisible();
    for (const Curve& curve : content.study.lower) range.Add(curve.values, first, end);
    if (!content.study.histogram.empty()) range.Add(content.study.histogram, first, end);
    return {range.Padded(kAroundLower, kAroundLower), double(pane.top()), double(pane.bottom())};
}

}  // namespace

double Content::ChangeOf(int bar) const {
    if (bar < 1 || At(bar - 1).close == 0) return market::kMissing;
    return 100 * (At(bar).close - At(bar - 1).close) / At(bar - 1).close;
}

Color Content::ColorOf(int bar) const {
    const service::ChartBar& now = At(bar);
    const double base = now.close != now.open || bar == 0 ? now.open : At(bar - 1).close;
    if (now.close == base) return Color::ChartText;
    return now.close > base ? Color::ChartRise : Color::ChartFall;
}

Panes LayOut(QSize size, const Room& room) {
    const bool withLower = room.lowerLegend > 0;
    const int width = std::max(1, size.width() - room.axis);
    const int height = std::max(1, size.height() - room.legend - room.dates);
    const int price = static_cast<int>(height * (withLower ? kPriceShareWithLower : kPriceShare));
    const int volume = withLower ? static_cast<int>(height * kVolumeShareWithLower) : height - price;
    Panes panes;
    panes.legend = {0, 0, size.width(), room.legend};
    panes.price = {0, room.legend, width, price};
    panes.volume = {0, room.legend + price, width, volume};
    panes.lower = {0, room.legend + price + volume, width, height - price - volume};
    panes.lowerCurves = panes.lower.adjusted(0, room.lowerLegend, 0, 0);
    panes.dates = {0, room.legend + height, width, room.dates};
    return panes;
}

Scene::Scene(const Content& shown, const Marks& shownMarks, const BarWindow& bars, const Panes& places)
    : content(shown),
      marks(shownMarks),
      window(bars),
      panes(places),
      price(PriceScaleOf(shown, bars, places.price)),
      volume(VolumeScaleOf(shown, bars, places.volume)),
      lower(LowerScaleOf(shown, bars, places.lowerCurves)) {}

QString PriceText(double won) {
    return NumberText(won);
}

QString VolumeText(double shares, double most) {
    if (most < kMillion) return NumberText(shares);
    return NumberText(shares / kThousand) + "K";
}

}  // namespace jogeon::terminal::chart
