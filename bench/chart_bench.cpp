// The chart at 7,500 bars with all its lines, beside the same content drawn in two plain ways: every bar and
// line with QPainter at each repaint, and as items of a QGraphicsScene.
//
// A step holds what the user waits for: the event and the painting it leads to. The figure behind a name is
// how many bars are in view. The plain ones draw bars, volumes and lines, and no axis, legend or mark.
#include <QApplication>
#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QMouseEvent>
#include <QPainterPath>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include <benchmark/benchmark.h>

#include "screen/palette/colors_qt.h"
#include "server/engine/true_days.h"
#include "server/market/calendar.h"
#include "server/market/generated_market.h"
#include "server/market/random_numbers.h"
#include "terminal/chart/chart_view.h"

namespace {

using namespace jogeon;
using namespace jogeon::terminal::chart;

constexpr int kBars = 7'500;
constexpr QSize kSize(1220, 800);
constexpr int kFewBars = 140;     // about what a new chart of that size has in view
constexpr int kManyBars = 3'750;  // several in each column of pixels

Bars WalkOfBars() {
    market::RandomNumbers random(7, 0);
    Bars bars;
    double close = 50'000;
    for (int i = 0; i < kBars; ++i) {
        const double open = close;
        close = std::max(1'000.0, open * (1 + 0.02 * random.Normal()));
        const double high = std::max(open, close) * (1 + 0.01 * random.Uniform());
        const double low = std::min(open, close) * (1 - 0.01 * random.Uniform());
        const int date = market::DateOfDay(market::DayNumber(19960101) + i * 7 / 5);
        bars.push_back({date, open, high, low, close, random.Between(1e5, 1e6)});
    }
    return bars;
}

const Bars& TheBars() {
    static const Bars bars = WalkOfBars();
    return bars;
}

const Study& TheStudy() {
    static const Study study = StudyOf(TheBars(), {.periods = {5, 20, 60, 120, 240}});
    return study;
}

void Present(QWidget& widget) {
    widget.resize(kSize);
    widget.show();
    QApplication::processEvents();
}

void Wheel(QWidget& widget, int angle) {
    const QPointF at(600, 300);
    QWheelEvent wheel(at, widget.mapToGlobal(at), {}, {0, angle}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &wheel);
}

void Mouse(QWidget& widget, QEvent::Type type, QPointF at, Qt::MouseButton button, Qt::MouseButtons held) {
    QMouseEvent mouse(type, at, widget.mapToGlobal(at), button, held, Qt::NoModifier);
    QApplication::sendEvent(&widget, &mouse);
}

class Ours {
public:
    explicit Ours(int inView) {
        view.Show({"000010", "name", market::Timeframe::Day, TheBars(), TheStudy()});
        Present(view);
        if (inView == kManyBars) ZoomOut();
    }
    void Press() { Mouse(view, QEvent::MouseButtonPress, {600, 300}, Qt::LeftButton, Qt::LeftButton); }
    void Drag(int x) { Mouse(view, QEvent::MouseMove, {x + 0.0, 300}, Qt::NoButton, Qt::LeftButton); }
    void Point(int x) { Mouse(view, QEvent::MouseMove, {x + 0.0, 300}, Qt::NoButton, Qt::NoButton); }
    void Zoom(bool in) { Wheel(view, in ? 120 : -120); }

    ChartView view;

private:
    // All the way, and half of it back.
    void ZoomOut() {
        Wheel(view, -120 * 40);
        while (view.Window().EndVisible() - view.Window().FirstVisible() > kManyBars) Wheel(view, 10);
        QApplication::processEvents();
    }
};

// Places of a pane: bars to the right from `first`, values upwards.
struct Mapping {
    double first, barWidth, low, pixels, bottom;
    double X(std::size_t bar) const { return (static_cast<double>(bar) + 0.5 - first) * barWidth; }
    double Y(double value) const { return bottom - (value - low) * pixels; }
};

Mapping MappingOf(double first, double barWidth, double low, double high, double top, double bottom) {
    return {first, barWidth, low, (bottom - top) / (high - low), bottom};
}

QPainterPath PathOf(const Series& values, const Mapping& map) {
    QPainterPath path;
    bool begun = false;
    for (std::size_t bar = 0; bar < values.size(); ++bar) {
        if (std::isnan(values[bar])) continue;
        const QPointF point(map.X(bar), map.Y(values[bar]));
        begun ? path.lineTo(point) : path.moveTo(point);
        begun = true;
    }
    return path;
}

// The panes' mappings over all bars at once.
struct Whole {
    Mapping price, volume, lower;

    Whole(double first, double barWidth)
        : price(MappingOf(first, barWidth, 0, 2 * HighestPrice(), 40, 500)),
          volume(MappingOf(first, barWidth, 0, 1e6, 510, 640)),
          lower(MappingOf(first, barWidth, -HighestPrice() / 10, HighestPrice() / 10, 650, 780)) {}

    static double HighestPrice() {
        static const double highest =
            std::max_element(TheBars().begin(), TheBars().end(), [](const auto& a, const auto& b) {
                return a.high < b.high;
            })->high;
        return highest;
    }

    // Calls draw(path, colour) for each line.
    template <typename Draw>
    void ForEachCurve(Draw draw) const {
        for (const auto* curves : {&TheStudy().averages, &TheStudy().bands})
            for (const Curve& curve : *curves) draw(PathOf(curve.values, price), ToQColor(curve.color));
        for (const Curve& curve : TheStudy().lower) draw(PathOf(curve.values, lower), ToQColor(curve.color));
    }

    // Calls draw(line, body, volume, colour) for each bar.
    template <typename Draw>
    void ForEachBar(Draw draw) const {
        const double half = price.barWidth * 0.36;
        for (std::size_t i = 0; i < TheBars().size(); ++i) {
            const service::ChartBar& bar = TheBars()[i];
            const double x = price.X(i), top = price.Y(std::max(bar.open, bar.close));
            const double bottom = price.Y(std::min(bar.open, bar.close));
            draw(QLineF(x, price.Y(bar.high), x, price.Y(bar.low)),
                 QRectF(x - half, top, 2 * half, bottom - top),
                 QRectF(x - half, volume.Y(bar.volume), 2 * half, volume.bottom - volume.Y(bar.volume)),
                 ToQColor(bar.close > bar.open ? Color::ChartRise : Color::ChartFall));
        }
    }
};

// Draws everything at each repaint.
class Painted : public QWidget {
public:
    explicit Painted(int inView) : barWidth_(kSize.width() / double(inView)), first_(kBars - double(inView)) {
        Present(*this);
    }
    void Press() { from_ = 600; }
    void Drag(int x) {
        first_ -= (x - from_) / barWidth_;
        from_ = x;
        update();
    }
    void Point(int x) {
        cross_ = x;
        update();
    }
    void Zoom(bool in) {
        barWidth_ *= in ? 1.15 : 1 / 1.15;
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), ToQColor(Color::ChartBack));
        const Whole whole(first_, barWidth_);
        whole.ForEachBar([&](const QLineF& line, const QRectF& body, const QRectF& volume, QColor color) {
            painter.setPen(color);
            painter.drawLine(line);
            painter.fillRect(body, color);
            painter.fillRect(volume, ToQColor(Color::ChartVolume));
        });
        painter.setRenderHint(QPainter::Antialiasing);
        whole.ForEachCurve([&](const QPainterPath& path, QColor color) {
            painter.setPen(QPen(color, 1.2));
            painter.drawPath(path);
        });
        painter.setPen(ToQColor(Color::ChartCrosshair));
        painter.drawLine(cross_, 0, cross_, height());
        painter.drawLine(0, 300, width(), 300);
    }

private:
    double barWidth_, first_;
    int from_ = 0, cross_ = 0;
};

// An item for each bar's line, body and volume, and one for each line of the chart.
class Items {
public:
    explicit Items(int inView) {
        const Whole whole(0, 1);
        whole.ForEachBar([&](const QLineF& line, const QRectF& body, const QRectF& volume, QColor color) {
            QPen thin(color);
            thin.setCosmetic(true);
            scene_.addLine(line, thin);
            scene_.addRect(body, Qt::NoPen, color);
            scene_.addRect(volume, Qt::NoPen, ToQColor(Color::ChartVolume));
        });
        whole.ForEachCurve([&](const QPainterPath& path, QColor color) {
            QPen pen(color, 1.2);
            pen.setCosmetic(true);
            scene_.addPath(path, pen);
        });
        down_ = scene_.addLine(0, 0, 0, 780);
        across_ = scene_.addLine(0, 300, kBars, 300);
        view_.setScene(&scene_);
        view_.setRenderHint(QPainter::Antialiasing);
        view_.setTransform(QTransform::fromScale(kSize.width() / double(inView), 1));
        Present(view_);
        view_.centerOn(kBars, 400);
        QApplication::processEvents();
    }
    void Press() { from_ = 600; }
    void Drag(int x) {
        const QPointF centre = view_.mapToScene(view_.viewport()->rect().center() - QPoint(x - from_, 0));
        view_.centerOn(centre.x(), 400);
        from_ = x;
    }
    void Point(int x) {
        const double at = view_.mapToScene(x, 300).x();
        down_->setLine(at, 0, at, 780);
    }
    void Zoom(bool in) { view_.scale(in ? 1.15 : 1 / 1.15, 1); }

private:
    QGraphicsScene scene_;
    QGraphicsView view_;
    QGraphicsLineItem* down_;
    QGraphicsLineItem* across_;
    int from_ = 0;
};

// Ten steps to one side, ten back, and so on.
bool Back(int step) {
    return step / 10 % 2 == 1;
}

template <typename Chart>
void PanStep(benchmark::State& state) {
    Chart chart(static_cast<int>(state.range(0)));
    chart.Press();
    int x = 600, step = 0;
    for (auto _ : state) {
        x += Back(step++) ? -8 : 8;
        chart.Drag(x);
        QApplication::processEvents();
    }
}

template <typename Chart>
void ZoomStep(benchmark::State& state) {
    Chart chart(static_cast<int>(state.range(0)));
    int step = 0;
    for (auto _ : state) {
        chart.Zoom(!Back(step++));
        QApplication::processEvents();
    }
}

template <typename Chart>
void CrosshairMove(benchmark::State& state) {
    Chart chart(static_cast<int>(state.range(0)));
    int step = 0;
    for (auto _ : state) {
        chart.Point(300 + step++ * 7 % 600);
        QApplication::processEvents();
    }
}

template <typename Chart>
void FirstPaint(benchmark::State& state) {
    TheStudy();
    for (auto _ : state) Chart chart(static_cast<int>(state.range(0)));
}

// What a new stock costs before it can be painted.
void Lines(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(StudyOf(TheBars(), {.periods = {5, 20, 60, 120, 240}}));
}

DecodedBlock Condition(char letter, const char* key, int number, std::map<int, std::string> roles) {
    const bool ranks = key[1] == '8';
    return {ranks ? 'R' : key[1] == '4' ? 'B' : 'T', false, true, letter, key, number, 0, std::move(roles)};
}

// The days of one stock on which a set was true, over the 500 days of the generated market: conditions on the
// stock alone, and one that ranks all stocks on the days that the others leave open.
void TrueDays(benchmark::State& state, const char* expression) {
    static const auto market = market::GenerateMarket();
    const engine::ConditionPlan plan(
        expression, {Condition('A', "010101", 12, {{20, "D"}, {30, "0"}, {40, "20"}, {50, "1"}}),
                     Condition('B', "010201", 111, {{20, "D"}, {30, "0"}, {40, "14"}, {60, "70"}}),
                     Condition('C', "040201", 510, {{20, "D"}, {30, "0"}, {40, "20"}, {60, "80"}}),
                     Condition('D', "010202", 120, {{20, "W"}, {30, "0"}, {40, "12"}, {41, "26"}, {42, "9"}}),
                     Condition('E', "010201", 110, {{20, "M"}, {30, "0"}, {40, "14"}, {60, "50"}}),
                     Condition('R', "080102", 820, {{50, "1"}, {60, "100"}})});
    int stock = 0;
    for (auto _ : state) benchmark::DoNotOptimize(engine::TrueDays(*market, stock++ % 2600, plan));
}
BENCHMARK_CAPTURE(TrueDays, alone, "A&B&C&(D|E|!D)")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(TrueDays, ranked, "A&B&C&R")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(TrueDays, ranked_every_day, "R")->Unit(benchmark::kMillisecond);

#define CHART_BENCHMARK(step)                                                               \
    BENCHMARK(step<Ours>)->Arg(kFewBars)->Arg(kManyBars)->Unit(benchmark::kMicrosecond);    \
    BENCHMARK(step<Painted>)->Arg(kFewBars)->Arg(kManyBars)->Unit(benchmark::kMicrosecond); \
    BENCHMARK(step<Items>)->Arg(kFewBars)->Arg(kManyBars)->Unit(benchmark::kMicrosecond)

CHART_BENCHMARK(PanStep);
CHART_BENCHMARK(ZoomStep);
CHART_BENCHMARK(CrosshairMove);
CHART_BENCHMARK(FirstPaint);
BENCHMARK(Lines)->Unit(benchmark::kMicrosecond);

}  // namespace
